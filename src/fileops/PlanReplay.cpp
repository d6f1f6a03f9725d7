#include "fileops/PlanReplay.h"

#include <cstring>
#include <memory>
#include <set>

#include "core/PlanFiles.h"
#include "core/PlanIdentity.h"
#include "fileops/FileopsTexts.h"
#include "fileops/PlanOnDisk.h"
#include "fileops/StagedCopies.h"
#include "platform/ErrorNumbers.h"
#include "platform/Trash.h"

namespace renvale::fileops {

namespace {

bool IsCopy(core::StepKind kind) { return kind == core::StepKind::Copy || kind == core::StepKind::CopyThenRemove; }

bool SameContents(platform::FileSystem& fs, const QByteArray& a, const QByteArray& b) {
  std::unique_ptr<platform::ReadableFile> first;
  std::unique_ptr<platform::ReadableFile> second;
  if (fs.OpenForRead(a, &first) != 0 || fs.OpenForRead(b, &second) != 0 || first->Size() != second->Size()) {
    return false;
  }
  constexpr qint64 kChunk = 1 << 16;
  QByteArray one(kChunk, Qt::Uninitialized);
  QByteArray two(kChunk, Qt::Uninitialized);
  for (qint64 at = 0;; at += kChunk) {
    const qint64 got = first->ReadAt(at, one.data(), kChunk);
    if (got < 0 || second->ReadAt(at, two.data(), kChunk) != got) return false;
    if (got == 0) return true;
    if (std::memcmp(one.constData(), two.constData(), static_cast<size_t>(got)) != 0) return false;
  }
}

}  // namespace

PlanReplay::PlanReplay(platform::FileSystem& fs, platform::MessagePort& messages) : fs_(fs), messages_(messages) {}

ReplayResult PlanReplay::Finish(const core::OperationPlan& plan) {
  ReplayResult result;
  SweepTemporaries(plan);
  const std::vector<StepState> states = PlanOnDisk::States(fs_, plan);
  const std::vector<bool> last = core::LastStepsOfFiles(plan);
  StagedCopies copies(fs_);
  std::vector<const QByteArray*> copied;
  for (size_t i = 0; i < states.size(); ++i) {
    const core::PlanStep& step = plan.steps[i];
    const StepState state = states[i];
    if (state == StepState::Done) continue;
    if (state == StepState::Changed) {
      PassOver(&result, step.from, texts::kReplayChanged);
      continue;
    }
    if (IsCopy(step.kind)) {
      const bool move = step.kind == core::StepKind::CopyThenRemove;
      if (move && core::HoldsFile(fs_, step.to, step.identity, false)) {
        copies.AddNamed(step.from, step.to);
      } else {
        copies.Add(step.from, step.to, move);
      }
      copied.push_back(&step.from);
    } else if (const int error = FinishStep(step)) {
      PassOver(&result, step.from, platform::ErrorDescription(error));
    } else if (last[i]) {
      ++result.carriedOut;
    }
  }
  Tally(copies.Run(), copied, &result);
  return result;
}

int PlanReplay::FinishStep(const core::PlanStep& step) {
  switch (step.kind) {
    case core::StepKind::Rename:
      return fs_.RenameNoReplace(step.from, step.to);
    case core::StepKind::Trash:
      return fs_.MoveToTrash(step.from);
    case core::StepKind::Copy:
    case core::StepKind::CopyThenRemove:
      break;  // staged together by the caller
  }
  return platform::kNoError;
}

ReplayResult PlanReplay::Undo(const core::OperationPlan& plan) {
  ReplayResult result;
  SweepTemporaries(plan);
  const std::vector<StepState> states = PlanOnDisk::States(fs_, plan);
  const std::vector<bool> last = core::LastStepsOfFiles(plan);
  int copies = 0;
  for (size_t i = 0; i < states.size(); ++i) {
    if (states[i] == StepState::Done && plan.steps[i].kind == core::StepKind::Copy) ++copies;
  }
  const bool copiesGo = copies == 0 || CopiesMayGo(copies);
  StagedCopies movedBack(fs_);
  std::vector<const QByteArray*> moved;
  for (size_t i = states.size(); i-- > 0;) {
    const core::PlanStep& step = plan.steps[i];
    const QByteArray& now = step.kind == core::StepKind::Trash ? step.from : step.to;
    const StepState state = states[i];
    if (state == StepState::NotDone) {
      if (step.kind == core::StepKind::CopyThenRemove && TakeBackUnremovedCopy(step)) ++result.carriedOut;
      continue;
    }
    if (state == StepState::Changed) {
      PassOver(&result, now, texts::kReplayChanged);
    } else if (step.kind == core::StepKind::Copy && !copiesGo) {
      PassOver(&result, now, texts::kReplayCopyKept);
    } else if (step.kind == core::StepKind::CopyThenRemove) {
      movedBack.Add(step.to, step.from, true);
      moved.push_back(&step.to);
    } else if (const int error = UndoStep(step)) {
      PassOver(&result, now, error == platform::kFileNotFound && step.kind == core::StepKind::Trash
                                 ? texts::kReplayNotInTrash
                                 : platform::ErrorDescription(error));
    } else if (last[i]) {
      ++result.carriedOut;
    }
  }
  Tally(movedBack.Run(), moved, &result);
  return result;
}

int PlanReplay::UndoStep(const core::PlanStep& step) {
  switch (step.kind) {
    case core::StepKind::Rename:
      return fs_.RenameNoReplace(step.to, step.from);
    case core::StepKind::Copy:
      return fs_.MoveToTrash(step.to);
    case core::StepKind::Trash:
      return platform::RestoreFromTrash(step.from, step.identity.size);
    case core::StepKind::CopyThenRemove:
      break;  // staged together by the caller
  }
  return platform::kNoError;
}

// A move cut short between naming the copy and removing the source has the
// file in both places; the copy goes, but only while it is the same file.
bool PlanReplay::TakeBackUnremovedCopy(const core::PlanStep& step) {
  if (!core::HoldsFile(fs_, step.to, step.identity, false) || !SameContents(fs_, step.from, step.to)) return false;
  return fs_.RemoveFile(step.to) == platform::kNoError;
}

void PlanReplay::SweepTemporaries(const core::OperationPlan& plan) {
  std::set<QByteArray> folders;
  for (const core::PlanStep& step : plan.steps) {
    if (IsCopy(step.kind)) folders.insert(StagedCopies::FolderOf(step.to));
    if (step.kind == core::StepKind::CopyThenRemove) folders.insert(StagedCopies::FolderOf(step.from));
  }
  for (const QByteArray& folder : folders) StagedCopies::RemoveLeftTemporaries(fs_, folder);
}

void PlanReplay::Tally(const std::vector<int>& errors, const std::vector<const QByteArray*>& paths,
                       ReplayResult* result) {
  for (size_t i = 0; i < errors.size(); ++i) {
    if (errors[i] == platform::kNoError) {
      ++result->carriedOut;
    } else {
      PassOver(result, *paths[i], platform::ErrorDescription(errors[i]));
    }
  }
}

bool PlanReplay::CopiesMayGo(int copies) {
  return messages_.AskBeforeLoss(texts::kUndoCopiesQuestion.arg(copies), platform::MessageButtons::YesNo,
                                 platform::MessageIcon::Question) == platform::MessageAnswer::Yes;
}

void PlanReplay::PassOver(ReplayResult* result, const QByteArray& path, const QString& why) {
  result->passedOver << texts::kReplayPassedOver.arg(platform::FileName::NameToText(path), why);
}

}  // namespace renvale::fileops

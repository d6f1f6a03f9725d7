#include "fileops/PlanReplay.h"

#include "core/PlanFiles.h"
#include "fileops/FileopsTexts.h"
#include "fileops/PlanOnDisk.h"
#include "platform/ErrorNumbers.h"
#include "platform/Trash.h"

namespace renvale::fileops {

PlanReplay::PlanReplay(platform::FileSystem& fs, platform::MessagePort& messages) : fs_(fs), messages_(messages) {}

ReplayResult PlanReplay::Finish(const core::OperationPlan& plan) {
  ReplayResult result;
  const std::vector<StepState> states = PlanOnDisk::States(fs_, plan);
  const std::vector<bool> last = core::LastStepsOfFiles(plan);
  for (size_t i = 0; i < states.size(); ++i) {
    const core::PlanStep& step = plan.steps[i];
    const StepState state = states[i];
    if (state == StepState::Done) continue;
    if (state == StepState::Changed) {
      PassOver(&result, step.from, texts::kReplayChanged);
      continue;
    }
    if (const int error = FinishStep(step)) {
      PassOver(&result, step.from, platform::ErrorDescription(error));
    } else if (last[i]) {
      ++result.carriedOut;
    }
  }
  return result;
}

int PlanReplay::FinishStep(const core::PlanStep& step) {
  switch (step.kind) {
    case core::StepKind::Rename:
      return fs_.RenameNoReplace(step.from, step.to);
    case core::StepKind::Copy:
      return fs_.CopyFile(step.from, step.to, false);
    case core::StepKind::Trash:
      return fs_.MoveToTrash(step.from);
  }
  return platform::kNoError;
}

ReplayResult PlanReplay::Undo(const core::OperationPlan& plan) {
  ReplayResult result;
  const std::vector<StepState> states = PlanOnDisk::States(fs_, plan);
  const std::vector<bool> last = core::LastStepsOfFiles(plan);
  int copies = 0;
  for (size_t i = 0; i < states.size(); ++i) {
    if (states[i] == StepState::Done && plan.steps[i].kind == core::StepKind::Copy) ++copies;
  }
  const bool copiesGo = copies == 0 || CopiesMayGo(copies);
  for (size_t i = states.size(); i-- > 0;) {
    const core::PlanStep& step = plan.steps[i];
    const QByteArray& now = step.kind == core::StepKind::Trash ? step.from : step.to;
    const StepState state = states[i];
    if (state == StepState::NotDone) continue;
    if (state == StepState::Changed) {
      PassOver(&result, now, texts::kReplayChanged);
    } else if (step.kind == core::StepKind::Copy && !copiesGo) {
      PassOver(&result, now, texts::kReplayCopyKept);
    } else if (const int error = UndoStep(step)) {
      PassOver(&result, now, error == platform::kFileNotFound && step.kind == core::StepKind::Trash
                                 ? texts::kReplayNotInTrash
                                 : platform::ErrorDescription(error));
    } else if (last[i]) {
      ++result.carriedOut;
    }
  }
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
  }
  return platform::kNoError;
}

bool PlanReplay::CopiesMayGo(int copies) {
  return messages_.AskBeforeLoss(texts::kUndoCopiesQuestion.arg(copies), platform::MessageButtons::YesNo,
                                 platform::MessageIcon::Question) == platform::MessageAnswer::Yes;
}

void PlanReplay::PassOver(ReplayResult* result, const QByteArray& path, const QString& why) {
  result->passedOver << texts::kReplayPassedOver.arg(platform::FileName::NameToText(path), why);
}

}  // namespace renvale::fileops

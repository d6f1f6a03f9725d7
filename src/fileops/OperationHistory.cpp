#include "fileops/OperationHistory.h"

#include <QLocale>
#include <algorithm>

#include "fileops/FileopsTexts.h"
#include "core/PlanFiles.h"
#include "fileops/PlanOnDisk.h"
#include "platform/FileLock.h"

namespace renvale::fileops {

namespace {

using State = JournalEntry::State;

QString KindName(core::OperationKind kind) {
  switch (kind) {
    case core::OperationKind::Rename:
      return texts::kKindRename;
    case core::OperationKind::BatchRename:
      return texts::kKindBatchRename;
    case core::OperationKind::SearchReplace:
      return texts::kKindSearchReplace;
    case core::OperationKind::Move:
      return texts::kKindMove;
    case core::OperationKind::Copy:
      return texts::kKindCopy;
    case core::OperationKind::Trash:
      return texts::kKindTrash;
    case core::OperationKind::TemplateDelete:
      return texts::kKindTemplateDelete;
  }
  return texts::kKindRename;
}

}  // namespace

OperationHistory::OperationHistory(Journal& journal, platform::FileSystem& fs, platform::MessagePort& messages)
    : journal_(journal), fs_(fs), messages_(messages) {}

QString OperationHistory::Describe(const core::OperationPlan& plan) {
  const int files = core::FilesIn(plan);
  const QString count = QLocale(QLocale::English, QLocale::UnitedStates).toString(files);
  return (files == 1 ? texts::kDescribeOne : texts::kDescribeMany).arg(KindName(plan.kind), count);
}

std::vector<HistoryLine> OperationHistory::Lines() {
  std::vector<HistoryLine> lines;
  for (const JournalEntry& entry : journal_.Entries()) {
    lines.push_back(HistoryLine{entry.plan.started, Describe(entry.plan), core::FilesIn(entry.plan),
                                platform::FileName::NameToText(entry.plan.folder), entry.state == State::Undone,
                                entry.state == State::Open});
  }
  return lines;
}

// An operation left open (the person chose to decide later) is undone like
// a finished one: only what the disk shows done is taken back. Only the
// newest is read: the caption asks on every refresh of the list.
// A plan that a running operation (here or in renvale-batch) holds is
// neither undone nor recovered under its feet.
std::vector<JournalEntry> OperationHistory::Undoable() {
  std::vector<JournalEntry> entries = journal_.Entries(1, false);
  if (!entries.empty() && entries.front().state == State::Open &&
      platform::FileLock::HeldElsewhere(entries.front().path)) {
    entries.clear();
  }
  return entries;
}

QString OperationHistory::UndoCaption() {
  const std::vector<JournalEntry> entries = Undoable();
  return entries.empty() ? QString() : texts::kUndoCaption.arg(Describe(entries.front().plan));
}

bool OperationHistory::UndoNewest() {
  std::vector<JournalEntry> entries = Undoable();
  if (entries.empty()) return false;
  JournalEntry& entry = entries.front();
  const ReplayResult result = PlanReplay(fs_, messages_).Undo(entry.plan);
  journal_.Mark(entry, State::Undone);
  Report(texts::kUndoDone.arg(Describe(entry.plan)).arg(result.carriedOut), result);
  return true;
}

bool OperationHistory::RecoverUnfinished() {
  journal_.RemoveStaleTemporaries();
  bool any = false;
  for (JournalEntry& entry : journal_.Entries()) {
    if (entry.state != State::Open || platform::FileLock::HeldElsewhere(entry.path)) continue;
    Recover(entry);
    any = true;
  }
  return any;
}

void OperationHistory::Recover(JournalEntry& entry) {
  const std::vector<StepState> states = PlanOnDisk::States(fs_, entry.plan);
  const std::vector<bool> last = core::LastStepsOfFiles(entry.plan);
  // A file counts by the step that takes it to its end: one that stepped
  // aside but not on yet is not done.
  const auto count = [&states, &last](StepState state) {
    int files = 0;
    for (size_t i = 0; i < states.size(); ++i) files += last[i] && states[i] == state ? 1 : 0;
    return files;
  };
  const int done = count(StepState::Done);
  const int notDone = count(StepState::NotDone);
  // Settled without asking, the replay still runs: it has nothing to carry
  // out but sweeps away the unnamed copies a transfer cut short left.
  if (notDone == 0 && count(StepState::Changed) == 0) {
    PlanReplay(fs_, messages_).Finish(entry.plan);
    journal_.Mark(entry, State::Done);
    return;
  }
  if (done == 0 && count(StepState::Changed) == 0) {
    PlanReplay(fs_, messages_).Undo(entry.plan);
    journal_.Mark(entry, State::Undone);
    return;
  }
  const QString text = texts::kRecoveryQuestion.arg(Describe(entry.plan),
                                                    platform::FileName::NameToText(entry.plan.folder),
                                                    QString::number(done), QString::number(notDone),
                                                    QString::number(count(StepState::Changed)));
  platform::Message question{text, texts::kRecoveryTitle, platform::MessageIcon::Question,
                             platform::MessageButtons::YesNoCancel, platform::MessageAnswer::Cancel};
  const platform::MessageAnswer answer = messages_.Show(question);
  if (answer == platform::MessageAnswer::Yes) {
    const ReplayResult result = PlanReplay(fs_, messages_).Finish(entry.plan);
    journal_.Mark(entry, State::Done);
    Report(texts::kRecoveryFinished.arg(result.carriedOut), result);
  } else if (answer == platform::MessageAnswer::No) {
    const ReplayResult result = PlanReplay(fs_, messages_).Undo(entry.plan);
    journal_.Mark(entry, State::Undone);
    Report(texts::kRecoveryUndone.arg(result.carriedOut), result);
  }
}

void OperationHistory::Report(const QString& heading, const ReplayResult& result) {
  QStringList lines{heading};
  if (!result.passedOver.isEmpty()) lines << QString() << texts::kPassedOverHeading << result.passedOver;
  messages_.Notify(lines.join(texts::kCr),
                   result.passedOver.isEmpty() ? platform::MessageIcon::Information : platform::MessageIcon::Warning);
}

}  // namespace renvale::fileops

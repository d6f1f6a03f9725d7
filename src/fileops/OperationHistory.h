#pragma once

#include <QString>
#include <vector>

#include "fileops/Journal.h"
#include "fileops/PlanReplay.h"

namespace renvale::fileops {

// One line of the history as the person sees it.
struct HistoryLine {
  QDateTime when;  // UTC
  QString what;    // "Batch Rename of 1,565 files"
  int files = 0;
  QString folder;
  bool undone = false;
  bool unfinished = false;  // cut short, and the person decided later
};

// Undo and the history over the journal: what the window's Edit menu and
// the history window show and do, and the check at start for an operation
// a crash cut short. Knows no widgets, so that every program sharing the
// journal undoes the same way.
class OperationHistory {
 public:
  OperationHistory(Journal& journal, platform::FileSystem& fs, platform::MessagePort& messages);

  // "Batch Rename of 1,565 files".
  static QString Describe(const core::OperationPlan& plan);

  // Every operation kept, newest first.
  std::vector<HistoryLine> Lines();
  // "Undo " + what the next Undo takes back; empty when there is nothing.
  QString UndoCaption();
  // Takes back the newest operation not yet undone and tells the result.
  // False when there was none.
  bool UndoNewest();
  // Offers, for each operation a crash or a kill cut short, to finish it,
  // to undo what was done, or to decide later. One that the disk shows
  // done entirely, or not begun, is settled without asking. True when
  // there was any, so that the list is read again.
  bool RecoverUnfinished();

 private:
  std::vector<JournalEntry> Undoable();
  void Recover(JournalEntry& entry);
  void Report(const QString& heading, const ReplayResult& result);

  Journal& journal_;
  platform::FileSystem& fs_;
  platform::MessagePort& messages_;
};

}  // namespace renvale::fileops

#pragma once

#include <QDialog>

#include "fileops/OperationHistory.h"

class QPushButton;
class QTreeWidget;

namespace renvale::shell {

// "Operation History...": the operations kept, newest first (when, what,
// how many files, which folder), and a button that undoes the newest one
// not undone yet, one by one.
class HistoryDialog : public QDialog {
  Q_OBJECT

 public:
  HistoryDialog(fileops::OperationHistory& history, QWidget* parent);
  bool UndidAny() const { return undidAny_; }

 private:
  void Fill();
  void UndoNewest();

  fileops::OperationHistory& history_;
  QTreeWidget* list_;
  QPushButton* undo_;
  bool undidAny_ = false;
};

}  // namespace renvale::shell

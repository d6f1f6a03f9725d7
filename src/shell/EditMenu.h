#pragma once

#include <QObject>
#include <functional>
#include <memory>

#include "fileops/OperationHistory.h"
#include "shell/MainWindowUi.h"

namespace renvale::shell {

// The Edit menu: "Undo " + what it undoes, and the operation history. The
// caption is read from the journal each time the menu opens, so that an
// operation of another program sharing the journal shows too. Without a
// journal both entries stay disabled.
class EditMenu : public QObject {
  Q_OBJECT

 public:
  // `busy` is true while an operation runs and lets window events through:
  // nothing may be undone under it.
  EditMenu(MainWindowUi& ui, fileops::Journal* journal, platform::FileSystem& fs, platform::MessagePort& messages,
           std::function<void()> refreshFiles, std::function<bool()> busy, QWidget* parent);
  ~EditMenu() override;

  // Offers to finish or undo what a crash cut short; called once the
  // window is up.
  void CheckUnfinished();
  // Names the newest operation in "Undo ...", or disables it.
  void UpdateCaption();

 private:
  void Undo();
  void ShowHistory();

  MainWindowUi& ui_;
  std::unique_ptr<fileops::OperationHistory> history_;
  std::function<void()> refreshFiles_;
  std::function<bool()> busy_;
  QWidget* parent_;
};

}  // namespace renvale::shell

#include "shell/EditMenu.h"

#include <QAction>
#include <QMenu>

#include "shell/HistoryDialog.h"
#include "shell/ShellTexts.h"

namespace renvale::shell {

EditMenu::EditMenu(MainWindowUi& ui, fileops::Journal* journal, platform::FileSystem& fs,
                   platform::MessagePort& messages, std::function<void()> refreshFiles, std::function<bool()> busy,
                   QWidget* parent)
    : QObject(parent), ui_(ui), refreshFiles_(std::move(refreshFiles)), busy_(std::move(busy)), parent_(parent) {
  if (journal == nullptr) {
    ui_.mnuUndo->setEnabled(false);
    ui_.mnuHistory->setEnabled(false);
    return;
  }
  history_ = std::make_unique<fileops::OperationHistory>(*journal, fs, messages);
  connect(ui_.mnuUndo, &QAction::triggered, this, &EditMenu::Undo);
  connect(ui_.mnuHistory, &QAction::triggered, this, &EditMenu::ShowHistory);
  if (auto* menu = qobject_cast<QMenu*>(ui_.mnuUndo->parent())) {
    connect(menu, &QMenu::aboutToShow, this, &EditMenu::UpdateCaption);
  }
  UpdateCaption();
}

EditMenu::~EditMenu() = default;

void EditMenu::CheckUnfinished() {
  if (history_ == nullptr || busy_()) return;
  // The list is read again only where a plan was settled: at start the
  // person may already be choosing files.
  if (history_->RecoverUnfinished()) refreshFiles_();
  UpdateCaption();
}

void EditMenu::UpdateCaption() {
  if (history_ == nullptr) return;
  const QString caption = history_->UndoCaption();
  // "Search & Replace" must not lend its "&" to the keyboard.
  ui_.mnuUndo->setText(caption.isEmpty() ? texts::kUndoNothing
                                         : QLatin1Char('&') + QString(caption).replace(u'&', QStringLiteral("&&")));
  ui_.mnuUndo->setEnabled(!caption.isEmpty() && !busy_());
  ui_.mnuHistory->setEnabled(!busy_());
}

void EditMenu::Undo() {
  // The shortcut reaches here without the menu having opened.
  UpdateCaption();
  if (!ui_.mnuUndo->isEnabled()) return;
  history_->UndoNewest();
  refreshFiles_();
  UpdateCaption();
}

void EditMenu::ShowHistory() {
  if (busy_()) return;
  HistoryDialog dialog(*history_, parent_);
  dialog.exec();
  if (dialog.UndidAny()) refreshFiles_();
  UpdateCaption();
}

}  // namespace renvale::shell

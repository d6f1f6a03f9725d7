#include "shell/HistoryDialog.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLocale>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "shell/ShellTexts.h"

namespace renvale::shell {

HistoryDialog::HistoryDialog(fileops::OperationHistory& history, QWidget* parent)
    : QDialog(parent), history_(history), list_(new QTreeWidget(this)) {
  setObjectName(QStringLiteral("OperationHistory"));
  setWindowTitle(texts::kHistoryTitle);
  list_->setObjectName(QStringLiteral("lstHistory"));
  list_->setRootIsDecorated(false);
  list_->setHeaderLabels({std::begin(texts::kHistoryColumns), std::end(texts::kHistoryColumns)});
  auto* buttons = new QDialogButtonBox(this);
  undo_ = buttons->addButton(texts::kHistoryUndoButton, QDialogButtonBox::ActionRole);
  undo_->setObjectName(QStringLiteral("cmdUndo"));
  QPushButton* close = buttons->addButton(texts::kHistoryClose, QDialogButtonBox::RejectRole);
  close->setObjectName(QStringLiteral("cmdClose"));
  connect(undo_, &QPushButton::clicked, this, &HistoryDialog::UndoNewest);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(list_);
  layout->addWidget(buttons);
  resize(760, 420);
  Fill();
}

void HistoryDialog::Fill() {
  list_->clear();
  const std::vector<fileops::HistoryLine> lines = history_.Lines();
  const QLocale locale;
  for (const fileops::HistoryLine& line : lines) {
    auto* item = new QTreeWidgetItem(list_);
    item->setText(0, locale.toString(line.when.toLocalTime(), QLocale::ShortFormat));
    item->setText(1, line.undone       ? texts::kHistoryUndone.arg(line.what)
                     : line.unfinished ? texts::kHistoryUnfinished.arg(line.what)
                                       : line.what);
    item->setText(2, QString::number(line.files));
    item->setText(3, line.folder);
    item->setDisabled(line.undone);
  }
  if (lines.empty()) new QTreeWidgetItem(list_, {QString(), texts::kHistoryEmpty});
  list_->header()->resizeSections(QHeaderView::ResizeToContents);
  undo_->setEnabled(!history_.UndoCaption().isEmpty());
}

void HistoryDialog::UndoNewest() {
  undidAny_ = history_.UndoNewest() || undidAny_;
  Fill();
}

}  // namespace renvale::shell

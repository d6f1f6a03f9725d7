#include "shell/NamePreviewDialog.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include "shell/NamePreviewModel.h"
#include "shell/ShellTexts.h"

namespace renvale::shell {

namespace {

constexpr int kWidth = 980;
constexpr int kHeight = 560;
constexpr int kNameColumnWidth = 220;
constexpr int kDateColumnWidth = 210;

QPushButton* Button(QWidget* parent, const char* objectName, const QString& caption) {
  auto* button = new QPushButton(caption, parent);
  button->setObjectName(QString::fromLatin1(objectName));
  button->setAccessibleName(caption);
  return button;
}

}  // namespace

NamePreviewDialog::NamePreviewDialog(QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("NamePreview"));
  setWindowTitle(texts::kPreviewNamesTitle);
  setAccessibleName(texts::kPreviewNamesTitle);
  resize(kWidth, kHeight);
  auto* layout = new QVBoxLayout(this);
  warnings_ = new QLabel(this);
  warnings_->setObjectName(QStringLiteral("PreviewWarnings"));
  warnings_->setWordWrap(true);
  warnings_->setTextFormat(Qt::PlainText);  // file names must never be taken for markup
  warnings_->hide();
  layout->addWidget(warnings_);
  model_ = new NamePreviewModel(this);
  list_ = new QTableView(this);
  list_->setObjectName(QStringLiteral("PreviewList"));
  list_->setAccessibleName(texts::kPreviewNamesTitle);
  list_->setModel(model_);
  list_->setSelectionBehavior(QAbstractItemView::SelectRows);
  list_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  list_->setWordWrap(false);
  // Fixed row heights and column widths: measuring ten thousand rows'
  // contents would make the window wait.
  list_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  list_->horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
  list_->horizontalHeader()->setStretchLastSection(true);
  list_->setColumnWidth(NamePreviewModel::Current, kNameColumnWidth);
  list_->setColumnWidth(NamePreviewModel::New, kNameColumnWidth);
  list_->setColumnWidth(NamePreviewModel::DateSource, kDateColumnWidth);
  layout->addWidget(list_, 1);
  auto* buttons = new QHBoxLayout;
  summary_ = new QLabel(this);
  summary_->setObjectName(QStringLiteral("PreviewSummary"));
  buttons->addWidget(summary_, 1);
  start_ = Button(this, "PreviewStart", texts::kPreviewStart);
  auto* close = Button(this, "PreviewClose", texts::kPreviewClose);
  buttons->addWidget(start_);
  buttons->addWidget(close);
  layout->addLayout(buttons);
  connect(start_, &QPushButton::clicked, this, &QDialog::accept);
  connect(close, &QPushButton::clicked, this, &QDialog::reject);
  close->setDefault(true);  // Enter looks, it does not rename
}

void NamePreviewDialog::SetPreview(const core::BatchPreview& preview) {
  QStringList top = preview.warnings;
  if (!preview.stopText.isEmpty()) top.prepend(preview.stopText);
  // The batch's questions join their lines with CR LF, made for message boxes.
  QString shown = top.join(QStringLiteral("\n\n"));
  shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
  warnings_->setText(shown);
  warnings_->setVisible(!top.isEmpty());
  int noted = 0;
  for (const core::PreviewRow& row : preview.rows) noted += row.notes.isEmpty() ? 0 : 1;
  summary_->setText(texts::PreviewSummary(static_cast<int>(preview.rows.size()), noted));
  model_->SetRows(preview.rows);
  start_->setEnabled(preview.stopText.isEmpty() && !preview.rows.empty());
}

}  // namespace renvale::shell

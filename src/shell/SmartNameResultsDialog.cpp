#include "shell/SmartNameResultsDialog.h"

#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "fileops/FileopsTexts.h"

namespace renvale::shell {

namespace text = fileops::transfer_text;

SmartNameResultsDialog::SmartNameResultsDialog(const QString& report, QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("SNResults"));
  setWindowTitle(text::kResultsCaption);
  // Plain text: a file name is shown as it is, never read as markup.
  auto* results = new QPlainTextEdit(report, this);
  results->setObjectName(QStringLiteral("RichTextBox1"));
  results->setAccessibleName(text::kResultsCaption);
  results->setReadOnly(true);
  auto* close = new QPushButton(text::kResultsClose, this);
  close->setObjectName(QStringLiteral("Command1"));
  connect(close, &QPushButton::clicked, this, &QDialog::accept);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(results, 1);
  layout->addWidget(close, 0, Qt::AlignHCenter);
  resize(560, 320);
}

}  // namespace renvale::shell

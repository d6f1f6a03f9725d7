#include "shell/SandRresults.h"

#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "fileops/FileopsTexts.h"

namespace renvale::shell {

namespace texts = fileops::texts;

SandRresults::SandRresults(const QString& results, QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("SandRresults"));
  setWindowTitle(texts::kResultsCaption);
  // A plain text view lays out only the lines on screen, so thousands of
  // results open at once.
  textResults = new QPlainTextEdit(this);
  textResults->setObjectName(QStringLiteral("textResults"));
  textResults->setAccessibleName(texts::kResultsDesignText);
  textResults->setReadOnly(true);
  textResults->setPlainText(results);
  auto* ok = new QPushButton(texts::kOkButton, this);
  ok->setObjectName(QStringLiteral("Command1"));
  ok->setDefault(true);
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(ok);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(textResults, 1);
  layout->addLayout(buttons);
  resize(760, 420);
}

}  // namespace renvale::shell

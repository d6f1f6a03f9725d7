#include "shell/SandRresults.h"

#include <QAbstractTextDocumentLayout>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextDocument>
#include <QVBoxLayout>
#include <utility>

#include "fileops/FileopsTexts.h"

namespace renvale::shell {

namespace texts = fileops::texts;

SandRresults::SandRresults(std::unique_ptr<QTextDocument> results, QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("SandRresults"));
  setWindowTitle(texts::kResultsCaption);
  // A plain text view lays out only the lines on screen, so thousands of
  // results open at once.
  textResults = new QPlainTextEdit(this);
  textResults->setObjectName(QStringLiteral("textResults"));
  textResults->setAccessibleName(texts::kResultsDesignText);
  textResults->setReadOnly(true);
  QTextDocument* document = results.release();
  document->setParent(textResults);
  document->documentLayout()->setPaintDevice(textResults->viewport());
  // Made with the dialog's font, which the view has unless a style gives it
  // another.
  if (document->defaultFont() != textResults->font()) document->setDefaultFont(textResults->font());
  results_ = document;
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

// The view lays out every line of its document again each time its width
// changes, which it does twice before it first shows: the results go in
// once it has its final size, and are laid out once.
void SandRresults::showEvent(QShowEvent* event) {
  if (results_ != nullptr) textResults->setDocument(std::exchange(results_, nullptr));
  QDialog::showEvent(event);
}

}  // namespace renvale::shell

#include "shell/SandRresults.h"

#include <QHBoxLayout>
#include <QPlainTextDocumentLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextDocument>
#include <QVBoxLayout>

#include "fileops/FileopsTexts.h"

namespace renvale::shell {

namespace texts = fileops::texts;

namespace {

// The results in a document made like the view's own, filled before the
// view takes it: the view filling its own goes over ten thousand lines a
// second time to give each the format it has already, and moves its cursor
// along with every line.
QTextDocument* ResultsDocument(const QString& results, QPlainTextEdit& view) {
  auto* document = new QTextDocument(&view);
  document->setDocumentLayout(new QPlainTextDocumentLayout(document));
  document->documentLayout()->setPaintDevice(view.viewport());
  document->setDefaultFont(view.font());
  document->setUndoRedoEnabled(false);
  document->setPlainText(results);
  document->setModified(false);
  return document;
}

}  // namespace

SandRresults::SandRresults(const QString& results, QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("SandRresults"));
  setWindowTitle(texts::kResultsCaption);
  // A plain text view lays out only the lines on screen, so thousands of
  // results open at once.
  textResults = new QPlainTextEdit(this);
  textResults->setObjectName(QStringLiteral("textResults"));
  textResults->setAccessibleName(texts::kResultsDesignText);
  textResults->setReadOnly(true);
  textResults->setDocument(ResultsDocument(results, *textResults));
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

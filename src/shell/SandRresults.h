#pragma once

#include <QDialog>
#include <memory>

class QPlainTextEdit;
class QTextDocument;

namespace renvale::shell {

// "Filename Search & Replace - Results Window": one read-only line per file
// renamed or left alone by a clash.
class SandRresults : public QDialog {
  Q_OBJECT

 public:
  // `results`: a document with a plain text layout, which the window takes.
  SandRresults(std::unique_ptr<QTextDocument> results, QWidget* parent);

 private:
  QPlainTextEdit* textResults = nullptr;
};

}  // namespace renvale::shell

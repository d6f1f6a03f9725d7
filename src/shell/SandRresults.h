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

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  QPlainTextEdit* textResults = nullptr;
  QTextDocument* results_ = nullptr;  // shown once the view has its size
};

}  // namespace renvale::shell

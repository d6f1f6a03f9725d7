#pragma once

#include <QDialog>

class QPlainTextEdit;

namespace renvale::shell {

// "Filename Search & Replace - Results Window": one read-only line per file
// renamed or left alone by a clash.
class SandRresults : public QDialog {
  Q_OBJECT

 public:
  SandRresults(const QString& results, QWidget* parent);

 private:
  QPlainTextEdit* textResults = nullptr;
};

}  // namespace renvale::shell

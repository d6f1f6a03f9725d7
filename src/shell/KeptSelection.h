#pragma once

#include <QObject>

class QLineEdit;

namespace renvale::shell {

// A line edit drops its selection when a button takes the focus, yet the
// insert buttons must replace what the user had selected in the new-name
// box. This remembers the selection across that focus change.
class KeptSelection : public QObject {
  Q_OBJECT

 public:
  explicit KeptSelection(QLineEdit& box, QObject* parent = nullptr);

  // Selects again what was selected when the box lost the focus, unless the
  // box has a selection of its own or its text changed meanwhile.
  void Restore();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Forget() { start_ = -1; }

  QLineEdit& box_;
  int start_ = -1;
  int length_ = 0;
};

}  // namespace renvale::shell

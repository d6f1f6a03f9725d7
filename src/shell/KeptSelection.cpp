#include "shell/KeptSelection.h"

#include <QEvent>
#include <QLineEdit>

namespace renvale::shell {

KeptSelection::KeptSelection(QLineEdit& box, QObject* parent) : QObject(parent), box_(box) {
  box_.installEventFilter(this);
  connect(&box_, &QLineEdit::textChanged, this, &KeptSelection::Forget);
}

void KeptSelection::Restore() {
  if (start_ < 0 || box_.hasSelectedText()) return;
  if (start_ + length_ <= box_.text().size()) box_.setSelection(start_, length_);
}

bool KeptSelection::eventFilter(QObject* watched, QEvent* event) {
  if (watched != &box_) return false;
  if (event->type() == QEvent::FocusOut) {
    // Seen before the box handles the event, so the selection is still there.
    start_ = box_.hasSelectedText() ? box_.selectionStart() : -1;
    length_ = box_.selectedText().size();
  } else if (event->type() == QEvent::FocusIn) {
    Forget();
  }
  return false;
}

}  // namespace renvale::shell

#include "shell/SeriesLineEdit.h"

#include <QLineEdit>

namespace renvale::shell {

QString SeriesLineEdit::Text() const { return box_.text(); }

void SeriesLineEdit::SetText(const QString& text) { box_.setText(text); }

}  // namespace renvale::shell

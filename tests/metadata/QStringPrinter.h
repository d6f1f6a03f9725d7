#pragma once

#include <QString>
#include <ostream>

// Lets GoogleTest show QString values as text in failure messages.
inline void PrintTo(const QString& text, std::ostream* out) {
  *out << '"' << text.toStdString() << '"';
}

#pragma once

#include <QByteArray>
#include <QString>

namespace renvale::platform {

// A name as the file system holds it. Linux names are bytes; Qt's text form
// loses names that are not valid UTF-8, so every operation uses `raw` and
// only the screen uses the display text (invalid bytes as U+FFFD).
struct FileName {
  QByteArray raw;

  QString Display() const { return QString::fromUtf8(raw); }
  static FileName FromDisplay(const QString& text) { return FileName{text.toUtf8()}; }
  bool operator==(const FileName& other) const = default;
};

// Joins a folder (kept with a trailing '/') and a bare name.
inline QByteArray JoinPath(const QByteArray& folder, const QByteArray& name) {
  if (folder.isEmpty() || folder.endsWith('/')) return folder + name;
  return folder + '/' + name;
}

}  // namespace renvale::platform

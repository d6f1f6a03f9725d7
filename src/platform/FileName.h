#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>

namespace renvale::platform {

// A name as the file system holds it. Linux names are bytes, and a name
// written by an old camera or a Windows tool may not be valid UTF-8. Every
// operation uses `raw`; a name becomes text (the list, the new-name box,
// tokens, messages) only through Display(), and text becomes a name only
// through FromDisplay(). The two are exact inverses: each byte that is not
// part of valid UTF-8 becomes a private-use character, which the screen
// shows as a mark and which turns back into that very byte.
struct FileName {
  QByteArray raw;

  QString Display() const { return NameToText(raw); }
  static FileName FromDisplay(QStringView text) { return FileName{TextToName(text)}; }
  static FileName FromDisplay(const QString& text) { return FromDisplay(QStringView(text)); }
  bool operator==(const FileName& other) const = default;

  static QString NameToText(const QByteArray& name);
  // The same added to the end of `text`, for a list of many names that is
  // put together as one text.
  static void AppendNameText(const QByteArray& name, QString* text);
  static QByteArray TextToName(QStringView text);
};

// Joins a folder (kept with a trailing '/') and a bare name.
inline QByteArray JoinPath(const QByteArray& folder, const QByteArray& name) {
  if (folder.isEmpty() || folder.endsWith('/')) return folder + name;
  return folder + '/' + name;
}

}  // namespace renvale::platform

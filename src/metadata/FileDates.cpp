#include "metadata/FileDates.h"

#include "platform/FileSystem.h"

namespace renvale::metadata {
namespace {

constexpr int kSecondsPerHour = 3600;

enum class Which { Created, Modified };

QString FileDateText(platform::FileSystem& fs, const QByteArray& path, Which which) {
  platform::FileInfo info;
  if (fs.Stat(path, &info) != 0) return {};
  return FileTimeText(which == Which::Created ? info.created : info.modified,
                      LocalClockOffsetHours());
}

qint64 DigitsValue(QString text) {
  text.remove(u':');
  text.remove(u' ');
  return text.toLongLong();  // empty or not a number reads as 0
}

}  // namespace

int LocalClockOffsetHours() {
  return QDateTime::currentDateTime().offsetFromUtc() / kSecondsPerHour;
}

QString FileTimeText(const QDateTime& utc, int offsetHours) {
  if (!utc.isValid()) return {};
  const QDateTime shifted = utc.toUTC().addSecs(qint64{offsetHours} * kSecondsPerHour);
  return shifted.toString(QStringLiteral("yyyy:MM:dd HH:mm:ss"));
}

QString FileCreatedText(platform::FileSystem& fs, const QByteArray& path) {
  return FileDateText(fs, path, Which::Created);
}

QString FileModifiedText(platform::FileSystem& fs, const QByteArray& path) {
  return FileDateText(fs, path, Which::Modified);
}

QString OlderDateTimeText(const QString& created, const QString& modified) {
  // An unknown date must not win as "0".
  if (created.isEmpty()) return modified;
  if (modified.isEmpty()) return created;
  return DigitsValue(created) <= DigitsValue(modified) ? created : modified;
}

QString OldestFileDateTime(platform::FileSystem& fs, const QByteArray& path) {
  return OlderDateTimeText(FileCreatedText(fs, path), FileModifiedText(fs, path));
}

}  // namespace renvale::metadata

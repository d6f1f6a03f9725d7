#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

namespace renvale::platform {
class FileSystem;
}

namespace renvale::metadata {

// The whole hours the local clock is ahead of UTC right now (negative west
// of Greenwich; a half-hour zone loses its half hour).
int LocalClockOffsetHours();

// A UTC time moved by `offsetHours` and written "yyyy:mm:dd hh:mm:ss";
// empty for an invalid time.
QString FileTimeText(const QDateTime& utc, int offsetHours);

// A file's creation and last-write times as local "yyyy:mm:dd hh:mm:ss".
// The offset is the one of this moment, not of the file's date, so a file
// written in summer shows the same hour in winter only shifted by today's
// offset; both dates of one file always shift alike. Empty for a file that
// cannot be looked at.
QString FileCreatedText(platform::FileSystem& fs, const QByteArray& path);
QString FileModifiedText(platform::FileSystem& fs, const QByteArray& path);

// The older of two date-time texts compared as fourteen-digit numbers; a
// tie gives `created`, and an empty text loses to the other.
QString OlderDateTimeText(const QString& created, const QString& modified);
// The older of the file's own two dates; empty for a missing file.
QString OldestFileDateTime(platform::FileSystem& fs, const QByteArray& path);

}  // namespace renvale::metadata

#pragma once

#include <QByteArray>
#include <QDate>
#include <QString>
#include <QTime>

namespace renvale::platform {
class FileSystem;
}

namespace renvale::metadata {

// A Canon CRW file carries no EXIF; the camera writes its EXIF into a THM
// file of the same base name beside it. Gives base + ".thm" when `rawName`
// ends in ".crw" (any letter case) and that file exists in `folder` (the
// file system decides whether the letter case of the partner matters);
// otherwise `rawName` unchanged.
QByteArray ThmCompanionName(platform::FileSystem& fs, const QByteArray& folder,
                            const QByteArray& rawName);

// The first `length` bytes of a file (the whole file for a negative length);
// empty when the file is empty or cannot be read.
QByteArray ReadFileHead(platform::FileSystem& fs, const QByteArray& path, qint64 length = -1);

// The date-shaped text in the first 2000 bytes of the file (through the THM
// partner of a CRW file), see ScanDateInHead; empty when there is none.
QString ScanExifDateInHead(platform::FileSystem& fs, const QByteArray& folder,
                           const QByteArray& rawName);

// The exposure date of a file as "yyyy:mm:dd hh:mm:ss": for a video file
// the date its container recorded (see VideoDateReader), then the EXIF
// "DateTimeOriginal" the caller read, else the head scan, else the older of
// the file's own dates. A source whose text is not a real date and time
// (cameras write "0000:00:00 00:00:00" when their clock was never set)
// counts as empty, so an existing file always gets a usable date.
QString ExposureDateTime(platform::FileSystem& fs, const QByteArray& folder,
                         const QByteArray& rawName, const QString& dateTimeOriginal);

// Where ExposureDateTime found a file's date. A photographer renaming by
// date wants to see at once which files fell back to their file times.
enum class DateOrigin { None, VideoContainer, ExifOriginal, FileHead, ThmPartner, Modified, Created };

struct DatedExposure {
  QString when;  // as ExposureDateTime gives it
  DateOrigin origin = DateOrigin::None;
  // `when` as read on the way, both invalid unless it is a real date and
  // time: a batch formats them without reading the text again.
  QDate date;
  QTime time;
};
DatedExposure DatedExposureTime(platform::FileSystem& fs, const QByteArray& folder,
                                const QByteArray& rawName, const QString& dateTimeOriginal);

// "the EXIF DateTimeOriginal", ...; empty for None.
QString DateOriginText(DateOrigin origin);

}  // namespace renvale::metadata

#pragma once

#include <QByteArray>
#include <QString>

#include "metadata/DateSource.h"

namespace renvale::platform {
class FileSystem;
class MessagePort;
class ReadableFolder;
struct FileInfo;
}  // namespace renvale::platform

namespace renvale::metadata {

// The user's "EXIFDate" and "EXIFTime" pictures.
struct ExifDateFormats {
  QString date;
  QString time;
};

// One file of the current folder, and where its messages go.
struct ExifFile {
  platform::FileSystem& fs;
  platform::MessagePort& messages;
  QByteArray folder;
  QByteArray rawName;
};

// The value of an EXIF token of a file name for one file: "%DATE%", "%TIME%"
// and "%DATE TIME%" give the exposure date (see ExposureDateTime) formatted
// by `formats`; "%SERIAL%" gives the camera's "ImageNumber" as it stands,
// possibly empty. Any other text, and a reader error (shown as "EXIF Error:
// " + status), give an empty string.
QString ExifTokenValue(const ExifFile& file, const QString& token, const ExifDateFormats& formats);

// What the insert menu puts into the new name for `form` (1 date, 2 time,
// 3 date and time, 4 serial). In batch mode that is the token, expanded per
// file later; otherwise the value, exactly as ExifTokenValue gives it. Both
// modes read the file: a missing serial number is warned about with the
// message of the mode, and the result is returned all the same. A reader
// error gives an empty string; a form outside 1 to 4 too.
// Every token value of one file from a single read of its EXIF block: what a
// batch needs when a name holds both the date and the time. `ok` is false
// after a reader error (already shown), and every value is then empty.
struct ExifTokenValues {
  bool ok = false;
  bool dated = false;  // date and time hold a real date's texts
  QString date;
  QString time;
  QString serial;
  DateOrigin dateOrigin = DateOrigin::None;
  // Put together only when a name asks for it: most names hold the date
  // and the time apart, if at all.
  QString DateTime() const { return dated ? date + u' ' + time : QString(); }
};
ExifTokenValues ReadExifTokenValues(const ExifFile& file, const ExifDateFormats& formats);
// The same without showing anything: a reader error's text ("EXIF Error: "
// + status) goes to `errorMessage`. `identityKnown`, when given, tells
// whether `identity` got the file as the read opened it.
ExifTokenValues ReadExifTokenValuesQuietly(platform::FileSystem& fs, const QByteArray& folder,
                                           const QByteArray& rawName, const ExifDateFormats& formats,
                                           QString* errorMessage, platform::FileInfo* identity = nullptr,
                                           bool* identityKnown = nullptr);
// The same, opening the file through `held`, the folder held for a batch;
// with no `identity` the file's status is not asked for.
ExifTokenValues ReadExifTokenValuesQuietly(platform::FileSystem& fs, platform::ReadableFolder& held,
                                           const QByteArray& folder, const QByteArray& rawName,
                                           const ExifDateFormats& formats, QString* errorMessage,
                                           platform::FileInfo* identity, bool* identityKnown);

QString ExifInsertValue(const ExifFile& file, int form, bool batchMode,
                        const ExifDateFormats& formats);

}  // namespace renvale::metadata

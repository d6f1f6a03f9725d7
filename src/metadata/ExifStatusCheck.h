#pragma once

#include <QByteArray>
#include <QString>

#include "metadata/ExifReader.h"

namespace renvale::platform {
class MessagePort;
}  // namespace renvale::platform

namespace renvale::metadata {

// True for a reader status that means "this file has no EXIF": one whose
// last ten characters are "not found." in any letter case. Only the ending
// counts, so a status saying the file itself was not found is taken the
// same way (its tags come back empty and the date falls back).
bool IsNoExifStatus(const QString& status);

// Loads `path` into `reader` and checks its status. An empty status or one
// of IsNoExifStatus gives true (read the tags). Any other status is shown as
// "EXIF Error: " + status in an OK box and gives false: the caller returns
// an empty value and tries no fallback date.
bool LoadExifChecked(ExifReader& reader, platform::FileSystem& fs,
                     platform::MessagePort& messages, const QByteArray& path);

// The same without showing anything: the text that would be shown goes to
// `errorMessage` (left alone when there is none), so that a file read on
// another thread can be reported when its turn comes.
bool LoadExifQuietly(ExifReader& reader, platform::FileSystem& fs, const QByteArray& path,
                     QString* errorMessage);
// The same for the file `name` of a folder held for many reads.
bool LoadExifQuietly(ExifReader& reader, platform::ReadableFolder& folder, const QByteArray& name,
                     ExifReader::Identity identity, QString* errorMessage);

}  // namespace renvale::metadata

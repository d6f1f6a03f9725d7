#include "metadata/ExifStatusCheck.h"

#include "metadata/ExifReader.h"
#include "metadata/MetadataTexts.h"
#include "platform/MessagePort.h"

namespace renvale::metadata {

bool IsNoExifStatus(const QString& status) {
  return status.endsWith(texts::kNoExifStatusEnding, Qt::CaseInsensitive);
}

bool LoadExifQuietly(ExifReader& reader, platform::FileSystem& fs, const QByteArray& path,
                     QString* errorMessage) {
  reader.Load(fs, path);
  const QString status = reader.Status();
  if (status.isEmpty() || IsNoExifStatus(status)) return true;
  *errorMessage = texts::kExifErrorPrefix + status;
  return false;
}

bool LoadExifChecked(ExifReader& reader, platform::FileSystem& fs,
                     platform::MessagePort& messages, const QByteArray& path) {
  QString errorMessage;
  if (LoadExifQuietly(reader, fs, path, &errorMessage)) return true;
  messages.Notify(errorMessage);
  return false;
}

}  // namespace renvale::metadata

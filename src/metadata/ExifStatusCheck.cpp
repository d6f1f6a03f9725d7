#include "metadata/ExifStatusCheck.h"

#include "metadata/ExifReader.h"
#include "metadata/MetadataTexts.h"
#include "platform/MessagePort.h"

namespace renvale::metadata {

bool IsNoExifStatus(const QString& status) {
  return status.endsWith(texts::kNoExifStatusEnding, Qt::CaseInsensitive);
}

namespace {

bool StatusAllowsTags(const ExifReader& reader, QString* errorMessage) {
  const QString status = reader.Status();
  if (status.isEmpty() || IsNoExifStatus(status)) return true;
  *errorMessage = texts::kExifErrorPrefix + status;
  return false;
}

}  // namespace

bool LoadExifQuietly(ExifReader& reader, platform::FileSystem& fs, const QByteArray& path,
                     QString* errorMessage) {
  reader.Load(fs, path);
  return StatusAllowsTags(reader, errorMessage);
}

bool LoadExifQuietly(ExifReader& reader, platform::ReadableFolder& folder, const QByteArray& name,
                     ExifReader::Identity identity, QString* errorMessage) {
  reader.Load(folder, name, identity);
  return StatusAllowsTags(reader, errorMessage);
}

bool LoadExifChecked(ExifReader& reader, platform::FileSystem& fs,
                     platform::MessagePort& messages, const QByteArray& path) {
  QString errorMessage;
  if (LoadExifQuietly(reader, fs, path, &errorMessage)) return true;
  messages.Notify(errorMessage);
  return false;
}

}  // namespace renvale::metadata

#include "metadata/ExifStatusCheck.h"

#include "metadata/ExifReader.h"
#include "metadata/MetadataTexts.h"
#include "platform/MessagePort.h"

namespace renvale::metadata {

bool IsNoExifStatus(const QString& status) {
  return status.endsWith(texts::kNoExifStatusEnding, Qt::CaseInsensitive);
}

bool LoadExifChecked(ExifReader& reader, platform::FileSystem& fs,
                     platform::MessagePort& messages, const QByteArray& path) {
  reader.Load(fs, path);
  const QString status = reader.Status();
  if (status.isEmpty() || IsNoExifStatus(status)) return true;
  messages.Notify(texts::kExifErrorPrefix + status);
  return false;
}

}  // namespace renvale::metadata

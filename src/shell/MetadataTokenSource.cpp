#include "shell/MetadataTokenSource.h"

#include "core/TokenExpansion.h"
#include "metadata/ExifValues.h"
#include "metadata/mdlID3.h"
#include "platform/FileName.h"

namespace renvale::shell {

QString MetadataTokenSource::ExifValue(const QByteArray& folder, const platform::FileName& file, core::Token token) {
  const QByteArray path = platform::JoinPath(folder, file.raw);
  if (path != cachedPath_) {
    cachedPath_ = path;
    cachedValues_.clear();
  }
  const int key = static_cast<int>(token);
  const auto found = cachedValues_.constFind(key);
  if (found != cachedValues_.constEnd()) return *found;
  const metadata::ExifFile exifFile{fs_, messages_, folder, file.raw};
  const QString value = metadata::ExifTokenValue(exifFile, core::TokenUpper(token),
                                                 {settings_.exifDate, settings_.exifTime});
  cachedValues_.insert(key, value);
  return value;
}

core::Id3Values MetadataTokenSource::Id3(const QByteArray& folder, const platform::FileName& file) {
  const metadata::Id3Values values = metadata::LoadId3Values(fs_, platform::JoinPath(folder, file.raw));
  return {values.title, values.artist, values.album, values.track};
}

}  // namespace renvale::shell

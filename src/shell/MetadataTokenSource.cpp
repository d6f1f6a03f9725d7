#include "shell/MetadataTokenSource.h"

#include "core/TokenExpansion.h"
#include "metadata/mdlID3.h"
#include "platform/FileName.h"

namespace renvale::shell {

QString MetadataTokenSource::ExifValue(const QByteArray& folder, const platform::FileName& file, core::Token token) {
  const QByteArray path = platform::JoinPath(folder, file.raw);
  if (path != cachedPath_) {
    cachedPath_ = path;
    cached_ = metadata::ReadExifTokenValues({fs_, messages_, folder, file.raw},
                                            {settings_.exifDate, settings_.exifTime});
  }
  switch (token) {
    case core::Token::Date: return cached_.date;
    case core::Token::Time: return cached_.time;
    case core::Token::DateTime: return cached_.dateTime;
    case core::Token::Serial: return cached_.serial;
    default: return {};
  }
}

core::Id3Values MetadataTokenSource::Id3(const QByteArray& folder, const platform::FileName& file) {
  const metadata::Id3Values values = metadata::LoadId3Values(fs_, platform::JoinPath(folder, file.raw));
  return {values.title, values.artist, values.album, values.track};
}

}  // namespace renvale::shell

#pragma once


#include "core/SettingsRecord.h"
#include "core/TokenSource.h"
#include "metadata/ExifValues.h"

namespace renvale::platform {
class FileSystem;
class MessagePort;
}  // namespace renvale::platform

namespace renvale::shell {

// The renames' file values, read with the EXIF and ID3 readers. A batch asks
// for several tokens of one file in a row, so each file's EXIF block is read
// once and its values kept until another file is asked about.
class MetadataTokenSource : public core::TokenSource {
 public:
  MetadataTokenSource(platform::FileSystem& fs, platform::MessagePort& messages,
                      const core::SettingsRecord& settings)
      : fs_(fs), messages_(messages), settings_(settings) {}

  QString ExifValue(const QByteArray& folder, const platform::FileName& file, core::Token token) override;
  core::Id3Values Id3(const QByteArray& folder, const platform::FileName& file) override;

 private:
  platform::FileSystem& fs_;
  platform::MessagePort& messages_;
  const core::SettingsRecord& settings_;
  QByteArray cachedPath_;
  metadata::ExifTokenValues cached_;
};

}  // namespace renvale::shell

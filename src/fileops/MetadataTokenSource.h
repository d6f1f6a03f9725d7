#pragma once


#include "core/SettingsRecord.h"
#include "core/TokenSource.h"
#include "metadata/ExifReadAhead.h"
#include "metadata/ExifValues.h"

#include <memory>
#include <vector>

namespace renvale::platform {
class FileSystem;
class MessagePort;
}  // namespace renvale::platform

namespace renvale::fileops {

// The renames' file values, read with the EXIF and ID3 readers. A batch asks
// for several tokens of one file in a row, so each file's EXIF block is read
// once and its values kept until another file is asked about. When the file
// system allows it, a batch's files are read ahead on a second thread.
class MetadataTokenSource : public core::TokenSource {
 public:
  MetadataTokenSource(platform::FileSystem& fs, platform::MessagePort& messages,
                      const core::SettingsRecord& settings)
      : fs_(fs), messages_(messages), settings_(settings) {}

  QString ExifValue(const QByteArray& folder, const platform::FileName& file, core::Token token) override;
  core::Id3Values Id3(const QByteArray& folder, const platform::FileName& file) override;
  void ExpectExifValues(const QByteArray& folder, const std::vector<platform::FileName>& files,
                        bool identities) override;
  void FileReplaced() override;
  bool ValuesAtHand(const QByteArray& folder, const platform::FileName& file) override;
  bool TakeReadIdentity(const QByteArray& folder, const platform::FileName& file, core::FileIdentity* identity) override;
  void CollectMessages(QStringList* sink) override { sink_ = sink; }
  QString DateSourceText(const QByteArray& folder, const platform::FileName& file) override;
  // Stops the reading ahead of files no one will ask about now.
  void StopReadingAhead();

 private:
  const metadata::ExifTokenValues& Values(const QByteArray& folder, const platform::FileName& file);
  void Show(const QString& message);
  metadata::ExifTokenValues ReadValues(const QByteArray& folder, const platform::FileName& file);
  metadata::ExifDateFormats Formats() const { return {settings_.exifDate, settings_.exifTime}; }

  platform::FileSystem& fs_;
  platform::MessagePort& messages_;
  const core::SettingsRecord& settings_;
  // The file whose values are kept.
  bool cachedKnown_ = false;
  QByteArray cachedFolder_;
  QByteArray cachedName_;
  metadata::ExifTokenValues cached_;
  std::unique_ptr<metadata::ExifReadAhead> readAhead_;
  // The identity the last read of this batch found (of the kept file's),
  // until handed out.
  bool identityFresh_ = false;
  core::FileIdentity identity_;
  QByteArray readAheadFolder_;
  bool readAheadTaken_ = false;  // a value was asked of it: it no longer reads "from now"

  QStringList* sink_ = nullptr;
};

}  // namespace renvale::fileops

#include "metadata/ExifReader.h"

#include <memory>

#include "metadata/ExifBlockLocator.h"
#include "metadata/ExifTexts.h"
#include "metadata/ExifValueText.h"
#include "metadata/FileByteSource.h"
#include "metadata/MemoryByteSource.h"
#include "metadata/TiffIfdWalker.h"
#include "platform/ErrorNumbers.h"
#include "platform/FileSystem.h"

namespace renvale::metadata {

void ExifReader::Reset() {
  tags_.Clear();
  status_.clear();
  opened_ = false;
}

void ExifReader::Load(platform::FileSystem& fs, const QByteArray& path) {
  Reset();
  std::unique_ptr<platform::ReadableFile> file;
  const int error = fs.OpenForRead(path, &file);
  LoadOpened(error, file.get());
}

void ExifReader::Load(platform::ReadableFolder& folder, const QByteArray& name, Identity identity) {
  Reset();
  std::unique_ptr<platform::ReadableFile> file;
  const int error = identity == Identity::Wanted ? folder.OpenForRead(name, &file) : folder.OpenContents(name, &file);
  LoadOpened(error, file.get());
}

void ExifReader::LoadOpened(int error, platform::ReadableFile* file) {
  if (error == platform::kNoContents) {
    status_ = QString::fromLatin1(ExifTexts::kNoExif);
    return;
  }
  if (error != platform::kNoError || file == nullptr) {
    SetSystemError(ExifTexts::kCannotOpen, error);
    return;
  }
  opened_ = file->Identity(&identity_);
  FileByteSource source(*file);
  LoadFrom(source);
}

void ExifReader::LoadBytes(const char* data, qint64 size) {
  Reset();
  MemoryByteSource source(data, size);
  LoadFrom(source);
}

void ExifReader::LoadFrom(ByteSource& source) {
  ExifLocation location;
  const bool found = !source.IoFailed() && ExifBlockLocator::Locate(source, &location);
  for (int i = 0; i < location.count && status_.isEmpty(); ++i) {
    const ExifBlock& block = location.blocks[i];
    const auto result = TiffIfdWalker::Walk(ByteReader(source, block.offset, block.length), block.first, &tags_);
    // Only the first block decides: CR3's separate Exif IFD block may be
    // damaged while IFD0 is fine, like a bad Exif IFD pointer elsewhere.
    if (i == 0 && result == TiffIfdWalker::Result::BadHeader) status_ = QString::fromLatin1(ExifTexts::kDamagedHeader);
    if (i == 0 && result == TiffIfdWalker::Result::BadFirstIfd) status_ = QString::fromLatin1(ExifTexts::kDamagedIfd0);
  }
  // Opened for its contents alone, a pipe or the like says so at its first
  // read: it has no EXIF, as when its opening tells.
  if (source.IoFailed() && source.IoError() != platform::kNoContents) {
    tags_.Clear();
    SetSystemError(ExifTexts::kCannotRead, source.IoError());
  } else if (!found) {
    status_ = QString::fromLatin1(ExifTexts::kNoExif);
  }
}

// The system's text carries no full stop, so this status can never end in
// "not found." and be taken for a file without EXIF.
void ExifReader::SetSystemError(const char* text, int errorNumber) {
  QString description = platform::ErrorDescription(errorNumber);
  if (description.isEmpty()) description = QStringLiteral("error %1").arg(errorNumber);
  while (description.endsWith(QLatin1Char('.'))) description.chop(1);
  status_ = QString::fromLatin1(text) + description;
}

QString ExifReader::Tag(const QString& name) const {
  ExifTag tag;
  return ExifTagTable::FromName(name, &tag) ? Tag(tag) : QString();
}

QString ExifReader::Tag(ExifTag tag) const {
  const ExifRawValue* value = tags_.Get(tag);
  return value == nullptr ? QString() : ExifValueText::Format(tag, *value);
}

QString ExifReader::Status() const { return status_; }

}  // namespace renvale::metadata

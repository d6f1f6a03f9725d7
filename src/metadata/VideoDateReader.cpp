#include "metadata/VideoDateReader.h"

#include <memory>

#include "metadata/AviDateReader.h"
#include "metadata/ByteReader.h"
#include "metadata/FileByteSource.h"
#include "metadata/QuickTimeDateReader.h"
#include "platform/FileSystem.h"

namespace renvale::metadata {

bool VideoDateReader::IsVideoName(const QByteArray& name) {
  static const char* const kExtensions[] = {".mp4", ".mov", ".m4v", ".3gp", ".3g2", ".avi"};
  // Asked for every file of a batch: no lower-case copy of the name.
  constexpr qsizetype kLength = 4;
  if (name.size() < kLength) return false;
  const char* tail = name.constData() + name.size() - kLength;
  if (tail[0] != '.') return false;
  for (const char* extension : kExtensions) {
    if (qstrnicmp(tail, extension, kLength) == 0) return true;
  }
  return false;
}

QString VideoDateReader::Read(ByteSource& source) {
  ByteReader file(source, 0, source.Size());
  if (file.Matches(0, "RIFF", 4)) return AviDateReader::Read(file);
  return QuickTimeDateReader::Read(file);
}

QString VideoDateReader::ReadFile(platform::FileSystem& fs, const QByteArray& path) {
  std::unique_ptr<platform::ReadableFile> file;
  if (fs.OpenForRead(path, &file) != 0 || !file) return {};
  FileByteSource source(*file);
  if (source.IoFailed()) return {};
  const QString date = Read(source);
  return source.IoFailed() ? QString() : date;
}

}  // namespace renvale::metadata

#pragma once

#include <QByteArray>

#include "metadata/ByteSource.h"

namespace renvale::platform {
class ReadableFile;
}

namespace renvale::metadata {

// A ByteSource over an open file. The head of the file is read in one go,
// because that is where almost every EXIF block lives; anything further
// (the directories of a TIFF-based raw, a RAF's embedded JPEG) is fetched
// through a small window, so a raw file is never read whole.
class FileByteSource : public ByteSource {
 public:
  static constexpr qint64 kHeadSize = 64 * 1024;
  static constexpr qint64 kWindowSize = 8 * 1024;

  explicit FileByteSource(platform::ReadableFile& file);
  qint64 Size() const override { return size_; }
  bool Read(qint64 offset, char* out, qint64 length) override;
  bool IoFailed() const override { return ioError_ != 0; }
  int IoError() const override { return ioError_; }

 private:
  bool Fill(QByteArray* buffer, qint64 offset, qint64 length);

  platform::ReadableFile& file_;
  qint64 size_ = 0;
  int ioError_ = 0;
  QByteArray head_;
  QByteArray window_;
  qint64 windowStart_ = -1;
};

}  // namespace renvale::metadata

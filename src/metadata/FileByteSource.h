#pragma once

#include <QByteArray>

#include "metadata/ByteSource.h"

namespace renvale::platform {
class ReadableFile;
}

namespace renvale::metadata {

// A ByteSource over an open file. The head of the file is read in one go,
// because that is where almost every EXIF directory lives; anything further
// (the directories of a TIFF-based raw, a RAF's embedded JPEG) is fetched
// through a small window, so a raw file is never read whole.
class FileByteSource : public ByteSource {
 public:
  // Enough for the EXIF directories of nearly every picture; copying more
  // from the page cache would cost time on every big file.
  static constexpr qint64 kHeadSize = 16 * 1024;
  static constexpr qint64 kWindowSize = 8 * 1024;

  explicit FileByteSource(platform::ReadableFile& file);
  qint64 Size() const override { return size_; }
  bool Read(qint64 offset, char* out, qint64 length) override;
  qint64 Direct(qint64 offset, const char** data) const override;
  bool IoFailed() const override { return ioError_ != 0; }
  int IoError() const override { return ioError_; }

 private:
  bool Fill(char* buffer, qint64 offset, qint64 length);

  platform::ReadableFile& file_;
  qint64 size_ = 0;
  int ioError_ = 0;
  // Lives where the source lives (on the stack of a load): no allocation
  // for the common case of a file whose EXIF is in its head.
  char head_[kHeadSize];
  qint64 headSize_ = 0;
  QByteArray window_;
  qint64 windowStart_ = -1;
};

}  // namespace renvale::metadata

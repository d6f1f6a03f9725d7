#pragma once

#include "platform/FileSystem.h"
#include "platform/UniqueFd.h"

namespace renvale::platform {

// A file opened for reading; every read names its offset (pread), so readers
// of tags and file heads never share a file position.
class PosixReadableFile : public ReadableFile {
 public:
  PosixReadableFile(UniqueFd fd, qint64 size) : fd_(std::move(fd)), size_(size) {}

  qint64 Size() const override { return size_; }
  qint64 ReadAt(qint64 offset, char* buffer, qint64 length) override;

 private:
  UniqueFd fd_;
  qint64 size_;
};

}  // namespace renvale::platform

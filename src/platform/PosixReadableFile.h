#pragma once

#include "platform/FileSystem.h"
#include "platform/UniqueFd.h"

namespace renvale::platform {

// A file opened for reading; every read names its offset (pread), so readers
// of tags and file heads never share a file position.
//
// The size is asked of the system only when a caller wants it: a reader
// that reads a small file's head learns its end from the short read, and
// one system call fewer per file shows in a batch over thousands.
class PosixReadableFile : public ReadableFile {
 public:
  explicit PosixReadableFile(UniqueFd fd) : fd_(std::move(fd)) {}

  qint64 Size() const override;
  qint64 ReadAt(qint64 offset, char* buffer, qint64 length) override;

 private:
  static constexpr qint64 kUnknown = -2;

  UniqueFd fd_;
  mutable qint64 size_ = kUnknown;
};

}  // namespace renvale::platform

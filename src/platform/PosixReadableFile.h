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
  // A file opened without its status may turn out to be no regular file:
  // its reads or its size then fail with ENODEV.
  explicit PosixReadableFile(UniqueFd fd) : fd_(std::move(fd)) {}
  // A file whose opening has asked its status already: the size is known
  // and the file tells who it is without another call.
  PosixReadableFile(UniqueFd fd, const FileInfo& identity)
      : fd_(std::move(fd)), size_(identity.size), identity_(identity), identityKnown_(true) {}

  qint64 Size() const override;
  qint64 ReadAt(qint64 offset, char* buffer, qint64 length) override;
  bool Identity(FileInfo* info) const override;

 private:
  static constexpr qint64 kUnknown = -2;

  UniqueFd fd_;
  mutable qint64 size_ = kUnknown;
  FileInfo identity_;
  bool identityKnown_ = false;
};

}  // namespace renvale::platform

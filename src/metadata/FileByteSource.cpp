#include "metadata/FileByteSource.h"

#include <cerrno>
#include <cstring>

#include "platform/ErrorNumbers.h"
#include "platform/FileSystem.h"

namespace renvale::metadata {

FileByteSource::FileByteSource(platform::ReadableFile& file) : file_(file) {
  size_ = file_.Size();
  if (size_ < 0) {
    size_ = 0;
    ioError_ = platform::kErrnoBase + EIO;
    return;
  }
  Fill(&head_, 0, qMin(size_, kHeadSize));
}

// Reads exactly `length` bytes at `offset`; a short read means the file
// changed under us and counts as an I/O failure like an error return.
bool FileByteSource::Fill(QByteArray* buffer, qint64 offset, qint64 length) {
  buffer->resize(length);
  qint64 done = 0;
  while (done < length) {
    const qint64 got = file_.ReadAt(offset + done, buffer->data() + done, length - done);
    if (got <= 0) {
      ioError_ = platform::ErrorNumberFromErrno(got < 0 && errno != 0 ? errno : EIO);
      buffer->clear();
      return false;
    }
    done += got;
  }
  return true;
}

bool FileByteSource::Read(qint64 offset, char* out, qint64 length) {
  if (!InRange(offset, length, size_)) return false;
  if (length == 0) return true;
  if (InRange(offset, length, head_.size())) {
    std::memcpy(out, head_.constData() + offset, size_t(length));
    return true;
  }
  const bool inWindow = windowStart_ >= 0 && offset >= windowStart_ &&
                        InRange(offset - windowStart_, length, window_.size());
  if (!inWindow) {
    windowStart_ = -1;
    if (!Fill(&window_, offset, qMax(length, qMin(kWindowSize, size_ - offset)))) return false;
    windowStart_ = offset;
  }
  std::memcpy(out, window_.constData() + (offset - windowStart_), size_t(length));
  return true;
}

}  // namespace renvale::metadata

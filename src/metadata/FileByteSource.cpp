#include "metadata/FileByteSource.h"

#include <cerrno>
#include <cstring>

#include "platform/ErrorNumbers.h"
#include "platform/FileSystem.h"

namespace renvale::metadata {

// A read gives all that was asked unless the file ends first, so a head
// shorter than asked for is the whole file: small pictures never need their
// size asked of the system.
FileByteSource::FileByteSource(platform::ReadableFile& file) : file_(file) {
  errno = 0;
  const qint64 got = file_.ReadAt(0, head_, kHeadSize);
  if (got < 0) {
    ioError_ = platform::ErrorNumberFromErrno(errno != 0 ? errno : EIO);
    return;
  }
  errno = 0;
  size_ = got < kHeadSize ? got : file_.Size();
  if (size_ < got) {  // no size, no regular file, or the file shrank under us
    size_ = 0;
    ioError_ = errno == ENODEV ? platform::kNoContents : platform::kErrnoBase + EIO;
    return;
  }
  headSize_ = got;
}

// Reads exactly `length` bytes at `offset`; a short read means the file
// changed under us and counts as an I/O failure like an error return.
bool FileByteSource::Fill(char* buffer, qint64 offset, qint64 length) {
  qint64 done = 0;
  while (done < length) {
    const qint64 got = file_.ReadAt(offset + done, buffer + done, length - done);
    if (got <= 0) {
      ioError_ = platform::ErrorNumberFromErrno(got < 0 && errno != 0 ? errno : EIO);
      return false;
    }
    done += got;
  }
  return true;
}

bool FileByteSource::Read(qint64 offset, char* out, qint64 length) {
  if (!InRange(offset, length, size_)) return false;
  if (length == 0) return true;
  if (InRange(offset, length, headSize_)) {
    std::memcpy(out, head_ + offset, size_t(length));
    return true;
  }
  const bool inWindow = windowStart_ >= 0 && offset >= windowStart_ &&
                        InRange(offset - windowStart_, length, window_.size());
  if (!inWindow) {
    windowStart_ = -1;
    window_.resize(qMax(length, qMin(kWindowSize, size_ - offset)));
    if (!Fill(window_.data(), offset, window_.size())) return false;
    windowStart_ = offset;
  }
  std::memcpy(out, window_.constData() + (offset - windowStart_), size_t(length));
  return true;
}

qint64 FileByteSource::Direct(qint64 offset, const char** data) const {
  if (offset < 0 || offset > headSize_) {
    *data = nullptr;
    return 0;
  }
  *data = head_ + offset;
  return headSize_ - offset;
}

}  // namespace renvale::metadata

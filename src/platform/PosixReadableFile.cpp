#include "platform/PosixReadableFile.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace renvale::platform {

qint64 PosixReadableFile::Size() const {
  if (size_ == kUnknown) {
    struct stat st;
    size_ = ::fstat(fd_.get(), &st) == 0 ? static_cast<qint64>(st.st_size) : -1;
    // Opened without its status, a device is found out here: its head
    // reads full, so its reader asks for the size.
    if (size_ >= 0 && !S_ISREG(st.st_mode)) {
      size_ = -1;
      errno = ENODEV;
    }
  }
  return size_;
}

bool PosixReadableFile::Identity(FileInfo* info) const {
  if (identityKnown_) *info = identity_;
  return identityKnown_;
}

qint64 PosixReadableFile::ReadAt(qint64 offset, char* buffer, qint64 length) {
  if (offset < 0 || length < 0) return -1;
  // Once the size is taken, a file that grew since is not read past it, so
  // callers can trust Size() as the end.
  if (size_ >= 0) {
    if (offset >= size_) return 0;
    if (length > size_ - offset) length = size_ - offset;
  }
  qint64 done = 0;
  while (done < length) {
    const ssize_t n = ::pread(fd_.get(), buffer + done, static_cast<size_t>(length - done),
                              static_cast<off_t>(offset + done));
    if (n < 0) {
      if (errno == EINTR) continue;
      // A file opened without asking its status may be a pipe or the like.
      if (errno == ESPIPE) errno = ENODEV;
      return -1;
    }
    if (n == 0) break;  // the end, or the file shrank under us
    done += n;
    // A file gives less than asked only at its end; asking again would
    // cost a second call per small file just to hear so.
    if (n < static_cast<ssize_t>(length - (done - n))) break;
  }
  return done;
}

}  // namespace renvale::platform

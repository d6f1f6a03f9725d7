#include "platform/PosixReadableFile.h"

#include <unistd.h>

#include <cerrno>

namespace renvale::platform {

qint64 PosixReadableFile::ReadAt(qint64 offset, char* buffer, qint64 length) {
  if (offset < 0 || length < 0) return -1;
  // The size was taken at open; a file that grew since is not read past it,
  // so callers can trust Size() as the end.
  if (offset >= size_) return 0;
  if (length > size_ - offset) length = size_ - offset;
  qint64 done = 0;
  while (done < length) {
    const ssize_t n = ::pread(fd_.get(), buffer + done, static_cast<size_t>(length - done),
                              static_cast<off_t>(offset + done));
    if (n < 0) {
      if (errno == EINTR) continue;
      return -1;
    }
    if (n == 0) break;  // the file shrank under us
    done += n;
  }
  return done;
}

}  // namespace renvale::platform

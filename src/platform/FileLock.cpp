#include "platform/FileLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

namespace renvale::platform {

namespace {

// -1 when the file cannot be opened or the lock is taken.
int OpenLocked(const QByteArray& path) {
  const int fd = ::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW);
  if (fd < 0) return -1;
  if (::flock(fd, LOCK_EX | LOCK_NB) == 0) return fd;
  ::close(fd);
  return -1;
}

}  // namespace

FileLock::~FileLock() { Release(); }

bool FileLock::Acquire(const QByteArray& path) {
  Release();
  fd_ = OpenLocked(path);
  return fd_ >= 0;
}

void FileLock::Release() {
  if (fd_ >= 0) ::close(fd_);
  fd_ = -1;
}

bool FileLock::HeldElsewhere(const QByteArray& path) {
  const int fd = ::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW);
  if (fd < 0) return false;
  const bool held = ::flock(fd, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
  ::close(fd);
  return held;
}

}  // namespace renvale::platform

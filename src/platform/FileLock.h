#pragma once

#include <QByteArray>

namespace renvale::platform {

// An advisory lock on a file for as long as this object holds it. The lock
// belongs to the open file, so it ends with the object, and with the
// process if that is killed: a plan is never left locked by a program that
// is gone.
class FileLock {
 public:
  FileLock() = default;
  ~FileLock();
  FileLock(const FileLock&) = delete;
  FileLock& operator=(const FileLock&) = delete;

  // Takes the lock on `path` if nobody holds it; false otherwise, or when
  // the file cannot be opened (a file that is not on the disk locks nothing).
  bool Acquire(const QByteArray& path);
  void Release();

  // True when an open file, in this program or another, holds the lock on
  // `path` now.
  static bool HeldElsewhere(const QByteArray& path);

 private:
  int fd_ = -1;
};

}  // namespace renvale::platform

#include "platform/PosixOpen.h"

#include <fcntl.h>

#include <atomic>
#include <cerrno>

#include "platform/ErrorNumbers.h"
#include "platform/PosixReadableFile.h"

namespace renvale::platform {

static_assert(kNoContents == kErrnoBase + ENODEV);

namespace {

// Reading a picture for its date is not the person opening it: the access
// time their tools show stays as it was, and a card is spared a directory
// write for every file a batch reads. Only the file's owner may ask for
// that; once a file says no, the rest of the run opens files plainly
// rather than asking twice for each.
std::atomic<bool> keepAccessTimes{true};

UniqueFd OpenLeavingAccessTime(int dirFd, const QByteArray& path, int flags) {
  if (keepAccessTimes.load(std::memory_order_relaxed)) {
    UniqueFd opened(::openat(dirFd, path.constData(), flags | O_NOATIME));
    if (opened.valid() || errno != EPERM) return opened;
    keepAccessTimes.store(false, std::memory_order_relaxed);
  }
  return UniqueFd(::openat(dirFd, path.constData(), flags));
}

// Never waits: open() on a named pipe waits for a writer that may never
// come, and a socket has no contents to read. The file stays in
// non-blocking mode: Linux ignores that flag for a regular file's reads
// (open(2)), and clearing it would cost two calls on every file a batch reads.
int OpenForReading(int dirFd, const QByteArray& path, UniqueFd* fd) {
  *fd = OpenLeavingAccessTime(dirFd, path, O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
  if (fd->valid()) return kNoError;
  return errno == ENXIO ? kNoContents : ErrorNumberFromErrno(errno);
}

}  // namespace

// A device has no contents to read either.
int OpenRegularFileAt(int dirFd, const QByteArray& path, UniqueFd* fd, struct stat* st) {
  UniqueFd opened;
  if (const int err = OpenForReading(dirFd, path, &opened); err != kNoError) return err;
  if (::fstat(opened.get(), st) != 0) return ErrorNumberFromErrno(errno);
  if (S_ISDIR(st->st_mode)) return ErrorNumberFromErrno(EISDIR);
  if (!S_ISREG(st->st_mode)) return kNoContents;
  *fd = std::move(opened);
  return kNoError;
}

int OpenReadableFileAt(int dirFd, const QByteArray& path, std::unique_ptr<ReadableFile>* file) {
  file->reset();
  UniqueFd fd;
  struct stat st;
  if (const int err = OpenRegularFileAt(dirFd, path, &fd, &st); err != kNoError) return err;
  FileInfo identity;
  FillIdentity(st, &identity);
  *file = std::make_unique<PosixReadableFile>(std::move(fd), identity);
  return kNoError;
}

int OpenContentsAt(int dirFd, const QByteArray& path, std::unique_ptr<ReadableFile>* file) {
  file->reset();
  UniqueFd fd;
  if (const int err = OpenForReading(dirFd, path, &fd); err != kNoError) return err;
  *file = std::make_unique<PosixReadableFile>(std::move(fd));
  return kNoError;
}

void FillIdentity(const struct stat& st, FileInfo* info) {
  info->isDir = S_ISDIR(st.st_mode);
  info->size = st.st_size;
  info->modifiedNs = static_cast<qint64>(st.st_mtim.tv_sec) * 1000000000 + st.st_mtim.tv_nsec;
  info->device = st.st_dev;
  info->inode = st.st_ino;
}

}  // namespace renvale::platform

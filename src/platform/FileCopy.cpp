#include "platform/FileCopy.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <vector>

#include "platform/ErrorNumbers.h"
#include "platform/PathParts.h"
#include "platform/UniqueFd.h"

namespace renvale::platform {

namespace {

constexpr size_t kRangeChunk = size_t{1} << 30;
constexpr size_t kBufferSize = size_t{256} << 10;

std::atomic<bool> readWriteForced{false};

// copy_file_range refuses some pairings (across file systems, special files);
// the plain loop takes over from wherever it stopped.
bool RangeCopyUnavailable(int err) {
  return err == EXDEV || err == ENOSYS || err == EINVAL || err == EOPNOTSUPP || err == EBADF ||
         err == ETXTBSY;
}

int WriteAll(int fd, const char* data, size_t length) {
  while (length > 0) {
    const ssize_t n = ::write(fd, data, length);
    if (n < 0) {
      if (errno == EINTR) continue;
      return errno;
    }
    data += n;
    length -= static_cast<size_t>(n);
  }
  return 0;
}

int CopyByReadWrite(int in, int out) {
  std::vector<char> buffer(kBufferSize);
  for (;;) {
    const ssize_t n = ::read(in, buffer.data(), buffer.size());
    if (n < 0) {
      if (errno == EINTR) continue;
      return errno;
    }
    if (n == 0) return 0;
    if (const int err = WriteAll(out, buffer.data(), static_cast<size_t>(n))) return err;
  }
}

int CopyContents(int in, int out) {
  while (!readWriteForced.load(std::memory_order_relaxed)) {
    const ssize_t n = ::copy_file_range(in, nullptr, out, nullptr, kRangeChunk, 0);
    if (n > 0) continue;
    // 0 is the end for regular files, but some special files report 0 too;
    // the read loop confirms the end either way.
    if (n == 0) break;
    if (errno == EINTR) continue;
    if (!RangeCopyUnavailable(errno)) return errno;
    break;
  }
  return CopyByReadWrite(in, out);
}

int FinishTarget(int out, const struct stat& source, bool flush) {
  if (::fchmod(out, source.st_mode & 0777) != 0) return errno;
  const struct timespec times[2] = {source.st_atim, source.st_mtim};
  if (::futimens(out, times) != 0) return errno;
  if (flush && ::fsync(out) != 0) return errno;
  return 0;
}

bool SameFile(const struct stat& a, const struct stat& b) {
  return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

// Refuses a target that is a folder or the source itself, which replacing
// would destroy.
int CheckReplacedTarget(const QByteArray& to, const struct stat& source) {
  struct stat target;
  if (::stat(to.constData(), &target) != 0) return 0;
  if (S_ISDIR(target.st_mode)) return EISDIR;
  if (SameFile(target, source)) return EINVAL;
  return 0;
}

UniqueFd CreateTarget(const QByteArray& to, bool replace, QByteArray* writtenPath) {
  if (!replace) {
    *writtenPath = to;
    return UniqueFd(::open(to.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
  }
  QByteArray pattern = ParentFolder(to) + ".renvale-copy-XXXXXX";
  UniqueFd fd(::mkostemp(pattern.data(), O_CLOEXEC));
  *writtenPath = pattern;
  return fd;
}

int WriteTarget(int in, UniqueFd out, const struct stat& source, bool flush = true) {
  int err = CopyContents(in, out.get());
  if (err == 0) err = FinishTarget(out.get(), source, flush);
  if (::close(out.Release()) != 0 && err == 0) err = errno;
  return err;
}

int OpenSource(const QByteArray& from, UniqueFd* in, struct stat* source) {
  *in = UniqueFd(::open(from.constData(), O_RDONLY | O_CLOEXEC));
  if (!in->valid()) return ErrorNumberFromErrno(errno, ErrnoContext::File);
  if (::fstat(in->get(), source) != 0) return ErrorNumberFromErrno(errno);
  if (S_ISDIR(source->st_mode)) return ErrorNumberFromErrno(EISDIR);
  return kNoError;
}

}  // namespace

int CopyToHiddenTemporary(const QByteArray& from, const QByteArray& folder, QByteArray* temporary) {
  temporary->clear();
  UniqueFd in;
  struct stat source;
  if (const int err = OpenSource(from, &in, &source)) return err;
  QByteArray pattern = folder;
  if (!pattern.endsWith('/')) pattern += '/';
  pattern += kTransferTemporaryPrefix;
  pattern += "XXXXXX";
  UniqueFd out(::mkostemp(pattern.data(), O_CLOEXEC));
  if (!out.valid()) return ErrorNumberFromErrno(errno, ErrnoContext::Folder);
  if (const int err = WriteTarget(in.get(), std::move(out), source, false)) {
    ::unlink(pattern.constData());
    return ErrorNumberFromErrno(err, ErrnoContext::Folder);
  }
  *temporary = pattern;
  return kNoError;
}

int CopyFileKeepingTimes(const QByteArray& from, const QByteArray& to, bool replace) {
  UniqueFd in;
  struct stat source;
  if (const int err = OpenSource(from, &in, &source)) return err;
  if (replace) {
    if (const int err = CheckReplacedTarget(to, source)) return ErrorNumberFromErrno(err);
  }
  QByteArray writtenPath;
  UniqueFd out = CreateTarget(to, replace, &writtenPath);
  // The source opened, so a missing piece now is the target's folder.
  if (!out.valid()) return ErrorNumberFromErrno(errno, ErrnoContext::Folder);
  int err = WriteTarget(in.get(), std::move(out), source);
  if (err == 0 && replace && ::rename(writtenPath.constData(), to.constData()) != 0) err = errno;
  if (err == 0) return kNoError;
  ::unlink(writtenPath.constData());
  return ErrorNumberFromErrno(err, ErrnoContext::Folder);
}

void ForceReadWriteCopy(bool force) { readWriteForced.store(force, std::memory_order_relaxed); }

}  // namespace renvale::platform

#include "platform/NoReplaceRename.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdio>

#include "platform/ErrorNumbers.h"
#include "platform/FileName.h"
#include "platform/PathParts.h"

#ifndef RENAME_NOREPLACE
#define RENAME_NOREPLACE (1 << 0)
#endif

namespace renvale::platform {

namespace {

std::atomic<NoReplaceMethod> bestMethod{NoReplaceMethod::Kernel};

int KernelRenameNoReplace(const char* from, const char* to, int folderFd = AT_FDCWD) {
#if defined(__GLIBC__) && (__GLIBC__ > 2 || (__GLIBC__ == 2 && __GLIBC_MINOR__ >= 28))
  return ::renameat2(folderFd, from, folderFd, to, RENAME_NOREPLACE);
#else
  return static_cast<int>(::syscall(SYS_renameat2, folderFd, from, folderFd, to, RENAME_NOREPLACE));
#endif
}

// link() fails like this on file systems without hard links (FAT gives
// EPERM) and for folders; the careful plain rename is left then.
bool LinkUnavailable(int err) {
  return err == EPERM || err == EOPNOTSUPP || err == ENOSYS || err == EMLINK;
}

int RenameByLinkErrno(const char* from, const char* to) {
  if (::link(from, to) == 0) {
    if (::unlink(from) == 0) return 0;
    const int err = errno;
    ::unlink(to);  // undo, so the file keeps exactly one name
    return err;
  }
  return errno;
}

// Only a short window separates this check from the rename; it is the last
// resort on file systems that offer neither RENAME_NOREPLACE nor links.
int RenameAfterCheckErrno(const char* from, const char* to) {
  struct stat st;
  if (::lstat(to, &st) == 0) return EEXIST;
  if (errno != ENOENT) return errno;
  return ::rename(from, to) == 0 ? 0 : errno;
}

// Returns 0 or an errno; EEXIST whenever `to` already resolves to a file.
int RenameStrictErrno(const QByteArray& from, const QByteArray& to) {
  const NoReplaceMethod best = bestMethod.load(std::memory_order_relaxed);
  if (best == NoReplaceMethod::Kernel) {
    if (KernelRenameNoReplace(from.constData(), to.constData()) == 0) return 0;
    const int err = errno;
    if (err != EINVAL && err != ENOSYS) return err;
  }
  if (best != NoReplaceMethod::CheckFirst) {
    const int err = RenameByLinkErrno(from.constData(), to.constData());
    if (err == 0 || !LinkUnavailable(err)) return err;
  }
  return RenameAfterCheckErrno(from.constData(), to.constData());
}

bool FolderHasExactEntry(const QByteArray& folder, const QByteArray& name) {
  DIR* dir = ::opendir(folder.constData());
  if (dir == nullptr) return true;  // cannot tell: assume a real, separate entry
  bool found = false;
  while (const dirent* entry = ::readdir(dir)) {
    if (name == entry->d_name) {
      found = true;
      break;
    }
  }
  ::closedir(dir);
  return found;
}

QByteArray TemporaryNameBeside(const QByteArray& path) {
  static std::atomic<unsigned> counter{0};
  char suffix[64];
  std::snprintf(suffix, sizeof suffix, ".renvale-rename-%ld-%u", static_cast<long>(::getpid()),
                counter.fetch_add(1));
  return ParentFolder(path) + suffix;
}

int MapRenameError(int err, const QByteArray& from) {
  if (err != ENOENT) return ErrorNumberFromErrno(err);
  struct stat st;
  // With the source present, the missing piece is the destination's folder.
  const bool sourceThere = ::lstat(from.constData(), &st) == 0;
  return ErrorNumberFromErrno(err, sourceThere ? ErrnoContext::Folder : ErrnoContext::File);
}

}  // namespace

bool IsLetterCaseAlias(const QByteArray& from, const QByteArray& to) {
  struct stat a;
  struct stat b;
  if (::lstat(from.constData(), &a) != 0 || ::lstat(to.constData(), &b) != 0) return false;
  if (a.st_dev != b.st_dev || a.st_ino != b.st_ino) return false;
  return !FolderHasExactEntry(ParentFolder(to), BaseName(to));
}

int RenameThroughTemporaryName(const QByteArray& from, const QByteArray& to) {
  constexpr int kAttempts = 100;
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    const QByteArray temporary = TemporaryNameBeside(from);
    int err = RenameStrictErrno(from, temporary);
    if (err == EEXIST) continue;
    if (err != 0) return MapRenameError(err, from);
    err = RenameStrictErrno(temporary, to);
    if (err == 0) return kNoError;
    RenameStrictErrno(temporary, from);
    return err == ENOENT ? ErrorNumberFromErrno(err, ErrnoContext::Folder) : ErrorNumberFromErrno(err);
  }
  return kFileAlreadyExists;
}

int RenameWithoutReplacing(const QByteArray& from, const QByteArray& to) {
  if (from == to) {
    struct stat st;
    return ::lstat(from.constData(), &st) == 0 ? kNoError : MapRenameError(errno, from);
  }
  const int err = RenameStrictErrno(from, to);
  if (err == 0) return kNoError;
  if (err == EEXIST && IsLetterCaseAlias(from, to)) return RenameThroughTemporaryName(from, to);
  return MapRenameError(err, from);
}

// A failed attempt changed nothing, so the way of the paths starts afresh.
int RenameWithoutReplacingIn(int folderFd, const QByteArray& folder, const QByteArray& from, const QByteArray& to) {
  if (from != to && bestMethod.load(std::memory_order_relaxed) == NoReplaceMethod::Kernel &&
      KernelRenameNoReplace(from.constData(), to.constData(), folderFd) == 0) {
    return kNoError;
  }
  return RenameWithoutReplacing(JoinPath(folder, from), JoinPath(folder, to));
}

void ForceNoReplaceMethod(NoReplaceMethod best) { bestMethod.store(best, std::memory_order_relaxed); }

}  // namespace renvale::platform

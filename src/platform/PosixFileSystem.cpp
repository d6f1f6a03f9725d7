#include "platform/PosixFileSystem.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "platform/ErrorNumbers.h"
#include "platform/FileCopy.h"
#include "platform/NoReplaceRename.h"
#include "platform/PathParts.h"
#include "platform/PosixOpen.h"
#include "platform/PosixReadableFolder.h"
#include "platform/Trash.h"
#include "platform/UniqueFd.h"

namespace renvale::platform {

namespace {

bool IsDotOrDotDot(const char* name) {
  return name[0] == '.' && (name[1] == '\0' || (name[1] == '.' && name[2] == '\0'));
}

// Symlinks count as what they point to; a dangling one counts as a file.
bool IsFolderAt(int dirFd, const char* name) {
  struct stat st;
  if (::fstatat(dirFd, name, &st, 0) != 0) return false;
  return S_ISDIR(st.st_mode);
}

bool EntryIsFolder(int dirFd, const dirent* entry) {
  switch (entry->d_type) {
    case DT_DIR:
      return true;
    case DT_LNK:
    case DT_UNKNOWN:
      return IsFolderAt(dirFd, entry->d_name);
    default:
      return false;
  }
}

QDateTime UtcFromTimestamp(qint64 seconds, quint32 nanoseconds) {
  return QDateTime::fromMSecsSinceEpoch(seconds * 1000 + nanoseconds / 1000000, Qt::UTC);
}

void FillFromStatx(const struct statx& sx, FileInfo* info) {
  info->isDir = S_ISDIR(sx.stx_mode);
  info->device = makedev(sx.stx_dev_major, sx.stx_dev_minor);
  info->inode = sx.stx_ino;
  info->size = static_cast<qint64>(sx.stx_size);
  info->modified = UtcFromTimestamp(sx.stx_mtime.tv_sec, sx.stx_mtime.tv_nsec);
  info->modifiedNs = static_cast<qint64>(sx.stx_mtime.tv_sec) * 1000000000 + sx.stx_mtime.tv_nsec;
  // Many file systems (and older kernels) keep no birth time.
  info->created = (sx.stx_mask & STATX_BTIME) != 0
                      ? UtcFromTimestamp(sx.stx_btime.tv_sec, sx.stx_btime.tv_nsec)
                      : info->modified;
}

void FillFromStat(const struct stat& st, FileInfo* info) {
  info->isDir = S_ISDIR(st.st_mode);
  info->device = st.st_dev;
  info->inode = st.st_ino;
  info->size = static_cast<qint64>(st.st_size);
  info->modified = UtcFromTimestamp(st.st_mtim.tv_sec, static_cast<quint32>(st.st_mtim.tv_nsec));
  info->modifiedNs = static_cast<qint64>(st.st_mtim.tv_sec) * 1000000000 + st.st_mtim.tv_nsec;
  info->created = info->modified;
}

int StatInto(const QByteArray& path, FileInfo* info) {
  struct statx sx;
  if (::statx(AT_FDCWD, path.constData(), AT_STATX_SYNC_AS_STAT, STATX_BASIC_STATS | STATX_BTIME,
              &sx) == 0) {
    FillFromStatx(sx, info);
    return 0;
  }
  if (errno != ENOSYS) return errno;
  struct stat st;
  if (::stat(path.constData(), &st) != 0) return errno;
  FillFromStat(st, info);
  return 0;
}

int WriteAll(int fd, const char* data, qsizetype length) {
  while (length > 0) {
    const ssize_t n = ::write(fd, data, static_cast<size_t>(length));
    if (n < 0) {
      if (errno == EINTR) continue;
      return errno;
    }
    data += n;
    length -= n;
  }
  return 0;
}

// Reads to the end without trusting st_size (files under /proc report 0).
int ReadToEnd(int fd, qint64 maxBytes, QByteArray* contents) {
  constexpr qsizetype kChunk = 64 * 1024;
  for (;;) {
    const qsizetype used = contents->size();
    contents->resize(used + kChunk);
    const ssize_t n = ::read(fd, contents->data() + used, kChunk);
    if (n < 0 && errno == EINTR) {
      contents->resize(used);
      continue;
    }
    contents->resize(n < 0 ? used : used + n);
    if (n < 0) return errno;
    if (n == 0) return 0;
    if (contents->size() > maxBytes) return EFBIG;
  }
}

}  // namespace

int PosixFileSystem::ListEntries(const QByteArray& folder, bool wantFolders,
                                 std::vector<QByteArray>* names) {
  names->clear();
  DIR* dir = ::opendir(folder.constData());
  if (dir == nullptr) return ErrorNumberFromErrno(errno, ErrnoContext::Folder);
  const int dirFd = ::dirfd(dir);
  int err = 0;
  for (;;) {
    errno = 0;
    const dirent* entry = ::readdir(dir);
    if (entry == nullptr) {
      err = errno;
      break;
    }
    if (IsDotOrDotDot(entry->d_name)) continue;
    if (EntryIsFolder(dirFd, entry) == wantFolders) names->emplace_back(entry->d_name);
  }
  ::closedir(dir);
  return ErrorNumberFromErrno(err, ErrnoContext::Folder);
}

int PosixFileSystem::ListFiles(const QByteArray& folder, std::vector<QByteArray>* names) {
  return ListEntries(folder, false, names);
}

int PosixFileSystem::ListFolders(const QByteArray& folder, std::vector<QByteArray>* names) {
  return ListEntries(folder, true, names);
}

int PosixFileSystem::Stat(const QByteArray& path, FileInfo* info) {
  *info = FileInfo{};
  if (const int err = StatInto(path, info)) return ErrorNumberFromErrno(err);
  info->isHidden = BaseName(path).startsWith('.');
  info->isWritable = ::access(path.constData(), W_OK) == 0;
  return kNoError;
}

int PosixFileSystem::StatIdentity(const QByteArray& path, FileInfo* info) {
  *info = FileInfo{};
  struct stat st;
  if (::stat(path.constData(), &st) != 0) return ErrorNumberFromErrno(errno);
  FillIdentity(st, info);
  return kNoError;
}

bool PosixFileSystem::Exists(const QByteArray& path) {
  struct stat st;
  // A dangling symlink still takes up its name.
  return ::lstat(path.constData(), &st) == 0;
}

int PosixFileSystem::RenameNoReplace(const QByteArray& from, const QByteArray& to) {
  return RenameWithoutReplacing(from, to);
}

int PosixFileSystem::RemoveFile(const QByteArray& path) {
  return ::unlink(path.constData()) == 0 ? kNoError : ErrorNumberFromErrno(errno);
}

int PosixFileSystem::CopyFile(const QByteArray& from, const QByteArray& to, bool replace) {
  return CopyFileKeepingTimes(from, to, replace);
}

int PosixFileSystem::RenameReplacing(const QByteArray& from, const QByteArray& to) {
  struct stat target;
  if (::lstat(to.constData(), &target) == 0 && S_ISDIR(target.st_mode)) return ErrorNumberFromErrno(EISDIR);
  return ::rename(from.constData(), to.constData()) == 0 ? kNoError
                                                         : ErrorNumberFromErrno(errno, ErrnoContext::Folder);
}

int PosixFileSystem::CopyToTemporary(const QByteArray& from, const QByteArray& folder, QByteArray* temporary) {
  return CopyToHiddenTemporary(from, folder, temporary);
}

int PosixFileSystem::FlushFileSystem(const QByteArray& folder) {
  UniqueFd fd(::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!fd.valid()) return ErrorNumberFromErrno(errno, ErrnoContext::Folder);
  return ::syncfs(fd.get()) == 0 ? kNoError : ErrorNumberFromErrno(errno);
}

// O_NONBLOCK keeps a planted FIFO from hanging the open; truncation waits
// until the name is known to be a regular file with a single link.
int PosixFileSystem::WriteProbeFile(const QByteArray& path, const QByteArray& contents) {
  UniqueFd fd(::open(path.constData(), O_WRONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0666));
  if (!fd.valid()) return ErrorNumberFromErrno(errno, ErrnoContext::Folder);
  struct stat st;
  if (::fstat(fd.get(), &st) != 0) return ErrorNumberFromErrno(errno);
  if (!S_ISREG(st.st_mode) || st.st_nlink != 1) return ErrorNumberFromErrno(EINVAL);
  int err = ::ftruncate(fd.get(), 0) == 0 ? 0 : errno;
  if (err == 0) err = WriteAll(fd.get(), contents.constData(), contents.size());
  if (::close(fd.Release()) != 0 && err == 0) err = errno;
  return ErrorNumberFromErrno(err);
}

int PosixFileSystem::MoveToTrash(const QByteArray& path) { return MoveFileToTrash(path); }

int PosixFileSystem::OpenForRead(const QByteArray& path, std::unique_ptr<ReadableFile>* file) {
  return OpenReadableFileAt(AT_FDCWD, path, file);
}

// A folder that cannot be held is left to the joined paths, so that each of
// its files fails with its own error as it would when opened alone.
std::unique_ptr<ReadableFolder> PosixFileSystem::HoldFolder(const QByteArray& folder) {
  UniqueFd fd(::open(folder.constData(), O_PATH | O_DIRECTORY | O_CLOEXEC));
  if (!fd.valid()) return FileSystem::HoldFolder(folder);
  return std::make_unique<PosixReadableFolder>(std::move(fd), folder);
}

int PosixFileSystem::WriteWholeFile(const QByteArray& path, const QByteArray& contents) {
  UniqueFd fd(::open(path.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666));
  if (!fd.valid()) return ErrorNumberFromErrno(errno, ErrnoContext::Folder);
  int err = WriteAll(fd.get(), contents.constData(), contents.size());
  if (err == 0 && ::fsync(fd.get()) != 0) err = errno;
  if (::close(fd.Release()) != 0 && err == 0) err = errno;
  return ErrorNumberFromErrno(err);
}

// Only the data needs flushing: the name is already durable, and the new
// size goes with the data.
int PosixFileSystem::AppendToFile(const QByteArray& path, const QByteArray& contents) {
  UniqueFd fd(::open(path.constData(), O_WRONLY | O_APPEND | O_CLOEXEC));
  if (!fd.valid()) return ErrorNumberFromErrno(errno);
  int err = WriteAll(fd.get(), contents.constData(), contents.size());
  if (err == 0 && ::fdatasync(fd.get()) != 0) err = errno;
  if (::close(fd.Release()) != 0 && err == 0) err = errno;
  return ErrorNumberFromErrno(err);
}

// A folder's own flush commits its names without writing out what every
// other program has pending on the same disk, as syncfs would.
int PosixFileSystem::FlushFolder(const QByteArray& folder) {
  UniqueFd fd(::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!fd.valid()) return ErrorNumberFromErrno(errno, ErrnoContext::Folder);
  return ::fsync(fd.get()) == 0 ? kNoError : ErrorNumberFromErrno(errno);
}

int PosixFileSystem::ReadWholeFile(const QByteArray& path, qint64 maxBytes, QByteArray* contents) {
  contents->clear();
  UniqueFd fd;
  struct stat st;
  if (const int err = OpenRegularFileAt(AT_FDCWD, path, &fd, &st); err != kNoError) return err;
  const int err = ReadToEnd(fd.get(), maxBytes, contents);
  if (err != 0) contents->clear();
  return ErrorNumberFromErrno(err);
}

FileSystem& RealFileSystem() {
  static PosixFileSystem instance;
  return instance;
}

}  // namespace renvale::platform

#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <cstdint>
#include <memory>
#include <vector>

#include "platform/FileName.h"

namespace renvale::platform {

struct FileInfo {
  bool isDir = false;
  bool isHidden = false;    // name starts with "."
  bool isWritable = true;   // writable by this user (access(W_OK))
  qint64 size = 0;
  QDateTime modified;       // UTC
  qint64 modifiedNs = 0;    // the same to the nanosecond, since the epoch
  QDateTime created;        // UTC; statx birth time, else the modification time
  // Which file this is: two paths reach the same file (or folder) exactly
  // when both numbers agree.
  quint64 device = 0;
  quint64 inode = 0;
};

// An open file read at explicit offsets; never reads past what it reports.
class ReadableFile {
 public:
  virtual ~ReadableFile() = default;
  // The size in bytes, or -1 when it cannot be had. It may be taken on the
  // first call; from then on reads stop there. Like ReadAt, a -1 leaves the
  // reason in errno: ENODEV for a file that is no regular file (a device, a
  // pipe), which a reader takes as "no contents" rather than as a failure.
  virtual qint64 Size() const = 0;
  // Reads up to `length` bytes at `offset` into `buffer`; returns the count
  // read (0 at or past the end) or -1 with errno set on error.
  virtual qint64 ReadAt(qint64 offset, char* buffer, qint64 length) = 0;
  // The file as its opening found it (isDir, size, modifiedNs, device and
  // inode, as StatIdentity gives them); false where that is not known.
  virtual bool Identity(FileInfo* info) const {
    (void)info;
    return false;
  }
};

// A folder held open so that many of its files are opened and renamed by
// name: each call then walks the file's name alone, not the whole path
// again.
class ReadableFolder {
 public:
  virtual ~ReadableFolder() = default;
  // As FileSystem::OpenForRead of the name joined to the folder's path.
  virtual int OpenForRead(const QByteArray& name, std::unique_ptr<ReadableFile>* file) = 0;
  // The same for a reader that wants the contents alone, not the file's
  // identity: where opening and asking the file's status are two system
  // calls, the second is left out, and what it would have refused (a pipe,
  // a folder) is refused by the first read instead.
  virtual int OpenContents(const QByteArray& name, std::unique_ptr<ReadableFile>* file) {
    return OpenForRead(name, file);
  }
  // As FileSystem::StatIdentity of the name joined to the folder's path.
  virtual int StatIdentity(const QByteArray& name, FileInfo* info) = 0;
  // As FileSystem::RenameNoReplace of the two names joined to the folder's
  // path. Names hold no slash.
  virtual int RenameNoReplace(const QByteArray& from, const QByteArray& to) = 0;
};

// The one door to the file system. Paths are raw bytes. Every call returns
// an error number from ErrorNumbers.h (0 on success) and never throws.
// Tests substitute a wrapper that injects failures (CI runs as root, so a
// read-only folder cannot be made with chmod).
class FileSystem {
 public:
  virtual ~FileSystem() = default;

  // Names of the entries of `folder` that are not folders, in no order.
  // Dot files are included; the caller filters.
  virtual int ListFiles(const QByteArray& folder, std::vector<QByteArray>* names) = 0;
  // Names of the sub-folders of `folder` (not "." or ".."), in no order.
  virtual int ListFolders(const QByteArray& folder, std::vector<QByteArray>* names) = 0;

  virtual int Stat(const QByteArray& path, FileInfo* info) = 0;
  virtual bool Exists(const QByteArray& path) = 0;

  // Renames without ever replacing an existing target: an existing target
  // (also one that differs only in letter case on a case-folding file
  // system) gives kFileAlreadyExists.
  virtual int RenameNoReplace(const QByteArray& from, const QByteArray& to) = 0;
  virtual int RemoveFile(const QByteArray& path) = 0;
  // Copies contents, permissions and modification time; flushes to disk
  // before reporting success; removes a partial target on failure. With
  // replace false an existing target gives kFileAlreadyExists.
  virtual int CopyFile(const QByteArray& from, const QByteArray& to, bool replace) = 0;
  // Renames over an existing target in one step: the target is replaced
  // only by the complete file, never left missing. A folder target fails.
  virtual int RenameReplacing(const QByteArray& from, const QByteArray& to) = 0;
  // Copies contents, permissions and modification time to a fresh hidden
  // name in `folder` (kTransferTemporaryPrefix + random letters) and returns
  // that path in `temporary`. Nothing is flushed: FlushFileSystem does that
  // for many copies at once. A failure removes the partial copy.
  virtual int CopyToTemporary(const QByteArray& from, const QByteArray& folder, QByteArray* temporary) = 0;
  // Makes everything written to the file system holding `folder` durable.
  virtual int FlushFileSystem(const QByteArray& folder) = 0;
  // Creates or truncates `path` and writes `contents`, but only into a
  // regular file with no other name: a symlink is never followed and a
  // hard link never truncated, so a name planted there cannot reach a file
  // elsewhere. Not flushed.
  virtual int WriteProbeFile(const QByteArray& path, const QByteArray& contents) = 0;
  // Moves `path` to the desktop's trash.
  virtual int MoveToTrash(const QByteArray& path) = 0;

  virtual int OpenForRead(const QByteArray& path, std::unique_ptr<ReadableFile>* file) = 0;
  // `folder` held for opening many of its files by name; usable from any
  // thread where the file system is. The default joins each name to the
  // path and opens that.
  virtual std::unique_ptr<ReadableFolder> HoldFolder(const QByteArray& folder);
  // True when files may be opened, read and stat'ed from a second thread
  // while this one renames. Fakes that keep plain bookkeeping say no.
  virtual bool ReadableFromAnyThread() const { return false; }
  // True when a second thread may also write, rename and flush files while
  // this one renames.
  virtual bool WritableFromAnyThread() const { return false; }
  // Writes a whole file (creating or truncating it), flushed before success.
  virtual int WriteWholeFile(const QByteArray& path, const QByteArray& contents) = 0;
  virtual int ReadWholeFile(const QByteArray& path, qint64 maxBytes, QByteArray* contents) = 0;
  // Adds `contents` at the end of an existing file, flushed before success:
  // a kill or a power cut leaves the file as it was, or with a part of
  // `contents` at its end. The default, for file systems held in memory,
  // writes the whole file again.
  virtual int AppendToFile(const QByteArray& path, const QByteArray& contents) {
    QByteArray whole;
    if (const int error = ReadWholeFile(path, INT32_MAX, &whole)) return error;
    return WriteWholeFile(path, whole + contents);
  }
  // Stat without the dates and the access check: fills isDir, size,
  // modifiedNs, device and inode only, for telling files apart at one
  // system call per file.
  virtual int StatIdentity(const QByteArray& path, FileInfo* info) { return Stat(path, info); }
  // Makes the names in `folder` durable (a name just given there), not the
  // whole file system's writes. The default flushes the file system.
  virtual int FlushFolder(const QByteArray& folder) { return FlushFileSystem(folder); }
};

// A folder whose files are opened by their joined paths.
class JoinedPathFolder : public ReadableFolder {
 public:
  JoinedPathFolder(FileSystem& fs, const QByteArray& folder) : fs_(fs), folder_(folder) {}
  int OpenForRead(const QByteArray& name, std::unique_ptr<ReadableFile>* file) override {
    return fs_.OpenForRead(JoinPath(folder_, name), file);
  }
  int StatIdentity(const QByteArray& name, FileInfo* info) override {
    return fs_.StatIdentity(JoinPath(folder_, name), info);
  }
  int RenameNoReplace(const QByteArray& from, const QByteArray& to) override {
    return fs_.RenameNoReplace(JoinPath(folder_, from), JoinPath(folder_, to));
  }

 private:
  FileSystem& fs_;
  const QByteArray folder_;
};

inline std::unique_ptr<ReadableFolder> FileSystem::HoldFolder(const QByteArray& folder) {
  return std::make_unique<JoinedPathFolder>(*this, folder);
}

// The real file system (POSIX calls, GIO for the trash).
FileSystem& RealFileSystem();

}  // namespace renvale::platform

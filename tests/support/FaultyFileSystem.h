#pragma once

#include <array>
#include <vector>

#include "platform/FileSystem.h"

namespace renvale::test {

enum class FsOperation {
  ListFiles, ListFolders, Stat, Rename, Remove, Copy, Trash, OpenForRead, WriteWholeFile,
  ReadWholeFile, kCount
};

// Wraps another FileSystem and makes chosen calls fail with chosen error
// numbers, without touching the disk, because tests run as root where chmod
// cannot make anything read-only.
//
// A path given here matches a call's path exactly, or, when it ends with
// '/', every path inside that folder. Rename and Copy match on either their
// source or their target.
class FaultyFileSystem : public platform::FileSystem {
 public:
  explicit FaultyFileSystem(platform::FileSystem& inner) : inner_(inner) {}

  // Fails `operation` on `path` with `errorNumber`; `times` < 0 means on
  // every call, otherwise only on the next `times` matching calls.
  void Fail(FsOperation operation, const QByteArray& path, int errorNumber, int times = -1);
  void FailRename(const QByteArray& path, int errorNumber) { Fail(FsOperation::Rename, path, errorNumber); }
  void FailRemove(const QByteArray& path, int errorNumber) { Fail(FsOperation::Remove, path, errorNumber); }
  void FailCopy(const QByteArray& path, int errorNumber) { Fail(FsOperation::Copy, path, errorNumber); }
  void FailTrash(const QByteArray& path, int errorNumber) { Fail(FsOperation::Trash, path, errorNumber); }
  void FailWrite(const QByteArray& path, int errorNumber) { Fail(FsOperation::WriteWholeFile, path, errorNumber); }
  void FailRead(const QByteArray& path, int errorNumber);

  // Makes `path` look like a write-protected card: Stat reports it (and,
  // for a folder path, everything inside) not writable, and every call that
  // would change it fails with `errorNumber` (75, as a locked card gives).
  void MakeReadOnly(const QByteArray& path, int errorNumber = 75);

  void ClearFaults();
  // How often `operation` was called, failed or not.
  int Calls(FsOperation operation) const { return calls_[static_cast<size_t>(operation)]; }

  int ListFiles(const QByteArray& folder, std::vector<QByteArray>* names) override;
  int ListFolders(const QByteArray& folder, std::vector<QByteArray>* names) override;
  int Stat(const QByteArray& path, platform::FileInfo* info) override;
  bool Exists(const QByteArray& path) override { return inner_.Exists(path); }
  int RenameNoReplace(const QByteArray& from, const QByteArray& to) override;
  int RemoveFile(const QByteArray& path) override;
  int CopyFile(const QByteArray& from, const QByteArray& to, bool replace) override;
  int MoveToTrash(const QByteArray& path) override;
  int OpenForRead(const QByteArray& path, std::unique_ptr<platform::ReadableFile>* file) override;
  int WriteWholeFile(const QByteArray& path, const QByteArray& contents) override;
  int ReadWholeFile(const QByteArray& path, qint64 maxBytes, QByteArray* contents) override;

 private:
  struct Fault {
    FsOperation operation;
    QByteArray path;
    int errorNumber;
    int remaining;  // < 0: unlimited
  };
  struct ReadOnlyPath {
    QByteArray path;
    int errorNumber;
  };

  static bool Matches(const QByteArray& pattern, const QByteArray& path);
  // Counts the call and returns the error number it must fail with, or 0.
  int Injected(FsOperation operation, const QByteArray& path, const QByteArray& other = {});
  int ReadOnlyError(const QByteArray& path) const;
  int FaultFor(FsOperation operation, const QByteArray& path, const QByteArray& other);

  platform::FileSystem& inner_;
  std::vector<Fault> faults_;
  std::vector<ReadOnlyPath> readOnly_;
  std::array<int, static_cast<size_t>(FsOperation::kCount)> calls_{};
};

}  // namespace renvale::test

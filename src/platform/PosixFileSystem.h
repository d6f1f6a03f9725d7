#pragma once

#include "platform/FileSystem.h"

namespace renvale::platform {

// FileSystem over POSIX calls on raw byte paths (GIO for the trash). Holds no
// state; RealFileSystem() hands out the process-wide instance.
class PosixFileSystem : public FileSystem {
 public:
  int ListFiles(const QByteArray& folder, std::vector<QByteArray>* names) override;
  int ListFolders(const QByteArray& folder, std::vector<QByteArray>* names) override;

  int Stat(const QByteArray& path, FileInfo* info) override;
  bool Exists(const QByteArray& path) override;

  int RenameNoReplace(const QByteArray& from, const QByteArray& to) override;
  int RemoveFile(const QByteArray& path) override;
  int CopyFile(const QByteArray& from, const QByteArray& to, bool replace) override;
  int RenameReplacing(const QByteArray& from, const QByteArray& to) override;
  int CopyToTemporary(const QByteArray& from, const QByteArray& folder, QByteArray* temporary) override;
  int FlushFileSystem(const QByteArray& folder) override;
  int WriteProbeFile(const QByteArray& path, const QByteArray& contents) override;
  int MoveToTrash(const QByteArray& path) override;

  int OpenForRead(const QByteArray& path, std::unique_ptr<ReadableFile>* file) override;
  std::unique_ptr<ReadableFolder> HoldFolder(const QByteArray& folder) override;
  bool ReadableFromAnyThread() const override { return true; }
  bool WritableFromAnyThread() const override { return true; }
  int WriteWholeFile(const QByteArray& path, const QByteArray& contents) override;
  int AppendToFile(const QByteArray& path, const QByteArray& contents) override;
  int FlushFolder(const QByteArray& folder) override;
  int StatIdentity(const QByteArray& path, FileInfo* info) override;
  // A file longer than `maxBytes` gives kErrnoBase + EFBIG and no contents.
  int ReadWholeFile(const QByteArray& path, qint64 maxBytes, QByteArray* contents) override;

 private:
  static int ListEntries(const QByteArray& folder, bool wantFolders, std::vector<QByteArray>* names);
};

}  // namespace renvale::platform

#pragma once

#include <QByteArray>
#include <QHash>
#include <memory>
#include <vector>

#include "platform/FileSystem.h"

namespace renvale::test {

// A file system of in-memory files for the EXIF reader's tests: it counts
// what is read, can fail to open or to read, and can serve a huge "raw"
// whose bytes past the stored head are zeros made up on the fly. Only the
// read side is real; every other call answers kErrnoBase + ENOSYS.
class FakeFileSystem : public platform::FileSystem {
 public:
  // A file of `size` bytes (default: the head's) starting with `head`;
  // the rest reads as zeros unless Put places bytes there.
  void Add(const QByteArray& path, const QByteArray& head, qint64 size = -1);
  void Put(const QByteArray& path, qint64 offset, const QByteArray& bytes);

  int openError = 0;     // returned by OpenForRead when not 0
  int readFailsAt = -1;  // the ReadAt call (0-based) that returns -1
  qint64 bytesRead = 0;
  int readCalls = 0;

  int ListFiles(const QByteArray& folder, std::vector<QByteArray>* names) override;
  int ListFolders(const QByteArray& folder, std::vector<QByteArray>* names) override;
  int Stat(const QByteArray& path, platform::FileInfo* info) override;
  bool Exists(const QByteArray& path) override;
  int RenameNoReplace(const QByteArray& from, const QByteArray& to) override;
  int RemoveFile(const QByteArray& path) override;
  int CopyFile(const QByteArray& from, const QByteArray& to, bool replace) override;
  int MoveToTrash(const QByteArray& path) override;
  int OpenForRead(const QByteArray& path, std::unique_ptr<platform::ReadableFile>* file) override;
  int WriteWholeFile(const QByteArray& path, const QByteArray& contents) override;
  int ReadWholeFile(const QByteArray& path, qint64 maxBytes, QByteArray* contents) override;

 private:
  struct Entry {
    std::vector<std::pair<qint64, QByteArray>> chunks;
    qint64 size = 0;
  };
  class File;

  QHash<QByteArray, Entry> files_;
};

}  // namespace renvale::test

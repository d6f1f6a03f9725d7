#pragma once

#include <QDateTime>
#include <map>
#include <vector>

#include "platform/ErrorNumbers.h"
#include "platform/FileSystem.h"

namespace renvale::test {

// Files held in memory, for tests that need exact file times (a real file
// system cannot set a birth time) or a case-folding file system. Folders
// exist implicitly as the prefixes of file paths.
class MemoryFileSystem : public platform::FileSystem {
 public:
  // With `foldCase` names are looked up without regard to letter case, as
  // on a FAT memory card.
  explicit MemoryFileSystem(bool foldCase = false) : foldCase_(foldCase) {}

  // Adds or replaces a file; its times default to 2004-07-15 18:03:09 UTC.
  // A `size` beyond the contents makes a sparse file of that size: reads
  // past the contents give zeros, except where Put placed bytes.
  void Add(const QByteArray& path, const QByteArray& contents, qint64 size = -1);
  void Put(const QByteArray& path, qint64 offset, const QByteArray& bytes) {
    if (Entry* e = Find(path)) e->placed.emplace_back(offset, bytes);
  }
  void SetTimes(const QByteArray& path, const QDateTime& createdUtc, const QDateTime& modifiedUtc);
  void SetWritable(const QByteArray& path, bool writable) {
    if (Entry* e = Find(path)) e->info.isWritable = writable;
  }
  // Makes opening `path` fail with `errorNumber`.
  void FailOpen(const QByteArray& path, int errorNumber) {
    if (Entry* e = Find(path)) e->openError = errorNumber;
  }
  // ReadAt calls over all opened files, the bytes they gave, and the call
  // (counted from 0) that fails with EIO.
  int readCalls = 0;
  qint64 bytesRead = 0;
  int readFailsAt = -1;

  int ListFiles(const QByteArray& folder, std::vector<QByteArray>* names) override;
  int ListFolders(const QByteArray& folder, std::vector<QByteArray>* names) override;
  int Stat(const QByteArray& path, platform::FileInfo* info) override;
  bool Exists(const QByteArray& path) override;
  int RenameNoReplace(const QByteArray& from, const QByteArray& to) override;
  int RemoveFile(const QByteArray& path) override;
  int CopyFile(const QByteArray& from, const QByteArray& to, bool replace) override;
  int RenameReplacing(const QByteArray& from, const QByteArray& to) override;
  int CopyToTemporary(const QByteArray& from, const QByteArray& folder, QByteArray* temporary) override;
  int FlushFileSystem(const QByteArray&) override { return platform::kNoError; }
  int WriteProbeFile(const QByteArray& path, const QByteArray& contents) override {
    return WriteWholeFile(path, contents);
  }
  int MoveToTrash(const QByteArray& path) override { return RemoveFile(path); }
  int OpenForRead(const QByteArray& path, std::unique_ptr<platform::ReadableFile>* file) override;
  int WriteWholeFile(const QByteArray& path, const QByteArray& contents) override;
  int ReadWholeFile(const QByteArray& path, qint64 maxBytes, QByteArray* contents) override;

 private:
  struct Entry {
    QByteArray contents;
    std::vector<std::pair<qint64, QByteArray>> placed;  // by Put
    platform::FileInfo info;
    int openError = 0;
  };
  QByteArray Key(const QByteArray& path) const { return foldCase_ ? path.toLower() : path; }
  Entry* Find(const QByteArray& path);

  bool foldCase_;
  int temporaries_ = 0;
  std::map<QByteArray, Entry> files_;
};

}  // namespace renvale::test

#pragma once

#include <functional>
#include <vector>

#include "platform/FileSystem.h"

namespace renvale::test {

// Wraps another FileSystem and makes chosen changes fail with chosen error
// numbers, without touching the disk: tests run as root, where chmod cannot
// make anything read-only.
//
// A rename fails when either of its names is the path given to FailRename,
// or when its source is the path given to FailRenameFrom (so a file can move
// away and then be refused the way back).
class FaultyFileSystem : public platform::FileSystem {
 public:
  explicit FaultyFileSystem(platform::FileSystem& inner) : inner_(inner) {}

  void FailRename(const QByteArray& path, int errorNumber) { faults_.push_back({Change::Rename, path, errorNumber}); }
  void FailRenameFrom(const QByteArray& path, int errorNumber) {
    faults_.push_back({Change::RenameFrom, path, errorNumber});
  }
  void FailRemove(const QByteArray& path, int errorNumber) { faults_.push_back({Change::Remove, path, errorNumber}); }
  void FailTrash(const QByteArray& path, int errorNumber) { faults_.push_back({Change::Trash, path, errorNumber}); }
  void FailWrite(const QByteArray& path, int errorNumber) { faults_.push_back({Change::Write, path, errorNumber}); }
  // A copy of the source `path` fails as if the disk filled up part way:
  // nothing is left at the destination.
  void FailCopy(const QByteArray& path, int errorNumber) { faults_.push_back({Change::Copy, path, errorNumber}); }
  // Calls back before each copy of a source, e.g. to remove a folder mid-run.
  std::function<void(const QByteArray&)> beforeCopy;
  // Calls back before each no-replace rename with its source, e.g. to see
  // what the preview holds at that moment.
  std::function<void(const QByteArray&)> beforeRename;
  void ClearFaults() { faults_.clear(); }

  int ListFiles(const QByteArray& folder, std::vector<QByteArray>* names) override {
    return inner_.ListFiles(folder, names);
  }
  int ListFolders(const QByteArray& folder, std::vector<QByteArray>* names) override {
    return inner_.ListFolders(folder, names);
  }
  int Stat(const QByteArray& path, platform::FileInfo* info) override { return inner_.Stat(path, info); }
  bool Exists(const QByteArray& path) override { return inner_.Exists(path); }
  int RenameNoReplace(const QByteArray& from, const QByteArray& to) override;
  int RemoveFile(const QByteArray& path) override;
  int CopyFile(const QByteArray& from, const QByteArray& to, bool replace) override {
    return inner_.CopyFile(from, to, replace);
  }
  int RenameReplacing(const QByteArray& from, const QByteArray& to) override;
  int CopyToTemporary(const QByteArray& from, const QByteArray& folder, QByteArray* temporary) override;
  int FlushFileSystem(const QByteArray& folder) override { return inner_.FlushFileSystem(folder); }
  int WriteProbeFile(const QByteArray& path, const QByteArray& contents) override;
  int MoveToTrash(const QByteArray& path) override;
  int OpenForRead(const QByteArray& path, std::unique_ptr<platform::ReadableFile>* file) override {
    return inner_.OpenForRead(path, file);
  }
  int WriteWholeFile(const QByteArray& path, const QByteArray& contents) override;
  int ReadWholeFile(const QByteArray& path, qint64 maxBytes, QByteArray* contents) override {
    return inner_.ReadWholeFile(path, maxBytes, contents);
  }

 private:
  enum class Change { Rename, RenameFrom, Remove, Trash, Write, Copy };
  struct Fault {
    Change change;
    QByteArray path;
    int errorNumber;
  };
  // The error number a change to `path` (or `other`) must fail with, or 0.
  int Injected(Change change, const QByteArray& path, const QByteArray& other = {}) const;

  platform::FileSystem& inner_;
  std::vector<Fault> faults_;
};

}  // namespace renvale::test

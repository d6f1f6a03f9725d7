#pragma once

#include <mutex>

#include "platform/PosixFileSystem.h"

namespace renvale::cli {

// The real file system, except that a folder's listing is read once for two
// readings in a row: renvale-batch reads a card's folder to check its
// arguments, and the batch's preview reads the same folder again at once.
// The kept listing is handed out once, and only while nothing has changed
// a name through this file system since; any change forgets it. A file that
// another program adds in between is met as a taken name by the renames,
// which never replace.
class ListingReuse : public platform::PosixFileSystem {
 public:
  int ListFiles(const QByteArray& folder, std::vector<QByteArray>* names) override;

  int RenameNoReplace(const QByteArray& from, const QByteArray& to) override;
  int RemoveFile(const QByteArray& path) override;
  int CopyFile(const QByteArray& from, const QByteArray& to, bool replace) override;
  int RenameReplacing(const QByteArray& from, const QByteArray& to) override;
  int CopyToTemporary(const QByteArray& from, const QByteArray& folder, QByteArray* temporary) override;
  int WriteProbeFile(const QByteArray& path, const QByteArray& contents) override;
  int MoveToTrash(const QByteArray& path) override;
  int WriteWholeFile(const QByteArray& path, const QByteArray& contents) override;
  int AppendToFile(const QByteArray& path, const QByteArray& contents) override;

 private:
  void Forget();

  std::mutex lock_;
  QByteArray folder_;  // empty: nothing kept
  std::vector<QByteArray> names_;
};

}  // namespace renvale::cli

#pragma once

#include "platform/FileSystem.h"
#include "platform/UniqueFd.h"

namespace renvale::platform {

// A folder held by a descriptor; its files are opened and renamed relative
// to it. The folder it names is the one found when it was held: a batch
// reads and renames the files of the folder it was started on even if that
// is renamed meanwhile. Only a rename the kernel refuses by name (a taken
// name, a file system without no-replace renames) goes by the path.
class PosixReadableFolder : public ReadableFolder {
 public:
  // `path` is the folder's path as it was held.
  PosixReadableFolder(UniqueFd fd, const QByteArray& path) : fd_(std::move(fd)), path_(path) {}
  int OpenForRead(const QByteArray& name, std::unique_ptr<ReadableFile>* file) override;
  int OpenContents(const QByteArray& name, std::unique_ptr<ReadableFile>* file) override;
  int StatIdentity(const QByteArray& name, FileInfo* info) override;
  int RenameNoReplace(const QByteArray& from, const QByteArray& to) override;

 private:
  UniqueFd fd_;
  QByteArray path_;
};

}  // namespace renvale::platform

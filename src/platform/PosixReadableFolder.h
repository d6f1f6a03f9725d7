#pragma once

#include "platform/FileSystem.h"
#include "platform/UniqueFd.h"

namespace renvale::platform {

// A folder held by a descriptor; its files are opened relative to it. The
// folder it names is the one found when it was held: a batch reads the
// files of the folder it was started on even if that is renamed meanwhile.
class PosixReadableFolder : public ReadableFolder {
 public:
  explicit PosixReadableFolder(UniqueFd fd) : fd_(std::move(fd)) {}
  int OpenForRead(const QByteArray& name, std::unique_ptr<ReadableFile>* file) override;
  int StatIdentity(const QByteArray& name, FileInfo* info) override;

 private:
  UniqueFd fd_;
};

}  // namespace renvale::platform

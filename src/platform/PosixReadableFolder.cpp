#include "platform/PosixReadableFolder.h"

#include <sys/stat.h>

#include "platform/ErrorNumbers.h"
#include "platform/NoReplaceRename.h"
#include "platform/PosixOpen.h"

namespace renvale::platform {

int PosixReadableFolder::OpenForRead(const QByteArray& name, std::unique_ptr<ReadableFile>* file) {
  return OpenReadableFileAt(fd_.get(), name, file);
}

int PosixReadableFolder::OpenContents(const QByteArray& name, std::unique_ptr<ReadableFile>* file) {
  return OpenContentsAt(fd_.get(), name, file);
}

int PosixReadableFolder::StatIdentity(const QByteArray& name, FileInfo* info) {
  *info = FileInfo{};
  struct stat st;
  if (::fstatat(fd_.get(), name.constData(), &st, 0) != 0) return ErrorNumberFromErrno(errno);
  FillIdentity(st, info);
  return kNoError;
}

int PosixReadableFolder::RenameNoReplace(const QByteArray& from, const QByteArray& to) {
  return RenameWithoutReplacingIn(fd_.get(), path_, from, to);
}

}  // namespace renvale::platform

#include "platform/PosixReadableFolder.h"

#include "platform/PosixOpen.h"

namespace renvale::platform {

int PosixReadableFolder::OpenForRead(const QByteArray& name, std::unique_ptr<ReadableFile>* file) {
  return OpenReadableFileAt(fd_.get(), name, file);
}

}  // namespace renvale::platform

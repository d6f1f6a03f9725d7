#include "platform/ReadableFileDevice.h"

namespace renvale::platform {

ReadableFileDevice::ReadableFileDevice(std::unique_ptr<ReadableFile> file) : file_(std::move(file)) {
  QIODevice::open(QIODevice::ReadOnly);
}

qint64 ReadableFileDevice::size() const { return qMax<qint64>(0, file_->Size()); }

qint64 ReadableFileDevice::readData(char* data, qint64 maxSize) {
  const qint64 read = file_->ReadAt(pos(), data, maxSize);
  return read < 0 ? -1 : read;
}

qint64 ReadableFileDevice::writeData(const char*, qint64) { return -1; }

}  // namespace renvale::platform

#include "metadata/MemoryByteSource.h"

#include <cstring>

namespace renvale::metadata {

MemoryByteSource::MemoryByteSource(const char* data, qint64 size)
    : data_(data), size_(data == nullptr || size < 0 ? 0 : size) {}

bool MemoryByteSource::Read(qint64 offset, char* out, qint64 length) {
  if (!InRange(offset, length, size_)) return false;
  if (length > 0) std::memcpy(out, data_ + offset, size_t(length));
  return true;
}

qint64 MemoryByteSource::Direct(qint64 offset, const char** data) const {
  if (offset < 0 || offset > size_) {
    *data = nullptr;
    return 0;
  }
  *data = data_ + offset;
  return size_ - offset;
}

}  // namespace renvale::metadata

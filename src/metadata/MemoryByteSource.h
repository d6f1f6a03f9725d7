#pragma once

#include "metadata/ByteSource.h"

namespace renvale::metadata {

// A ByteSource over bytes someone else owns and keeps alive.
class MemoryByteSource : public ByteSource {
 public:
  MemoryByteSource(const char* data, qint64 size);
  qint64 Size() const override { return size_; }
  bool Read(qint64 offset, char* out, qint64 length) override;
  qint64 Direct(qint64 offset, const char** data) const override;

 private:
  const char* data_;
  qint64 size_;
};

}  // namespace renvale::metadata

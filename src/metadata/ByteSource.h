#pragma once

#include <QtGlobal>

namespace renvale::metadata {

// Random access to the bytes of one file, in memory or on disk. Readers ask
// for exactly the bytes they need; nothing outside [0, Size()) is ever read.
class ByteSource {
 public:
  virtual ~ByteSource() = default;
  virtual qint64 Size() const = 0;
  // Copies `length` bytes from `offset` into `out`. False, with `out`
  // unspecified, when any of them lies outside the source or cannot be read.
  virtual bool Read(qint64 offset, char* out, qint64 length) = 0;
  // How many bytes from `offset` on lie in memory that stays put for the
  // source's lifetime, with their address in `data`; 0 if none. Lets a
  // reader skip the virtual Read for the bytes most parsing touches.
  virtual qint64 Direct(qint64 offset, const char** data) const {
    (void)offset;
    *data = nullptr;
    return 0;
  }
  // True once a read failed for a reason other than the range (an I/O error).
  virtual bool IoFailed() const { return false; }
  // The system error number of that failure, 0 if none.
  virtual int IoError() const { return 0; }

 protected:
  // True when [offset, offset + length) lies inside [0, size), without
  // overflowing for any inputs.
  static bool InRange(qint64 offset, qint64 length, qint64 size) {
    return offset >= 0 && length >= 0 && offset <= size && length <= size - offset;
  }
};

}  // namespace renvale::metadata

#pragma once

#include <QtGlobal>
#include <cstring>

#include "metadata/ByteSource.h"

namespace renvale::metadata {

// A range-checked view of part of a ByteSource, reading numbers in either
// byte order. A read outside the view returns 0 and sets the error flag,
// which then stays set (and every later read returns 0 too), so a parser
// can do a run of reads and check once.
class ByteReader {
 public:
  // The bytes [base, base + length) of `source`, clipped to the source.
  ByteReader(ByteSource& source, qint64 base, qint64 length, bool bigEndian = true);

  quint8 U8(qint64 pos);
  quint16 U16(qint64 pos) {
    unsigned char b[2];
    Fetch(pos, b, 2);
    return bigEndian_ ? quint16(b[0] << 8 | b[1]) : quint16(b[1] << 8 | b[0]);
  }
  quint32 U32(qint64 pos) {
    unsigned char b[4];
    Fetch(pos, b, 4);
    return bigEndian_ ? quint32(b[0]) << 24 | quint32(b[1]) << 16 | quint32(b[2]) << 8 | b[3]
                      : quint32(b[3]) << 24 | quint32(b[2]) << 16 | quint32(b[1]) << 8 | b[0];
  }
  quint64 U64(qint64 pos);
  // Copies `length` bytes at `pos` into `out`.
  bool Bytes(qint64 pos, char* out, qint64 length);
  // Whether the bytes at `pos` are `text`; false, without setting the
  // error flag, when they lie outside the view.
  bool Matches(qint64 pos, const char* text, qint64 length);
  // The address of [pos, pos + length) when it lies in the source's memory
  // (no copy, no virtual call), else nullptr; never sets the error flag.
  const char* Peek(qint64 pos, qint64 length) const {
    return ok_ && pos >= 0 && length >= 0 && pos <= direct_ && length <= direct_ - pos ? data_ + pos : nullptr;
  }
  // Whether [pos, pos + length) lies inside the view.
  bool Has(qint64 pos, qint64 length) const;

  // The view [pos, pos + length) of this one, clipped to it: a truncated
  // file still shows what it has. Fails (empty view, flag set) when `pos`
  // is outside.
  ByteReader Sub(qint64 pos, qint64 length) const;

  bool Ok() const { return ok_; }
  qint64 Base() const { return base_; }
  qint64 Length() const { return length_; }
  bool BigEndian() const { return bigEndian_; }
  void SetBigEndian(bool bigEndian) { bigEndian_ = bigEndian; }
  ByteSource& Source() const { return *source_; }

 private:
  // The common case inline: bytes in the source's memory, no virtual call.
  bool Fetch(qint64 pos, unsigned char* out, int length) {
    if (ok_ && pos >= 0 && pos <= direct_ - length) {
      std::memcpy(out, data_ + pos, size_t(length));
      return true;
    }
    return FetchSlow(pos, out, length);
  }
  bool FetchSlow(qint64 pos, unsigned char* out, int length);

  ByteSource* source_;
  qint64 base_;
  qint64 length_;
  bool bigEndian_;
  bool ok_ = true;
  const char* data_ = nullptr;  // the view's first bytes in the source's memory
  qint64 direct_ = 0;           // how many of them
};

}  // namespace renvale::metadata

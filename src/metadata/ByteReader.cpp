#include "metadata/ByteReader.h"

namespace renvale::metadata {

ByteReader::ByteReader(ByteSource& source, qint64 base, qint64 length, bool bigEndian)
    : source_(&source), base_(base), length_(length), bigEndian_(bigEndian) {
  const qint64 size = source.Size();
  if (base_ < 0 || base_ > size || length_ < 0) {
    base_ = 0;
    length_ = 0;
    ok_ = false;
    return;
  }
  length_ = qMin(length_, size - base_);
  direct_ = qMin(source.Direct(base_, &data_), length_);
}

bool ByteReader::Has(qint64 pos, qint64 length) const {
  return pos >= 0 && length >= 0 && pos <= length_ && length <= length_ - pos;
}

bool ByteReader::FetchSlow(qint64 pos, unsigned char* out, int length) {
  if (ok_ && Has(pos, length) && source_->Read(base_ + pos, reinterpret_cast<char*>(out), length)) {
    return true;
  }
  ok_ = false;
  for (int i = 0; i < length; ++i) out[i] = 0;
  return false;
}

quint8 ByteReader::U8(qint64 pos) {
  unsigned char b[1];
  Fetch(pos, b, 1);
  return b[0];
}

quint64 ByteReader::U64(qint64 pos) {
  unsigned char b[8];
  Fetch(pos, b, 8);
  quint64 value = 0;
  for (int i = 0; i < 8; ++i) value = (value << 8) | b[bigEndian_ ? i : 7 - i];
  return value;
}

bool ByteReader::Bytes(qint64 pos, char* out, qint64 length) {
  if (ok_ && pos >= 0 && length >= 0 && pos <= direct_ && length <= direct_ - pos) {
    if (length > 0) std::memcpy(out, data_ + pos, size_t(length));
    return true;
  }
  if (ok_ && Has(pos, length) && source_->Read(base_ + pos, out, length)) return true;
  ok_ = false;
  return false;
}

bool ByteReader::Matches(qint64 pos, const char* text, qint64 length) {
  char buffer[16];
  if (length > qint64(sizeof buffer) || !Has(pos, length)) return false;
  if (!source_->Read(base_ + pos, buffer, length)) return false;
  for (qint64 i = 0; i < length; ++i) {
    if (buffer[i] != text[i]) return false;
  }
  return true;
}

ByteReader ByteReader::Sub(qint64 pos, qint64 length) const {
  if (!ok_ || pos < 0 || pos > length_ || length < 0) {
    ByteReader failed(*source_, 0, 0, bigEndian_);
    failed.ok_ = false;
    return failed;
  }
  return ByteReader(*source_, base_ + pos, qMin(length, length_ - pos), bigEndian_);
}

}  // namespace renvale::metadata

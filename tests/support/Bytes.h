#pragma once

#include <QByteArray>
#include <QtEndian>

namespace renvale::test {

// `value` as the bytes a file stores it in, most significant first when
// `bigEndian`.
template <typename T>
QByteArray Bytes(T value, bool bigEndian) {
  QByteArray bytes(sizeof(T), '\0');
  if (bigEndian) {
    qToBigEndian(value, bytes.data());
  } else {
    qToLittleEndian(value, bytes.data());
  }
  return bytes;
}
inline QByteArray Be16(quint16 value) { return Bytes(value, true); }
inline QByteArray Be32(quint32 value) { return Bytes(value, true); }
inline QByteArray Le16(quint16 value) { return Bytes(value, false); }
inline QByteArray Le32(quint32 value) { return Bytes(value, false); }

// An ISO base media box (QuickTime, HEIF, CR3): size, four-letter type, content.
inline QByteArray Box(const char* type, const QByteArray& content) {
  return Be32(quint32(content.size() + 8)) + QByteArray(type, 4) + content;
}

}  // namespace renvale::test

#pragma once

#include <QtGlobal>

namespace renvale::metadata {

// One tag's value as the file stores it: its TIFF type, its count and its
// first bytes. Only the head of a long value is kept (no tag we answer needs
// more), so the size never depends on a count read from the file.
struct ExifRawValue {
  static constexpr int kMaxBytes = 128;

  quint16 type = 0;
  quint32 count = 0;
  bool bigEndian = false;
  int size = 0;  // bytes held in `bytes`, at most kMaxBytes
  char bytes[kMaxBytes];  // only the first `size` are meaningful
};

}  // namespace renvale::metadata

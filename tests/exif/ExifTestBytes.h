#pragma once

#include <QByteArray>

#include "metadata/ExifReader.h"
#include "metadata/ExifTagTable.h"
#include "support/Bytes.h"

namespace renvale::test {

// Little-endian TIFF pieces written by hand, for layouts no encoder makes.
inline QByteArray Entry(quint16 tag, quint16 type, quint32 count, quint32 value) {
  return Le16(tag) + Le16(type) + Le32(count) + Le32(value);
}
inline QByteArray Header(quint32 ifd0 = 8) { return QByteArray("II*\0", 4) + Le32(ifd0); }

// Calls `visit(name, value)` for each of the sixteen tags the reader answers.
template <typename Visit>
void ForEveryTag(const metadata::ExifReader& reader, Visit visit) {
  for (int i = 0; i < metadata::ExifTagTable::kCount; ++i) {
    const char* name = metadata::ExifTagTable::Name(metadata::ExifTag(i));
    visit(name, reader.Tag(name));
  }
}

}  // namespace renvale::test

#pragma once

#include <QByteArray>
#include <QStringList>

namespace renvale::test {

// A Canon CRW file: the CIFF header ("II", header length 26, "HEAPCCDR",
// version 1.2) and a heap of `heapSize` bytes that ends in an empty record
// table. Each text of `texts` is written NUL-terminated into the heap, 100
// bytes apart from offset 100 on, so a head scan of the first 2000 bytes
// finds date-shaped ones among them.
QByteArray MakeCrw(const QStringList& texts = {}, int heapSize = 4096);

// The THM partner a camera writes beside a CRW file: a small JPEG whose
// EXIF holds `dateTime` (IFD0, the file-change date) and `dateTimeOriginal`
// (the exposure date), so the head scan's second date is the exposure.
QByteArray MakeThm(const QString& dateTimeOriginal, const QString& dateTime);

}  // namespace renvale::test

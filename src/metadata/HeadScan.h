#pragma once

#include <QByteArray>
#include <QString>

namespace renvale::metadata {

// How much of a file the date scan reads: enough for the header of a camera
// file, little enough that a batch over large RAW files stays fast.
inline constexpr qint64 kFileHeadLength = 2000;

// The first two texts of the shape "####:##:## ##:##:##" (# an ASCII digit)
// in a file head, found by looking at each colon as the fifth character of
// a candidate. After a match the search goes on 14 characters past its
// colon; the scan stops at the second match.
struct DateShapes {
  QString first;
  QString second;
};

// Looks only at bytes [0, size) of `data`.
DateShapes FindDateShapes(const char* data, qint64 size);

// The date a file head gives: its second date-shaped text when it has two
// (in a camera file the first is normally the file's modification date and
// the second the exposure date), its only one, or empty.
QString ScanDateInHead(const char* data, qint64 size);

}  // namespace renvale::metadata

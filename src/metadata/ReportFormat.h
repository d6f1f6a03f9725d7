#pragma once

#include <QString>

namespace renvale::metadata {

// A size in kilobytes: bytes / 1024 rounded to a whole number, a half going
// to the even neighbour (1536 bytes give 2, 2560 bytes give 2 as well).
QString KilobytesText(qint64 bytes);

// A size in megabytes with the picture "#####.##": at most two decimals
// (a half rounds up), no zero before the point, the point always kept and
// trailing decimal zeros dropped: 0.5 MB is ".5", 12 MB is "12.", 0 is ".".
QString MegabytesText(qint64 bytes);

// "0220" reads "2.2": a four-character version becomes "02.20", then loses
// one leading and one trailing zero ("0221" gives 2.21, "0100" gives 1.0).
// Other lengths stay as they are.
QString ShortExifVersion(const QString& version);

// width + "w X " + height + "h", or empty when both are empty.
QString DimensionsText(const QString& width, const QString& height);

}  // namespace renvale::metadata

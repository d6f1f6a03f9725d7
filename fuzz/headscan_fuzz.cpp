// libFuzzer target for the file-head date scan and what follows it: the
// date-shaped texts found are read as EXIF dates and formatted with a date
// picture taken from the input's last bytes, so the picture parser gets
// arbitrary text too. The scan gets the input's tail of at most twice the
// file-head length (what the program ever hands it is 2000 bytes), so its
// end is still the buffer's end and a read past it is caught.
#include <QString>
#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "metadata/DateTimePicture.h"
#include "metadata/ExifDateTime.h"
#include "metadata/HeadScan.h"

namespace {

constexpr size_t kPictureBytes = 24;

QString PictureFrom(const char* bytes, size_t size) {
  const size_t take = size < kPictureBytes ? size : kPictureBytes;
  return QString::fromLatin1(bytes + (size - take), static_cast<qsizetype>(take));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace renvale::metadata;
  const qint64 length = std::min<qint64>(static_cast<qint64>(size), 2 * kFileHeadLength);
  const char* bytes = reinterpret_cast<const char*>(data) + (static_cast<qint64>(size) - length);
  const DateShapes shapes = FindDateShapes(bytes, length);
  const QString date = ScanDateInHead(bytes, length);
  const QString picture = PictureFrom(bytes, static_cast<size_t>(length));
  qsizetype total = shapes.first.size() + shapes.second.size();
  for (int form = 1; form <= 3; ++form) total += ExifDateTimeText(date, form, picture, picture).size();
  total += ExifDateTimeText(picture, 3, picture, picture).size();
  total += FormatDateTimePicture(picture, QDate(2004, 7, 15), QTime(18, 3, 9)).size();
  return total < 0 ? -1 : 0;
}

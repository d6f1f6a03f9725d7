#include "metadata/HeadScan.h"

namespace renvale::metadata {
namespace {

constexpr char kPattern[] = "####:##:## ##:##:##";
constexpr qint64 kShapeLength = 19;
constexpr qint64 kColonInShape = 4;
constexpr qint64 kResumeAfterMatch = 14;

bool MatchesAt(const char* data, qint64 size, qint64 start) {
  if (start < 0 || size - start < kShapeLength) return false;
  for (qint64 i = 0; i < kShapeLength; ++i) {
    const char c = data[start + i];
    if (kPattern[i] == '#' ? (c < '0' || c > '9') : c != kPattern[i]) return false;
  }
  return true;
}

qint64 NextColon(const char* data, qint64 size, qint64 from) {
  for (qint64 i = from; i < size; ++i) {
    if (data[i] == ':') return i;
  }
  return -1;
}

}  // namespace

DateShapes FindDateShapes(const char* data, qint64 size) {
  DateShapes shapes;
  if (data == nullptr || size <= 0) return shapes;
  int found = 0;
  qint64 colon = NextColon(data, size, 0);
  while (colon >= 0 && found < 2) {
    const qint64 start = colon - kColonInShape;
    qint64 resume = colon + 1;
    if (MatchesAt(data, size, start)) {
      const QString text = QString::fromLatin1(data + start, kShapeLength);
      (found == 0 ? shapes.first : shapes.second) = text;
      ++found;
      resume = colon + kResumeAfterMatch;
    }
    colon = NextColon(data, size, resume);
  }
  return shapes;
}

QString ScanDateInHead(const char* data, qint64 size) {
  const DateShapes shapes = FindDateShapes(data, size);
  return shapes.second.isEmpty() ? shapes.first : shapes.second;
}

}  // namespace renvale::metadata

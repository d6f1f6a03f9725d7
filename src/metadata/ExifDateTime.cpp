#include "metadata/ExifDateTime.h"

#include "metadata/DateTimePicture.h"

namespace renvale::metadata {
namespace {

const QDate kZeroDate(1899, 12, 30);
constexpr int kLayoutLength = 19;

// The digits of `part` with its colons removed, or empty when anything but
// `count` ASCII digits remains.
QString DigitsOf(QString part, qsizetype count) {
  part.remove(u':');
  if (part.size() != count) return {};
  for (QChar c : part) {
    if (c < u'0' || c > u'9') return {};
  }
  return part;
}

}  // namespace

bool ReadExifDateTime(const QString& text, QDate* date, QTime* time) {
  if (text.size() < kLayoutLength) return false;
  const QString d = DigitsOf(text.left(10), 8);
  const QString t = DigitsOf(text.right(8), 6);
  if (d.isEmpty() || t.isEmpty()) return false;
  const QDate readDate(d.left(4).toInt(), d.mid(4, 2).toInt(), d.right(2).toInt());
  const QTime readTime(t.left(2).toInt(), t.mid(2, 2).toInt(), t.right(2).toInt());
  if (!readDate.isValid() || !readTime.isValid()) return false;
  *date = readDate;
  *time = readTime;
  return true;
}

bool IsRealExifDateTime(const QString& text) {
  QDate date;
  QTime time;
  return ReadExifDateTime(text, &date, &time);
}

QString ExifDateTimeText(const QString& text, int form, const QString& dateFormat,
                         const QString& timeFormat) {
  QDate date;
  QTime time;
  if (!ReadExifDateTime(text, &date, &time)) return {};
  const QString dateText = FormatDateTimePicture(dateFormat, date, QTime(0, 0));
  const QString timeText = FormatDateTimePicture(timeFormat, kZeroDate, time);
  switch (form) {
    case kFormDate: return dateText;
    case kFormTime: return timeText;
    case kFormDateAndTime: return dateText + u' ' + timeText;
    default: return {};
  }
}

}  // namespace renvale::metadata

#include "metadata/ExifDateTime.h"

#include "metadata/DateTimePicture.h"

namespace renvale::metadata {
namespace {

const QDate kZeroDate(1899, 12, 30);
constexpr int kLayoutLength = 19;

// Reads the digits of `part`, skipping colons, into `digits`; false unless
// exactly `count` ASCII digits and nothing else are there.
bool DigitsOf(QStringView part, int count, int* digits) {
  int found = 0;
  for (QChar c : part) {
    if (c == u':') continue;
    if (c < u'0' || c > u'9' || found == count) return false;
    digits[found++] = c.unicode() - u'0';
  }
  return found == count;
}

int Number(const int* digits, int count) {
  int n = 0;
  for (int i = 0; i < count; ++i) n = n * 10 + digits[i];
  return n;
}

}  // namespace

bool ReadExifDateTime(const QString& text, QDate* date, QTime* time) {
  if (text.size() < kLayoutLength) return false;
  int d[8];
  int t[6];
  if (!DigitsOf(QStringView(text).left(10), 8, d) || !DigitsOf(QStringView(text).right(8), 6, t)) return false;
  const QDate readDate(Number(d, 4), Number(d + 4, 2), Number(d + 6, 2));
  const QTime readTime(Number(t, 2), Number(t + 2, 2), Number(t + 4, 2));
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

bool ExifDateAndTimeTexts(const QString& text, const QString& dateFormat, const QString& timeFormat,
                          QString* dateText, QString* timeText) {
  QDate date;
  QTime time;
  if (!ReadExifDateTime(text, &date, &time)) return false;
  *dateText = FormatDateTimePicture(dateFormat, date, QTime(0, 0));
  *timeText = FormatDateTimePicture(timeFormat, kZeroDate, time);
  return true;
}

QString ExifDateTimeText(const QString& text, int form, const QString& dateFormat,
                         const QString& timeFormat) {
  QString dateText;
  QString timeText;
  if (!ExifDateAndTimeTexts(text, dateFormat, timeFormat, &dateText, &timeText)) return {};
  switch (form) {
    case kFormDate: return dateText;
    case kFormTime: return timeText;
    case kFormDateAndTime: return dateText + u' ' + timeText;
    default: return {};
  }
}

}  // namespace renvale::metadata

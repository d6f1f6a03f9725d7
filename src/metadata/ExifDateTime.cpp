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

bool IsDateSeparator(QChar c) { return c == u':' || c == u'-' || c == u'/' || c == u'.'; }

// Reads `count` digits at `*at` into `out`, moving `*at` past them.
bool TakeDigits(QStringView text, qsizetype* at, int count, int* out) {
  int n = 0;
  for (int i = 0; i < count; ++i, ++*at) {
    if (*at >= text.size() || text[*at] < u'0' || text[*at] > u'9') return false;
    n = n * 10 + (text[*at].unicode() - u'0');
  }
  *out = n;
  return true;
}

bool TakeSeparator(QStringView text, qsizetype* at, bool (*accepts)(QChar)) {
  if (*at >= text.size() || !accepts(text[*at])) return false;
  ++*at;
  return true;
}

bool IsColon(QChar c) { return c == u':'; }

// The `width` last decimal digits of a non-negative `n`.
void PutDigits(char* out, int n, int width) {
  for (int i = width - 1; i >= 0; --i, n /= 10) out[i] = static_cast<char>('0' + n % 10);
}

}  // namespace

namespace {

// The six numbers of a date and time in any of the accepted layouts.
bool LayoutParts(QStringView text, int part[6]) {
  text = text.trimmed();
  qsizetype at = 0;
  if (!TakeDigits(text, &at, 4, &part[0]) || !TakeSeparator(text, &at, IsDateSeparator) ||
      !TakeDigits(text, &at, 2, &part[1]) || !TakeSeparator(text, &at, IsDateSeparator) ||
      !TakeDigits(text, &at, 2, &part[2])) {
    return false;
  }
  const qsizetype dateEnd = at;
  while (at < text.size() && text[at] == u' ') ++at;
  if (at == dateEnd && at < text.size() && text[at] == u'T') ++at;
  if (at == dateEnd || !TakeDigits(text, &at, 2, &part[3]) || !TakeSeparator(text, &at, IsColon) ||
      !TakeDigits(text, &at, 2, &part[4]) || !TakeSeparator(text, &at, IsColon) ||
      !TakeDigits(text, &at, 2, &part[5]) || at != text.size()) {
    return false;
  }
  return QDate::isValid(part[0], part[1], part[2]) && QTime::isValid(part[3], part[4], part[5]);
}

// Of a text whose parts were read: written in the layout already.
bool InLayout(QStringView text) {
  return text.size() == kLayoutLength && text[4] == u':' && text[7] == u':' && text[10] == u' ' &&
         text[13] == u':' && text[16] == u':';
}

// Written digit by digit: this runs for every picture of a batch, and a
// chain of arg() calls made a dozen strings for each.
QString Layout(const int part[6]) {
  char layout[kLayoutLength];
  PutDigits(layout, part[0], 4);
  PutDigits(layout + 5, part[1], 2);
  PutDigits(layout + 8, part[2], 2);
  PutDigits(layout + 11, part[3], 2);
  PutDigits(layout + 14, part[4], 2);
  PutDigits(layout + 17, part[5], 2);
  layout[4] = layout[7] = layout[13] = layout[16] = ':';
  layout[10] = ' ';
  return QString::fromLatin1(layout, kLayoutLength);
}

}  // namespace

QString ExifLayoutDateTime(QStringView text) {
  int part[6];
  return LayoutParts(text, part) ? Layout(part) : QString();
}

QString ExifLayoutDateTime(const QString& text) {
  int part[6];
  if (!LayoutParts(text, part)) return {};
  return InLayout(text) ? text : Layout(part);
}

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
  ExifDateAndTimeTexts(date, time, dateFormat, timeFormat, dateText, timeText);
  return true;
}

void ExifDateAndTimeTexts(const QDate& date, const QTime& time, const QString& dateFormat,
                          const QString& timeFormat, QString* dateText, QString* timeText) {
  *dateText = FormatDateTimePicture(dateFormat, date, QTime(0, 0));
  *timeText = FormatDateTimePicture(timeFormat, kZeroDate, time);
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

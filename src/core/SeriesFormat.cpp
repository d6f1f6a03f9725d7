#include "core/SeriesFormat.h"

#include <algorithm>

namespace renvale::core {

namespace {

bool IsBlank(QChar c) { return c == QLatin1Char(' ') || c == QLatin1Char('\t'); }

bool IsDigit(QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); }

}  // namespace

qint64 ReadSeriesNumber(const QString& text) {
  qsizetype i = 0;
  while (i < text.size() && IsBlank(text[i])) ++i;
  bool negative = false;
  if (i < text.size() && (text[i] == QLatin1Char('-') || text[i] == QLatin1Char('+'))) {
    negative = text[i] == QLatin1Char('-');
    ++i;
  }
  qint64 magnitude = 0;
  for (; i < text.size() && IsDigit(text[i]); ++i) {
    // Saturate instead of overflowing; a box full of nines stays usable.
    if (magnitude > kMaxSeriesNumber / 10) {
      magnitude = kMaxSeriesNumber;
      continue;
    }
    magnitude = magnitude * 10 + (text[i].unicode() - '0');
  }
  magnitude = qMin(magnitude, kMaxSeriesNumber);
  return negative ? -magnitude : magnitude;
}

QString SeriesPattern(int placeholders) {
  switch (placeholders) {
    case 0: return QStringLiteral("####");
    case 2: return QStringLiteral("0#");
    case 3: return QStringLiteral("00#");
    case 4: return QStringLiteral("000#");
    case 5: return QStringLiteral("0000#");
    default: return QString();
  }
}

// Made in one piece: a batch formats two numbers for every file.
QString FormatSeriesNumber(qint64 value, const QString& pattern) {
  if (pattern.isEmpty()) return QString();
  const qsizetype firstZero = pattern.indexOf(QLatin1Char('0'));
  const qsizetype minimumDigits = firstZero < 0 ? 0 : pattern.size() - firstZero;
  quint64 magnitude = value < 0 ? 0 - static_cast<quint64>(value) : static_cast<quint64>(value);
  char16_t digits[20];  // the last first
  qsizetype count = 0;
  for (; magnitude != 0; magnitude /= 10) digits[count++] = static_cast<char16_t>(u'0' + magnitude % 10);
  const qsizetype sign = value < 0 ? 1 : 0;
  QString text(sign + std::max(count, minimumDigits), QLatin1Char('0'));
  QChar* end = text.data() + text.size();
  for (qsizetype i = 0; i < count; ++i) *--end = QChar(digits[i]);
  if (sign != 0) text[0] = QLatin1Char('-');
  return text;
}

QString SeriesSeparator(const QString& seriesSpacing) {
  return seriesSpacing == QLatin1String("X") ? QString() : seriesSpacing;
}

}  // namespace renvale::core

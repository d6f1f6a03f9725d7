#include "core/SeriesFormat.h"

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

QString FormatSeriesNumber(qint64 value, const QString& pattern) {
  if (pattern.isEmpty()) return QString();
  const qsizetype firstZero = pattern.indexOf(QLatin1Char('0'));
  const qsizetype minimumDigits = firstZero < 0 ? 0 : pattern.size() - firstZero;
  const quint64 magnitude =
      value < 0 ? 0 - static_cast<quint64>(value) : static_cast<quint64>(value);
  QString digits = magnitude == 0 ? QString() : QString::number(magnitude);
  if (digits.size() < minimumDigits) {
    digits.prepend(QString(minimumDigits - digits.size(), QLatin1Char('0')));
  }
  return value < 0 ? QLatin1Char('-') + digits : digits;
}

QString SeriesSeparator(const QString& seriesSpacing) {
  return seriesSpacing == QLatin1String("X") ? QString() : seriesSpacing;
}

}  // namespace renvale::core

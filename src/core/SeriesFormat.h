#pragma once

#include <QString>

// Reading and printing series numbers. The next number lives only as the text
// of the "Next Series #:" box, so it is read back from whatever the user typed
// there and printed with the digit pattern chosen by "Placeholders".

namespace renvale::core {

// Values read from the box are clamped to this magnitude, which leaves room
// for +1 and for a batch's range v .. v+n-1 without overflow.
inline constexpr qint64 kMaxSeriesNumber = 999'999'999'999'999'999;

// Reads the box text as a decimal number: leading blanks and tabs are
// skipped, an optional sign may follow, reading stops at the first
// character that is not a digit. Empty or non-numeric text reads as 0
// ("abc" -> 0, "12abc" -> 12, "  -3" -> -3, "- 3" -> 0). Never fails.
qint64 ReadSeriesNumber(const QString& text);

// The pattern for a "Placeholders" value: 0 "####", 2 "0#", 3 "00#",
// 4 "000#", 5 "0000#"; any other value gives "", which prints nothing.
QString SeriesPattern(int placeholders);

// Prints `value` with a pattern of '0' and '#' digit positions: every
// position from the leftmost '0' to the end prints a digit (leading zeros
// included), a '#' left of it prints only a significant digit, and a value
// with more digits than the pattern prints all of them. Zero has no
// significant digit, so "####" prints nothing for 0 and "0#" prints "00".
// A negative value prints a minus sign before its digits. An empty pattern
// prints nothing.
QString FormatSeriesNumber(qint64 value, const QString& pattern);

// The separator written after an inserted number for a "SeriesSpacing"
// value: "X" means none; any other value is used as it is (" " or "-").
QString SeriesSeparator(const QString& seriesSpacing);

}  // namespace renvale::core

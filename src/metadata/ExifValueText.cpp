#include "metadata/ExifValueText.h"

#include <QStringList>
#include <cmath>

#include "metadata/ExifDateTime.h"
#include "metadata/ExifTexts.h"

namespace renvale::metadata {

namespace {

enum Type : quint16 {
  kByte = 1, kAscii = 2, kShort = 3, kLong = 4, kRational = 5, kSByte = 6,
  kUndefined = 7, kSShort = 8, kSLong = 9, kSRational = 10, kIfd = 13,
};

quint32 Unsigned(const ExifRawValue& value, int at, int size) {
  quint32 result = 0;
  for (int i = 0; i < size; ++i) {
    result = result << 8 | quint8(value.bytes[at + (value.bigEndian ? i : size - 1 - i)]);
  }
  return result;
}

// APEX values beyond these give exposure times and f-numbers no camera has.
constexpr double kMaxApex = 40.0;
constexpr double kLongestFraction = 0.2501;  // from 1/4 s down, times read as fractions
constexpr qint64 kFlashDefinedBits = 0x7F;

}  // namespace

QString ExifValueText::Format(ExifTag tag, const ExifRawValue& value) {
  double ratio = 0;
  switch (tag) {
    case ExifTag::DateTimeOriginal:
      return DateText(value);
    case ExifTag::Make:
    case ExifTag::Model:
      return Text(value);
    case ExifTag::ImageNumber:
      return value.type == kAscii ? Text(value) : IntegerText(value);
    case ExifTag::ExifImageWidth:
    case ExifTag::ExifImageLength:
    case ExifTag::IsoSpeedRatings:
      return IntegerText(value);
    case ExifTag::Orientation:
      return OrientationText(value);
    case ExifTag::ExifVersion:
      return Version(value);
    case ExifTag::ApertureValue:
      return ApertureText(value);
    case ExifTag::ShutterSpeedValue:
      return ShutterText(value);
    case ExifTag::FocalLength:
      return FocalLengthText(value);
    case ExifTag::ExposureBiasValue:
      return BiasText(value);
    case ExifTag::ExposureProgram:
      return ProgramText(value);
    case ExifTag::FNumber:
      return Ratio(value, &ratio) ? FNumberText(ratio) : QString();
    case ExifTag::Flash:
      return FlashText(value);
  }
  return {};
}

// Cameras write ASCII, some UTF-8; a byte sequence that is not valid UTF-8
// is read as Latin-1. Control characters would only garble a report line.
QString ExifValueText::Text(const ExifRawValue& value) {
  if (value.type != kAscii && value.type != kUndefined && value.type != kByte) return {};
  int length = 0;
  bool plain = true;  // printable ASCII only, the usual case: one conversion
  while (length < value.size && value.bytes[length] != '\0') {
    plain = plain && value.bytes[length] >= 0x20 && value.bytes[length] < 0x7F;
    ++length;
  }
  if (plain) {
    int start = 0;
    while (start < length && value.bytes[start] == ' ') ++start;
    while (length > start && value.bytes[length - 1] == ' ') --length;
    return QString::fromLatin1(value.bytes + start, length - start);
  }
  const QByteArray bytes(value.bytes, length);
  QString text = QString::fromUtf8(bytes);
  if (text.contains(QChar::ReplacementCharacter)) text = QString::fromLatin1(bytes);
  text.removeIf([](QChar c) { return c.unicode() < 0x20 || c.unicode() == 0x7F; });
  return text.trimmed();
}

// Cameras that do not know the date write blanks between the colons; a
// text without a single digit is no date and is better left absent, so
// that the fallbacks apply. Zeros are kept: the camera did write them.
// Some phones write dashes instead of colons: that date is read as meant.
QString ExifValueText::DateText(const ExifRawValue& value) {
  const QString text = Text(value);
  const QString layout = ExifLayoutDateTime(text);
  if (!layout.isEmpty()) return layout;
  for (const QChar c : text) {
    if (c.isDigit()) return text;
  }
  return {};
}

QString ExifValueText::Version(const ExifRawValue& value) {
  if (value.type != kUndefined && value.type != kAscii && value.type != kByte) return {};
  if (value.size < 4) return {};
  for (int i = 0; i < 4; ++i) {
    if (value.bytes[i] < 0x21 || value.bytes[i] > 0x7E) return {};
  }
  return QString::fromLatin1(value.bytes, 4);
}

// The first of the value's numbers, for the integer types.
bool ExifValueText::Integer(const ExifRawValue& value, qint64* out) {
  switch (value.type) {
    case kByte: *out = Unsigned(value, 0, 1); return value.size >= 1;
    case kShort: *out = Unsigned(value, 0, 2); return value.size >= 2;
    case kLong:
    case kIfd: *out = Unsigned(value, 0, 4); return value.size >= 4;
    case kSByte: *out = qint8(Unsigned(value, 0, 1)); return value.size >= 1;
    case kSShort: *out = qint16(Unsigned(value, 0, 2)); return value.size >= 2;
    case kSLong: *out = qint32(Unsigned(value, 0, 4)); return value.size >= 4;
    default: return false;
  }
}

// The first number of a (signed) rational, or of an integer type. 0/0 and
// n/0 mean "unknown" in EXIF.
bool ExifValueText::Ratio(const ExifRawValue& value, double* out) {
  if (value.type != kRational && value.type != kSRational) {
    qint64 integer = 0;
    if (!Integer(value, &integer)) return false;
    *out = double(integer);
    return true;
  }
  if (value.size < 8) return false;
  const quint32 num = Unsigned(value, 0, 4);
  const quint32 den = Unsigned(value, 4, 4);
  if (den == 0) return false;
  *out = value.type == kRational ? double(num) / double(den) : double(qint32(num)) / double(qint32(den));
  return std::isfinite(*out);
}

// Up to `decimals` places, without trailing zeros: 5.6, 14, 0.67.
QString ExifValueText::Decimal(double value, int decimals) {
  QString text = QString::number(value, 'f', decimals);
  if (text.contains(QLatin1Char('.'))) {
    while (text.endsWith(QLatin1Char('0'))) text.chop(1);
    if (text.endsWith(QLatin1Char('.'))) text.chop(1);
  }
  return text == QLatin1String("-0") ? QStringLiteral("0") : text;
}

QString ExifValueText::IntegerText(const ExifRawValue& value) {
  qint64 integer = 0;
  return Integer(value, &integer) ? QString::number(integer) : QString();
}

QString ExifValueText::OrientationText(const ExifRawValue& value) {
  qint64 code = 0;
  if (!Integer(value, &code) || code < 1 || code > 8) return {};
  return QString::fromLatin1(ExifTexts::kOrientation[code]);
}

QString ExifValueText::ProgramText(const ExifRawValue& value) {
  qint64 code = 0;
  if (!Integer(value, &code)) return {};
  if (code >= 0 && code <= 8) return QString::fromLatin1(ExifTexts::kExposureProgram[code]);
  return QString::fromLatin1(ExifTexts::kUnknown).arg(code);
}

// Bit 0 fired, bits 1-2 strobe return, bits 3-4 mode, bit 5 no flash
// function, bit 6 red-eye reduction. Higher bits are undefined: a value
// with any of them set was not written by a camera, and its low bits are no
// more to be trusted than the rest.
QString ExifValueText::FlashText(const ExifRawValue& value) {
  qint64 code = 0;
  if (!Integer(value, &code)) return {};
  if (code < 0 || code > kFlashDefinedBits) return QString::fromLatin1(ExifTexts::kFlashUnknown);
  if (code == 0) return QString::fromLatin1(ExifTexts::kFlashNone);
  if (code & 0x20) return QString::fromLatin1(ExifTexts::kFlashNoFunction);
  QStringList parts;
  const int mode = int(code >> 3) & 3;
  if (mode != 0) parts << QString::fromLatin1(ExifTexts::kFlashModes[mode]);
  parts << QString::fromLatin1((code & 1) ? ExifTexts::kFlashFired : ExifTexts::kFlashNotFired);
  const int strobe = int(code >> 1) & 3;
  if (strobe == 2) parts << QString::fromLatin1(ExifTexts::kFlashReturnNotDetected);
  if (strobe == 3) parts << QString::fromLatin1(ExifTexts::kFlashReturnDetected);
  if (code & 0x40) parts << QString::fromLatin1(ExifTexts::kFlashRedEye);
  QString text = parts.join(QLatin1String(ExifTexts::kFlashJoin));
  text[0] = text[0].toUpper();
  return text;
}

QString ExifValueText::FNumberText(double fNumber) {
  if (fNumber <= 0) return {};
  return QLatin1String(ExifTexts::kFNumberPrefix) + Decimal(fNumber, 1);
}

// ApertureValue is APEX: f-number = 2 ^ (Av / 2).
QString ExifValueText::ApertureText(const ExifRawValue& value) {
  double av = 0;
  if (!Ratio(value, &av) || std::fabs(av) > kMaxApex) return {};
  return FNumberText(std::pow(2.0, av / 2));
}

// ShutterSpeedValue is APEX: exposure time = 2 ^ -Tv seconds.
QString ExifValueText::ShutterText(const ExifRawValue& value) {
  double tv = 0;
  if (!Ratio(value, &tv) || std::fabs(tv) > kMaxApex) return {};
  const double seconds = std::pow(2.0, -tv);
  if (seconds < kLongestFraction) {
    return QLatin1String(ExifTexts::kFractionPrefix) + QString::number(std::llround(1 / seconds)) +
           QLatin1String(ExifTexts::kSecondsSuffix);
  }
  return Decimal(seconds, 1) + QLatin1String(ExifTexts::kSecondsSuffix);
}

QString ExifValueText::BiasText(const ExifRawValue& value) {
  double ev = 0;
  if (!Ratio(value, &ev)) return {};
  const QString number = Decimal(ev, 2);
  const bool positive = number != QLatin1String("0") && !number.startsWith(QLatin1Char('-'));
  return (positive ? QStringLiteral("+") : QString()) + number + QLatin1String(ExifTexts::kEvSuffix);
}

QString ExifValueText::FocalLengthText(const ExifRawValue& value) {
  double mm = 0;
  if (!Ratio(value, &mm) || mm <= 0) return {};
  return Decimal(mm, 1) + QLatin1String(ExifTexts::kMillimetreSuffix);
}

}  // namespace renvale::metadata

#include "core/TemplateFile.h"

#include <QStringDecoder>

#include "core/CoreTexts.h"

namespace renvale::core {

namespace {

// Windows-1252 differs from Latin-1 only in 0x80..0x9F. The five unassigned
// bytes map to the same code point, as Windows itself converts them.
constexpr char16_t kWindows1252High[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

QString DecodeWindows1252(const QByteArray& bytes) {
  QString text;
  text.reserve(bytes.size());
  for (const char byte : bytes) {
    const auto value = static_cast<unsigned char>(byte);
    text += (value >= 0x80 && value < 0xA0) ? QChar(kWindows1252High[value - 0x80]) : QChar(value);
  }
  return text;
}

bool IsBlank(QChar c) { return c == QLatin1Char(' ') || c == QLatin1Char('\t'); }

bool IsDelimiter(QChar c) {
  return c == QLatin1Char(',') || c == QLatin1Char('\r') || c == QLatin1Char('\n');
}

void SkipToDelimiter(const QString& text, qsizetype& pos) {
  while (pos < text.size() && !IsDelimiter(text[pos])) ++pos;
}

// A comma ends the field alone; a line end may be CR LF, CR or LF.
void ConsumeDelimiter(const QString& text, qsizetype& pos) {
  if (pos < text.size() && text[pos] == QLatin1Char(',')) {
    ++pos;
    return;
  }
  if (pos < text.size() && text[pos] == QLatin1Char('\r')) ++pos;
  if (pos < text.size() && text[pos] == QLatin1Char('\n')) ++pos;
}

// Reads one field from `text` at `pos` and moves `pos` past its delimiter.
// `pos` must point at a non-blank character inside the text.
QString ReadField(const QString& text, qsizetype& pos) {
  QString field;
  if (text[pos] == QLatin1Char('"')) {
    ++pos;
    const qsizetype close = text.indexOf(QLatin1Char('"'), pos);
    const qsizetype end = close < 0 ? text.size() : close;
    field = text.mid(pos, end - pos);
    pos = close < 0 ? text.size() : close + 1;
    SkipToDelimiter(text, pos);
  } else {
    const qsizetype start = pos;
    SkipToDelimiter(text, pos);
    field = text.mid(start, pos - start);
  }
  ConsumeDelimiter(text, pos);
  return field;
}

}  // namespace

QString TemplateFileName(const QString& typedName) {
  if (typedName.right(4).toLower() == texts::kTemplateExtension) return typedName;
  return typedName + texts::kTemplateExtension;
}

QByteArray WriteTemplate(const std::array<QString, kTemplateRecordCount>& captions) {
  QByteArray bytes;
  for (const QString& caption : captions) bytes += '"' + caption.toUtf8() + "\"\r\n";
  return bytes;
}

TemplateReadResult ReadTemplate(const QByteArray& bytes) {
  const QString text = DecodeTemplateText(bytes);
  TemplateReadResult result;
  qsizetype pos = 0;
  while (result.captions.size() < kTemplateRecordCount) {
    while (pos < text.size() && IsBlank(text[pos])) ++pos;
    if (pos >= text.size()) break;
    result.captions.push_back(ReadField(text, pos));
  }
  return result;
}

QString DecodeTemplateText(const QByteArray& bytes) {
  QStringDecoder utf8(QStringDecoder::Utf8);
  QString text = utf8.decode(bytes);
  if (!utf8.hasError()) return text;
  return DecodeWindows1252(bytes);
}

}  // namespace renvale::core

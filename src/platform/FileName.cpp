#include "platform/FileName.h"

namespace renvale::platform {

namespace {

// A stray byte b (0x80 to 0xFF) stands as U+F700 + b. A name that really
// holds a character of that range in valid UTF-8 has each of its three
// bytes escaped instead, so that every byte string comes back exactly.
constexpr char32_t kEscapeBase = 0xF700;
constexpr char32_t kFirstEscape = kEscapeBase + 0x80;
constexpr char32_t kLastEscape = kEscapeBase + 0xFF;

bool IsEscape(char32_t c) { return c >= kFirstEscape && c <= kLastEscape; }

bool IsContinuation(unsigned char b) { return (b & 0xC0) == 0x80; }

// The length of the valid UTF-8 sequence at `at` and its code point, or 0
// (overlong forms, surrogates and code points past U+10FFFF are invalid).
int ValidSequence(const unsigned char* s, qsizetype left, char32_t* codePoint) {
  const unsigned char b = s[0];
  int length = 0;
  char32_t low = 0;
  char32_t c = 0;
  if (b >= 0xC2 && b <= 0xDF) {
    length = 2, low = 0x80, c = b & 0x1F;
  } else if (b >= 0xE0 && b <= 0xEF) {
    length = 3, low = 0x800, c = b & 0x0F;
  } else if (b >= 0xF0 && b <= 0xF4) {
    length = 4, low = 0x10000, c = b & 0x07;
  } else {
    return 0;
  }
  if (left < length) return 0;
  for (int i = 1; i < length; ++i) {
    if (!IsContinuation(s[i])) return 0;
    c = (c << 6) | (s[i] & 0x3F);
  }
  if (c < low || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) return 0;
  *codePoint = c;
  return length;
}

void AppendCodePoint(QString* text, char32_t c) {
  if (c < 0x10000) {
    text->append(QChar(static_cast<char16_t>(c)));
  } else {
    text->append(QChar(QChar::highSurrogate(c)));
    text->append(QChar(QChar::lowSurrogate(c)));
  }
}

bool IsAscii(const QByteArray& bytes) {
  for (const char c : bytes) {
    if (static_cast<unsigned char>(c) >= 0x80) return false;
  }
  return true;
}

}  // namespace

QString FileName::NameToText(const QByteArray& name) {
  QString text;
  text.reserve(name.size());
  AppendNameText(name, &text);
  return text;
}

void FileName::AppendNameText(const QByteArray& name, QString* text) {
  if (IsAscii(name)) {
    text->append(QLatin1StringView(name));
    return;
  }
  const auto* s = reinterpret_cast<const unsigned char*>(name.constData());
  const qsizetype size = name.size();
  for (qsizetype at = 0; at < size;) {
    if (s[at] < 0x80) {
      text->append(QLatin1Char(static_cast<char>(s[at++])));
      continue;
    }
    char32_t c = 0;
    const int length = ValidSequence(s + at, size - at, &c);
    if (length > 0 && !IsEscape(c)) {
      AppendCodePoint(text, c);
      at += length;
      continue;
    }
    // A stray byte, or the first byte of a character the escape uses: the
    // sequence's other bytes are stray bytes too and follow one by one.
    text->append(QChar(static_cast<char16_t>(kEscapeBase + s[at++])));
  }
}

QByteArray FileName::TextToName(QStringView text) {
  qsizetype from = 0;
  QByteArray name;
  for (qsizetype at = 0; at < text.size(); ++at) {
    const char16_t c = text[at].unicode();
    if (!IsEscape(c)) continue;
    name += text.sliced(from, at - from).toUtf8();
    name += static_cast<char>(c - kEscapeBase);
    from = at + 1;
  }
  if (from == 0) return text.toUtf8();
  name += text.sliced(from).toUtf8();
  return name;
}

}  // namespace renvale::platform

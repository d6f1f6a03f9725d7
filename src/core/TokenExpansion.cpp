#include "core/TokenExpansion.h"

#include <initializer_list>

#include "core/CoreTexts.h"

namespace renvale::core {

namespace {

enum class Detection { UpperCasedText, ExactSpellings };

struct Step {
  Token token;
  bool replaceLower;  // false: the upper-case spelling is replaced twice instead
};

char16_t AsciiLower(char16_t c) { return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c + 32) : c; }

// Tokens are ASCII, so ASCII text is compared directly; a character beyond
// ASCII may still fold to an ASCII letter (the Kelvin sign to "k"), and
// then the full comparison decides.
bool StartsWithNoCase(QStringView text, const QString& token) {
  if (text.size() < token.size()) return false;
  for (qsizetype i = 0; i < token.size(); ++i) {
    const char16_t c = text[i].unicode();
    if (c >= 0x80) return text.startsWith(token, Qt::CaseInsensitive);
    if (AsciiLower(c) != AsciiLower(token[i].unicode())) return false;
  }
  return true;
}

// Searching without regard to case finds what searching the upper-cased
// text finds, without making an upper-cased copy for every token. Every token
// begins with "%", which no other character folds to, so only the places
// where a "%" stands need a comparison.
bool ContainsNoCase(const QString& text, const QString& token) {
  for (qsizetype at = text.indexOf(u'%'); at >= 0; at = text.indexOf(u'%', at + 1)) {
    if (StartsWithNoCase(QStringView(text).sliced(at), token)) return true;
  }
  return false;
}

bool IsFound(const QString& text, Token token, Detection detection) {
  if (detection == Detection::UpperCasedText) return ContainsNoCase(text, TokenUpper(token));
  return text.contains(TokenUpper(token)) || text.contains(TokenLower(token));
}

QString Expand(QString text, std::initializer_list<Step> steps, Detection detection,
               const TokenValueFunction& valueOf) {
  for (const Step& step : steps) {
    if (!IsFound(text, step.token, detection)) continue;
    const QString value = valueOf(step.token);
    text.replace(TokenUpper(step.token), value);
    text.replace(step.replaceLower ? TokenLower(step.token) : TokenUpper(step.token), value);
  }
  return text;
}

}  // namespace

namespace {

constexpr int kTokenCount = static_cast<int>(Token::Track) + 1;

struct Spellings {
  QString upper[kTokenCount];
  QString lower[kTokenCount];
};

// Built once: expansion asks for every spelling of every token per file.
const Spellings& TokenSpellings() {
  static const Spellings spellings = [] {
    Spellings s;
    const QString upper[kTokenCount] = {texts::kTokenOrigFn, texts::kTokenDate,   texts::kTokenTime,
                                        texts::kTokenDateTime, texts::kTokenSeries, texts::kTokenSerial,
                                        texts::kTokenTitle,  texts::kTokenArtist, texts::kTokenAlbum,
                                        texts::kTokenTrack};
    for (int i = 0; i < kTokenCount; ++i) {
      s.upper[i] = upper[i];
      s.lower[i] = upper[i].toLower();
    }
    return s;
  }();
  return spellings;
}

}  // namespace

const QString& TokenUpper(Token token) { return TokenSpellings().upper[static_cast<int>(token)]; }

const QString& TokenLower(Token token) { return TokenSpellings().lower[static_cast<int>(token)]; }

bool MentionsExifToken(const QString& name) {
  for (Token token : {Token::Date, Token::Time, Token::DateTime, Token::Serial}) {
    if (IsFound(name, token, Detection::UpperCasedText)) return true;
  }
  return false;
}

QString ExpandIndividualTokens(const QString& name, const TokenValueFunction& valueOf) {
  return Expand(name,
                {{Token::OrigFn, true}, {Token::Date, true}, {Token::Time, true},
                 {Token::DateTime, true}, {Token::Series, true}},
                Detection::UpperCasedText, valueOf);
}

QString ExpandBatchTokens(const QString& name, const TokenValueFunction& valueOf) {
  return Expand(name,
                {{Token::Title, true}, {Token::Artist, true}, {Token::Album, true},
                 {Token::Track, true}, {Token::OrigFn, true}, {Token::Date, true},
                 {Token::Time, true}, {Token::DateTime, true}, {Token::Serial, false},
                 {Token::Series, true}},
                Detection::UpperCasedText, valueOf);
}

QString ExpandButtonTokens(const QString& text, const TokenValueFunction& valueOf) {
  return Expand(text,
                {{Token::Date, true}, {Token::Time, true}, {Token::DateTime, true},
                 {Token::Series, true}, {Token::OrigFn, true}},
                Detection::ExactSpellings, valueOf);
}

}  // namespace renvale::core

#include "core/TokenExpansion.h"

#include <algorithm>
#include <bit>
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

constexpr int kTokenCount = static_cast<int>(Token::Track) + 1;

using TokenSet = unsigned;

struct Spellings {
  QString upper[kTokenCount];
  QString lower[kTokenCount];
  TokenSet byLetter[128] = {};  // the tokens whose first letter folds to this ASCII character
};

// Built once: expansion looks for every token in every file's name.
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
      s.byLetter[s.upper[i][1].unicode()] |= 1u << i;
      s.byLetter[s.lower[i][1].unicode()] |= 1u << i;
    }
    return s;
  }();
  return spellings;
}

TokenSet Bit(Token token) { return 1u << static_cast<int>(token); }

constexpr TokenSet kEveryToken = (TokenSet{1} << kTokenCount) - 1;

// Every token begins with "%", which no other character folds to, so only
// the places where a "%" stands need a comparison; searching there without
// regard to case finds what searching the upper-cased text would find.
bool StartsWithSpelling(QStringView text, const Spellings& spellings, int token, Detection detection) {
  if (detection == Detection::UpperCasedText) return StartsWithNoCase(text, spellings.upper[token]);
  return text.startsWith(spellings.upper[token]) || text.startsWith(spellings.lower[token]);
}

// The tokens the text holds, found in one pass: a name is expanded for
// every file of a card, and most tokens are in no name. The letter after a
// "%" rules out most tokens before any comparison, unless it lies beyond
// ASCII and might fold to one.
TokenSet FoundTokens(QStringView text, Detection detection) {
  const Spellings& spellings = TokenSpellings();
  const char16_t* chars = text.utf16();
  TokenSet found = 0;
  for (qsizetype at = 0; at + 1 < text.size(); ++at) {
    if (chars[at] != u'%') continue;
    const char16_t next = chars[at + 1];
    const TokenSet candidates = next < 0x80 ? spellings.byLetter[next] : kEveryToken;
    for (TokenSet left = candidates & ~found; left != 0; left &= left - 1) {
      const int t = std::countr_zero(left);
      if (StartsWithSpelling(text.sliced(at), spellings, t, detection)) found |= 1u << t;
    }
  }
  return found;
}

// A batch expands the same name for every file: its tokens are found once
// per thread and kept for as long as the name stays the same.
TokenSet FoundTokensOfName(const QString& name, Detection detection) {
  struct Kept {
    QString name;
    Detection detection = Detection::UpperCasedText;
    TokenSet found = 0;
  };
  thread_local Kept kept;
  if (kept.detection != detection || kept.name != name) kept = {name, detection, FoundTokens(name, detection)};
  return kept.found;
}

// A name's first and last letters, as far as a search without regard to
// case goes: beyond ASCII a character may fold to a letter.
bool MayEndName(char16_t c) { return c >= 0x80 || (AsciiLower(c) >= u'a' && AsciiLower(c) <= u'z'); }

// A token is a "%", a name of letters (and the blank of "%DATE TIME%"),
// and a "%". A token made by a replacement holds the whole value, so a
// value with a character no name holds, and no "%", makes none: a date
// or a series number.
bool MakesNoToken(const QString& value) {
  bool foreign = false;
  for (const QChar c : value) {
    if (c == u'%') return false;
    foreign = foreign || !(MayEndName(c.unicode()) || c == u' ');
  }
  return foreign;
}

// What QString::replace does for a spelling, in place and without building
// a matcher for each call. False when the spelling is not there. `touched`
// is set where a letter stands right before or after a replacement: a
// token that shared a "%" with the spelling may be broken there.
bool ReplaceSpelling(QString* text, const QString& spelling, const QString& value, bool* touched) {
  const qsizetype length = spelling.size();
  const QChar* wanted = spelling.constData();
  bool found = false;
  for (qsizetype at = 0;; at += value.size()) {
    const QChar* chars = text->constData();
    const qsizetype last = text->size() - length;
    while (at <= last && (chars[at] != wanted[0] || !std::equal(wanted + 1, wanted + length, chars + at + 1))) ++at;
    if (at > last) return found;
    *touched = *touched || (at > 0 && MayEndName(chars[at - 1].unicode())) ||
               (at < last && MayEndName(chars[at + length].unicode()));
    text->replace(at, length, value);
    found = true;
  }
}

// A replacement may bring a spelling in with its value, or make or break
// one across its edges, so the text is searched again after each, unless
// it can have done neither.
QString Expand(QString text, std::initializer_list<Step> steps, Detection detection,
               const TokenValueFunction& valueOf) {
  TokenSet found = FoundTokensOfName(text, detection);
  // Room for the values, made once rather than at each replacement.
  if (found != 0) text.reserve(text.size() + 64);
  for (const Step* step = steps.begin(); step != steps.end(); ++step) {
    if ((found & Bit(step->token)) == 0) continue;
    const QString value = valueOf(step->token);
    bool touched = false;
    bool changed = ReplaceSpelling(&text, TokenUpper(step->token), value, &touched);
    changed |= ReplaceSpelling(&text, step->replaceLower ? TokenLower(step->token) : TokenUpper(step->token), value,
                               &touched);
    if (changed && step + 1 != steps.end() && (touched || !MakesNoToken(value))) {
      found = FoundTokens(text, detection);
    }
  }
  return text;
}

}  // namespace

const QString& TokenUpper(Token token) { return TokenSpellings().upper[static_cast<int>(token)]; }

const QString& TokenLower(Token token) { return TokenSpellings().lower[static_cast<int>(token)]; }

bool MentionsExifToken(const QString& name) {
  const TokenSet fromFile = Bit(Token::Date) | Bit(Token::Time) | Bit(Token::DateTime) | Bit(Token::Serial);
  return (FoundTokens(name, Detection::UpperCasedText) & fromFile) != 0;
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

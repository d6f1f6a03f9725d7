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

bool IsFound(const QString& text, Token token, Detection detection) {
  // Searching without regard to case finds what searching the upper-cased
  // text finds, without making an upper-cased copy for every token.
  if (detection == Detection::UpperCasedText) return text.contains(TokenUpper(token), Qt::CaseInsensitive);
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

QString TokenUpper(Token token) {
  switch (token) {
    case Token::OrigFn: return texts::kTokenOrigFn;
    case Token::Date: return texts::kTokenDate;
    case Token::Time: return texts::kTokenTime;
    case Token::DateTime: return texts::kTokenDateTime;
    case Token::Series: return texts::kTokenSeries;
    case Token::Serial: return texts::kTokenSerial;
    case Token::Title: return texts::kTokenTitle;
    case Token::Artist: return texts::kTokenArtist;
    case Token::Album: return texts::kTokenAlbum;
    case Token::Track: return texts::kTokenTrack;
  }
  return QString();
}

QString TokenLower(Token token) { return TokenUpper(token).toLower(); }

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

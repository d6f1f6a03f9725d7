#include <gtest/gtest.h>

#include <map>
#include <vector>

#include "core/TokenExpansion.h"

namespace renvale::test {
namespace {

using core::Token;

// Hands out fixed values and records which tokens were asked for, in order.
struct ValueLog {
  std::map<Token, QString> values{
      {Token::OrigFn, "IMG_1"},  {Token::Date, "2004-05-01"}, {Token::Time, "10-11-12"},
      {Token::DateTime, "2004-05-01 10-11-12"}, {Token::Series, "07"}, {Token::Serial, "1234"},
      {Token::Title, "Song"},    {Token::Artist, "Band"},      {Token::Album, "LP"},
      {Token::Track, "3"}};
  std::vector<Token> asked;

  core::TokenValueFunction Function() {
    return [this](Token token) {
      asked.push_back(token);
      return values[token];
    };
  }
};

using Expand = QString (*)(const QString&, const core::TokenValueFunction&);

TEST(TokenExpansion, SpellingsOrderAndValuesAskedFor) {
  const Expand individual = core::ExpandIndividualTokens;
  const Expand batch = core::ExpandBatchTokens;
  const Expand button = core::ExpandButtonTokens;
  struct Case {
    Expand expand;
    const char* text;
    const char* expected;
    std::vector<Token> asked;
  } cases[] = {
      // Individual: both exact spellings replaced, a mixed case kept.
      {individual, "%ORIGFN% %origfn% %OrigFN%.jpg", "IMG_1 IMG_1 %OrigFN%.jpg", {Token::OrigFn}},
      // A mixed-case series token is found, so a number is consumed, yet it stays.
      {individual, "a %Series%", "a %Series%", {Token::Series}},
      // So is one whose letters only fold to the token's: the long s and the Kelvin sign.
      {individual, "%\u017FERIES%", "%\u017FERIES%", {Token::Series}},
      {batch, "%TRAC\u212A%", "%TRAC\u212A%", {Token::Track}},
      {individual, "%ORIG", "%ORIG", {}},
      {individual, "%date time% %DATE TIME%", "2004-05-01 10-11-12 2004-05-01 10-11-12", {Token::DateTime}},
      // Two tokens sharing a percent sign: the date goes first and takes it.
      {individual, "%DATE%TIME%", "2004-05-01TIME%", {Token::Date}},
      {individual, "%SERIES% %TIME% %DATE% %TITLE%", "07 10-11-12 2004-05-01 %TITLE%",
       {Token::Date, Token::Time, Token::Series}},
      {batch, "%series%%SERIAL%%date time%%TIME%%DATE%%ORIGFN%%track%%ALBUM%%artist%%TITLE%",
       "0712342004-05-01 10-11-1210-11-122004-05-01IMG_13LPBandSong",
       {Token::Title, Token::Artist, Token::Album, Token::Track, Token::OrigFn, Token::Date, Token::Time,
        Token::DateTime, Token::Serial, Token::Series}},
      // Lower-case serial is asked for but never replaced.
      {batch, "%serial% %SERIAL% %SERIAL%", "%serial% 1234 1234", {Token::Serial}},
      // Buttons: exact spellings only, nothing asked for a mixed case.
      {button, "Trip %DATE% %Date% %serial% %title%", "Trip 2004-05-01 %Date% %serial% %title%", {Token::Date}},
      {button, "%origfn%-%series%", "IMG_1-07", {Token::Series, Token::OrigFn}},
  };
  for (const Case& c : cases) {
    ValueLog log;
    EXPECT_EQ(c.expand(c.text, log.Function()), c.expected) << c.text;
    EXPECT_EQ(log.asked, c.asked) << c.text;
  }
}

}  // namespace
}  // namespace renvale::test

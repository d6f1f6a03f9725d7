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

TEST(IndividualTokens, BothExactSpellingsReplacedMixedCaseKeptButCounted) {
  ValueLog log;
  EXPECT_EQ(core::ExpandIndividualTokens("%ORIGFN% %origfn% %OrigFN%.jpg", log.Function()),
            "IMG_1 IMG_1 %OrigFN%.jpg");
  EXPECT_EQ(log.asked, std::vector<Token>{Token::OrigFn});

  log.asked.clear();
  // A mixed-case series token is found, so a number is consumed, yet it stays.
  EXPECT_EQ(core::ExpandIndividualTokens("a %Series%", log.Function()), "a %Series%");
  EXPECT_EQ(log.asked, std::vector<Token>{Token::Series});
}

TEST(IndividualTokens, DateTimeIsNotMistakenForDateOrTime) {
  ValueLog log;
  EXPECT_EQ(core::ExpandIndividualTokens("%date time% %DATE TIME%", log.Function()),
            "2004-05-01 10-11-12 2004-05-01 10-11-12");
  EXPECT_EQ(log.asked, std::vector<Token>{Token::DateTime});

  // Two tokens sharing a percent sign: the date goes first and takes it.
  log.asked.clear();
  EXPECT_EQ(core::ExpandIndividualTokens("%DATE%TIME%", log.Function()), "2004-05-01TIME%");
  EXPECT_EQ(log.asked, std::vector<Token>{Token::Date});
}

TEST(IndividualTokens, FixedOrderAndLaterStepsSeeEarlierValues) {
  ValueLog log;
  log.values[Token::OrigFn] = "x%date%";  // a name may hold a token spelling
  EXPECT_EQ(core::ExpandIndividualTokens("%SERIES% %TIME% %DATE% %ORIGFN% %TITLE%", log.Function()),
            "07 10-11-12 2004-05-01 x2004-05-01 %TITLE%");
  EXPECT_EQ(log.asked,
            (std::vector<Token>{Token::OrigFn, Token::Date, Token::Time, Token::Series}));
}

TEST(BatchTokens, FixedOrderWithEveryToken) {
  ValueLog log;
  EXPECT_EQ(core::ExpandBatchTokens("%series%%SERIAL%%date time%%TIME%%DATE%%ORIGFN%"
                                    "%track%%ALBUM%%artist%%TITLE%",
                                    log.Function()),
            "0712342004-05-01 10-11-1210-11-122004-05-01IMG_13LPBandSong");
  EXPECT_EQ(log.asked, (std::vector<Token>{Token::Title, Token::Artist, Token::Album, Token::Track,
                                           Token::OrigFn, Token::Date, Token::Time, Token::DateTime,
                                           Token::Serial, Token::Series}));
}

TEST(BatchTokens, LowerCaseSerialIsAskedForButNeverReplaced) {
  ValueLog log;
  EXPECT_EQ(core::ExpandBatchTokens("%serial% %SERIAL% %SERIAL%", log.Function()),
            "%serial% 1234 1234");
  EXPECT_EQ(log.asked, std::vector<Token>{Token::Serial});
}

TEST(ButtonTokens, ExactSpellingsOnlyAndNothingAskedForMixedCase) {
  ValueLog log;
  EXPECT_EQ(core::ExpandButtonTokens("Trip %DATE%", log.Function()), "Trip 2004-05-01");
  EXPECT_EQ(core::ExpandButtonTokens("%Date% %serial% %title%", log.Function()),
            "%Date% %serial% %title%");
  EXPECT_EQ(log.asked, std::vector<Token>{Token::Date});

  log.asked.clear();
  EXPECT_EQ(core::ExpandButtonTokens("%origfn%-%series%", log.Function()), "IMG_1-07");
  EXPECT_EQ(log.asked, (std::vector<Token>{Token::Series, Token::OrigFn}));
}

}  // namespace
}  // namespace renvale::test

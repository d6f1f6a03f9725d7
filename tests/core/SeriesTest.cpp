#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <vector>

#include "core/RandomSeriesPool.h"
#include "core/SeriesFormat.h"

namespace renvale::test {
namespace {

TEST(SeriesFormat, ReadsTheBoxLikeANumberPrefix) {
  struct Case { const char* text; qint64 value; };
  const Case cases[] = {
      {"", 0},       {"abc", 0},     {"  42", 42}, {"\t7x", 7},   {"12abc3", 12},
      {"0007", 7},   {"-3", -3},     {"+5", 5},    {"- 3", 0},    {"3 4", 3},
      {"1.9", 1},    {"999999999999999990", 999'999'999'999'999'990},
      {"99999999999999999999999", core::kMaxSeriesNumber},
      {"-99999999999999999999999", -core::kMaxSeriesNumber},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(core::ReadSeriesNumber(QString::fromUtf8(c.text)), c.value) << c.text;
  }
}

TEST(SeriesFormat, PatternsPrintAsTheOptionsShow) {
  struct Case { int placeholders; qint64 value; const char* text; };
  const Case cases[] = {
      {0, 7, "7"},      {0, 123, "123"},   {0, 0, ""},         {2, 7, "07"},   {2, 123, "123"},
      {2, 0, "00"},     {3, 7, "007"},     {4, 7, "0007"},     {4, 123, "0123"},
      {5, 7, "00007"},  {5, 123456, "123456"}, {2, -3, "-03"}, {1, 7, ""},     {6, 7, ""},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(core::FormatSeriesNumber(c.value, core::SeriesPattern(c.placeholders)), c.text)
        << c.placeholders << " " << c.value;
  }
}

std::vector<qint64> DrawAll(core::RandomSeriesPool& pool) {
  std::vector<qint64> drawn;
  while (auto value = pool.Draw()) drawn.push_back(*value);
  return drawn;
}

TEST(RandomSeriesPool, SourceOutsideRangeStillDrawsEveryNumberOnce) {
  const double answers[] = {1.0, -2.0, std::numeric_limits<double>::quiet_NaN(), 7.5};
  int call = 0;
  core::RandomSeriesPool pool(1, 6, [&] { return answers[call++ % 4]; });
  std::vector<qint64> drawn = DrawAll(pool);
  std::sort(drawn.begin(), drawn.end());
  EXPECT_EQ(drawn, (std::vector<qint64>{1, 2, 3, 4, 5, 6}));
  EXPECT_EQ(pool.Size(), 0);
  EXPECT_FALSE(core::RandomSeriesPool(1, -4, [] { return 0.0; }).Draw().has_value());
}

}  // namespace
}  // namespace renvale::test

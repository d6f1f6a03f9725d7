#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <set>
#include <vector>

#include "core/RandomSeriesPool.h"
#include "core/SeriesCounter.h"
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

class StringBox : public core::SeriesBox {
 public:
  explicit StringBox(QString text) : text_(std::move(text)) {}
  QString Text() const override { return text_; }
  void SetText(const QString& text) override { text_ = text; }

 private:
  QString text_;
};

struct CounterFixture : ::testing::Test {
  core::SettingsRecord settings;
  StringBox box{QStringLiteral("1")};
  core::SeriesCounter counter{box, settings};
};

TEST_F(CounterFixture, TakeHandsOutAndAdvancesTheBox) {
  box.SetText("99");
  EXPECT_EQ(counter.TakeSeriesText(), "99");
  EXPECT_EQ(box.Text(), "100");
  box.SetText("abc");
  EXPECT_EQ(counter.TakeSeriesText(), "00");
  EXPECT_EQ(box.Text(), "01");
}

TEST_F(CounterFixture, ReformatStepBackAndResetFollowTheCurrentPattern) {
  settings.placeholders = 4;
  box.SetText(" 7 apples");
  counter.ReformatSeriesBox();
  EXPECT_EQ(box.Text(), "0007");
  counter.StepBackSeries();
  EXPECT_EQ(box.Text(), "0006");
  counter.ResetSeries();
  EXPECT_EQ(box.Text(), "0001");
  settings.placeholders = 9;  // outside the offered values: prints nothing
  EXPECT_EQ(counter.TakeSeriesText(), "");
  EXPECT_EQ(box.Text(), "");
}

TEST_F(CounterFixture, InsertionTextConsumesOnlyInIndividualMode) {
  settings.placeholders = 3;
  box.SetText("7");
  EXPECT_EQ(counter.InsertionText(true), "%SERIES% ");
  EXPECT_EQ(box.Text(), "7");
  settings.seriesSpacing = "X";
  EXPECT_EQ(counter.InsertionText(false), "007");
  settings.seriesSpacing = "-";
  EXPECT_EQ(counter.InsertionText(false), "008-");
  counter.PutNextValue(12);  // the random batch's way in
  EXPECT_EQ(counter.InsertionText(false), "012-");
  EXPECT_EQ(box.Text(), "013");
}

std::vector<qint64> DrawAll(core::RandomSeriesPool& pool) {
  std::vector<qint64> drawn;
  while (auto value = pool.Draw()) drawn.push_back(*value);
  return drawn;
}

TEST(RandomSeriesPool, KthRemainingEntryIsTaken) {
  // k = floor(size * r) + 1 of what is left: with r = 0.5, 3rd of 10..14 ->
  // 12, 3rd of {10,11,13,14} -> 13, 2nd of {10,11,14} -> 11, 2nd of {10,14} -> 14.
  core::RandomSeriesPool first(7, 3, [] { return 0.0; });
  EXPECT_EQ(DrawAll(first), (std::vector<qint64>{7, 8, 9}));
  core::RandomSeriesPool middle(10, 5, [] { return 0.5; });
  EXPECT_EQ(DrawAll(middle), (std::vector<qint64>{12, 13, 11, 14, 10}));
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

TEST(RandomSeriesPool, TimeSeededPoolIsAPermutation) {
  const int count = 1000;
  core::RandomSeriesPool pool(-5, count, core::RandomSeriesPool::TimeSeededSource());
  const std::vector<qint64> drawn = DrawAll(pool);
  const std::set<qint64> distinct(drawn.begin(), drawn.end());
  ASSERT_EQ(drawn.size(), static_cast<size_t>(count));
  EXPECT_EQ(distinct.size(), static_cast<size_t>(count));
  EXPECT_EQ(*distinct.begin(), -5);
  EXPECT_EQ(*distinct.rbegin(), -5 + count - 1);
  EXPECT_FALSE(std::is_sorted(drawn.begin(), drawn.end()));
}

}  // namespace
}  // namespace renvale::test

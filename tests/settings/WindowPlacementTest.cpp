#include <gtest/gtest.h>

#include <QLocale>

#include "core/WindowPlacement.h"

namespace renvale::test {
namespace {

using core::ApplyStoredPlacement;
using core::StoredPlacement;
using core::TwipRect;

// A 1024 x 768 pixel screen at 96 dots per inch.
constexpr core::TwipSize kScreen{15360, 11520};

TEST(WindowPlacement, StoredPlacementIsAppliedWithFloorsAndScreenFit) {
  const TwipRect design{2812, 1627, 9735, 8265};  // left, top, width, height
  ASSERT_EQ(core::DesignPlacement(kScreen), design);
  const struct {
    const char* what;
    StoredPlacement stored;  // top, left, height, width
    TwipRect expected;
  } cases[]{
      {"nothing stored", {}, design},
      {"top without left", {"1200", "", "", ""}, design},
      {"height without width", {"", "", "5000", ""}, design},
      {"position", {"1200", "300", "", ""}, {300, 1200, 9735, 8265}},
      {"negative position", {"-20", "-1", "", ""}, {0, 0, 9735, 8265}},
      {"negative size", {"", "", "-5", "800"}, {2812, 1627, 800, 1000}},
      {"left off screen", {"100", "30000", "", ""}, {0, 100, 9735, 8265}},
      {"left reachable", {"100", "14000", "", ""}, {14000, 100, 9735, 8265}},
      {"left at the margin", {"100", "14860", "", ""}, {14860, 100, 9735, 8265}},
      {"left past the margin", {"100", "14861", "", ""}, {0, 100, 9735, 8265}},
      {"top past the margin", {"11021", "50", "", ""}, {50, 0, 9735, 8265}},
      {"not numbers", {"abc", "x", "", ""}, {0, 0, 9735, 8265}},
      {"decimals and blanks", {" 1200.6", "300.4px", "", ""}, {300, 1201, 9735, 8265}},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(ApplyStoredPlacement(c.stored, design, kScreen), c.expected) << c.what;
  }
  // The screen fit holds even with nothing stored.
  EXPECT_EQ(ApplyStoredPlacement({}, {20000, 12000, 10, 10}, kScreen), (TwipRect{0, 0, 10, 10}));
}

TEST(WindowPlacement, NumbersReadAlikeInEveryLocale) {
  const QLocale previous;
  QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
  EXPECT_EQ(core::TwipsFromText("1234.5"), 1235);
  EXPECT_EQ(core::TwipsFromText("1.234"), 1);
  EXPECT_EQ(core::TwipsFromText("99999999999"), INT_MAX);
  QLocale::setDefault(previous);
}

}  // namespace
}  // namespace renvale::test

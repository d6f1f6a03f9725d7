#include <gtest/gtest.h>

#include "TempSettingsFile.h"
#include "core/QuickTipFlags.h"

namespace renvale::test {
namespace {

using core::QuickTipFlags;

// Opens the file afresh, so the answer comes from what reached the disk.
QStringList TipsOff(const TempSettingsFile& file) {
  const auto storage = file.Open();
  QStringList off;
  for (int tip = 1; tip <= 21; ++tip) {
    if (QuickTipFlags(*storage).IsTipOff(tip)) off << QString::number(tip);
  }
  return off.isEmpty() ? QStringList{"none"} : off;
}

TEST(QuickTipFlags, RestoreBringsBackTipsUpTo18Only) {
  TempSettingsFile file;
  const auto storage = file.Open();
  QuickTipFlags flags(*storage);
  for (int tip = 1; tip <= 21; ++tip) flags.TurnTipOff(tip);
  flags.TurnAllTipsOff();
  flags.RestoreQuickTips();
  EXPECT_EQ(TipsOff(file), (QStringList{"19", "20", "21"}));
}

}  // namespace
}  // namespace renvale::test

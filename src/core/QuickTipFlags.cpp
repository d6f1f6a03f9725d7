#include "core/QuickTipFlags.h"

#include "core/SettingNames.h"

namespace renvale::core {

namespace {

QString TipName(int tipNumber) { return setting::Numbered(setting::kNoTipPrefix, tipNumber); }

}  // namespace

bool QuickTipFlags::IsTipOff(int tipNumber) const {
  return storage_.ReadSettingString(setting::kMainKey, setting::kNoTipsAtAll) == setting::kOn ||
         storage_.ReadSettingString(setting::kMainKey, TipName(tipNumber)) == setting::kOn;
}

void QuickTipFlags::TurnTipOff(int tipNumber) {
  storage_.WriteSettingString(setting::kMainKey, TipName(tipNumber), setting::kOn);
}

void QuickTipFlags::TurnAllTipsOff() {
  storage_.WriteSettingString(setting::kMainKey, setting::kNoTipsAtAll, setting::kOn);
}

void QuickTipFlags::RestoreQuickTips() {
  storage_.WriteSettingString(setting::kMainKey, setting::kNoTipsAtAll, setting::kOff);
  for (int tip = 1; tip <= kLastRestoredTip; ++tip) {
    storage_.WriteSettingString(setting::kMainKey, TipName(tip), setting::kOff);
  }
}

}  // namespace renvale::core

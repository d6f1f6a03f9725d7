#pragma once

#include "platform/SettingsStorage.h"

namespace renvale::core {

// The "don't show again" flags of the quick tips. Unlike every other
// setting they are read and written at the moment they are used, so a tip
// turned off stays off even if the program does not shut down cleanly.
class QuickTipFlags {
 public:
  // The options window resets only these tips; tips above it, once turned
  // off singly, stay off.
  static constexpr int kLastRestoredTip = 18;

  explicit QuickTipFlags(platform::SettingsStorage& storage) : storage_(storage) {}

  bool IsTipOff(int tipNumber) const;
  void TurnTipOff(int tipNumber);
  void TurnAllTipsOff();
  void RestoreQuickTips();

 private:
  platform::SettingsStorage& storage_;
};

}  // namespace renvale::core

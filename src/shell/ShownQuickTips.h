#pragma once

#include "shell/QuickTipOffer.h"
#include "shell/QuickTipRules.h"

namespace renvale::shell {

// The program's quick tips: a tip the rules allow opens in its own modal
// window over whatever window the person is working in.
class ShownQuickTips : public QuickTipOffer {
 public:
  ShownQuickTips(platform::SettingsStorage& settings, platform::MessagePort& messages);

  void ShowQuickTip(int tipNumber) override;

 private:
  QuickTipRules rules_;
};

}  // namespace renvale::shell

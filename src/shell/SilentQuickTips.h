#pragma once

#include "shell/QuickTipOffer.h"

namespace renvale::shell {

// Until the quick-tip window exists, tips are offered to no one: the call
// points are in place, and nothing pops up.
class SilentQuickTips : public QuickTipOffer {
 public:
  void ShowQuickTip(int) override {}
};

}  // namespace renvale::shell

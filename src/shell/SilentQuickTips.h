#pragma once

#include "shell/QuickTipOffer.h"

namespace renvale::shell {

// Tips offered to no one, for runs that nobody watches (the benchmarks):
// a modal tip there would wait for a click forever.
class SilentQuickTips : public QuickTipOffer {
 public:
  void ShowQuickTip(int) override {}
};

}  // namespace renvale::shell

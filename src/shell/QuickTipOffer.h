#pragma once

namespace renvale::shell {

// Where features ask for a quick tip by number. The main window only knows
// this door; the tip window and its flags sit behind it.
class QuickTipOffer {
 public:
  virtual ~QuickTipOffer() = default;
  virtual void ShowQuickTip(int tipNumber) = 0;
};

}  // namespace renvale::shell

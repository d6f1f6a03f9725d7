#pragma once

#include <QString>

#include "core/QuickTipFlags.h"

namespace renvale::platform {
class MessagePort;
class SettingsStorage;
}  // namespace renvale::platform

namespace renvale::shell {

// When a quick tip may be shown, and what its window's two check boxes do.
// The flags are read and written in the settings store at the moment they
// matter, so a tip turned off stays off even after a crash. One per run:
// `TipShowing` keeps a second tip out while one is open.
class QuickTipRules {
 public:
  QuickTipRules(platform::SettingsStorage& settings, platform::MessagePort& messages);

  // The text of tip n; empty for a number that has no tip.
  static QString TipText(int tipNumber);

  // Whether tip n is to be shown now. When it is, it becomes the current
  // tip and `TipShowing` stays on until Close.
  bool Open(int tipNumber);
  // "Don't show me ANY Quick Tips again" was ticked or cleared.
  void TipsOffToggled(bool checked);
  // The tip window goes away, with its two boxes as the person left them.
  void Close(bool noMoreTip, bool tipsOff);

  bool TipShowing() const { return tipShowing_; }
  int CurrentTipNumber() const { return currentTipNumber_; }

 private:
  core::QuickTipFlags flags_;
  platform::MessagePort& messages_;
  bool tipShowing_ = false;
  int currentTipNumber_ = 0;
};

}  // namespace renvale::shell

#include "shell/QuickTipRules.h"

#include <iterator>

#include "platform/MessagePort.h"
#include "shell/QuickTipTexts.h"

namespace renvale::shell {

QuickTipRules::QuickTipRules(platform::SettingsStorage& settings, platform::MessagePort& messages)
    : flags_(settings), messages_(messages) {}

QString QuickTipRules::TipText(int tipNumber) {
  if (tipNumber < 1 || tipNumber > static_cast<int>(std::size(texts::kQuickTips))) return {};
  return QString::fromLatin1(texts::kQuickTips[tipNumber - 1]);
}

bool QuickTipRules::Open(int tipNumber) {
  if (tipShowing_ || TipText(tipNumber).isEmpty() || flags_.IsTipOff(tipNumber)) return false;
  currentTipNumber_ = tipNumber;
  tipShowing_ = true;
  return true;
}

void QuickTipRules::TipsOffToggled(bool checked) {
  if (checked) messages_.Notify(texts::kTipsOffWarning, platform::MessageIcon::Information, texts::kTipsOffTitle);
}

void QuickTipRules::Close(bool noMoreTip, bool tipsOff) {
  if (!tipShowing_) return;
  if (noMoreTip) flags_.TurnTipOff(currentTipNumber_);
  if (tipsOff) {
    flags_.TurnAllTipsOff();
    messages_.Notify(texts::kAllTipsTurnedOff);
  }
  tipShowing_ = false;
}

}  // namespace renvale::shell

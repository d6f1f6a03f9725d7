#include "shell/ShownQuickTips.h"

#include <QApplication>

#include "shell/QuickTip.h"

namespace renvale::shell {

ShownQuickTips::ShownQuickTips(platform::SettingsStorage& settings, platform::MessagePort& messages)
    : rules_(settings, messages) {}

void ShownQuickTips::ShowQuickTip(int tipNumber) {
  if (!rules_.Open(tipNumber)) return;
  QWidget* over = QApplication::activeModalWidget();
  if (over == nullptr) over = QApplication::activeWindow();
  QuickTip window(rules_, over);
  window.exec();
}

}  // namespace renvale::shell

#include "platform/MessagePort.h"

namespace renvale::platform {

MessageAnswer MessagePort::Notify(const QString& text, MessageIcon icon, const QString& title) {
  return Show(Message{text, title, icon, MessageButtons::Ok, std::nullopt});
}

MessageAnswer MessagePort::Ask(const QString& text, MessageButtons buttons, MessageIcon icon,
                               const QString& title) {
  return Show(Message{text, title, icon, buttons, std::nullopt});
}

MessageAnswer MessagePort::AskBeforeLoss(const QString& text, MessageButtons buttons, MessageIcon icon,
                                         const QString& title) {
  return Show(Message{text, title, icon, buttons, MessageAnswer::No});
}

}  // namespace renvale::platform

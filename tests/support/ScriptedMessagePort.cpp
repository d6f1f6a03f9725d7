#include "support/ScriptedMessagePort.h"

#include <QStringList>

namespace renvale::test {

using platform::MessageAnswer;
using platform::MessageButtons;

platform::MessageAnswer ScriptedMessagePort::Show(const platform::Message& message) {
  messages.push_back(message);
  if (onShow) onShow();
  if (!answers_.empty()) {
    const MessageAnswer answer = answers_.front();
    answers_.pop_front();
    return answer;
  }
  const bool asks = message.buttons == MessageButtons::YesNo || message.buttons == MessageButtons::YesNoCancel;
  return asks ? MessageAnswer::Yes : MessageAnswer::Ok;
}

QStringList ScriptedMessagePort::Texts() const {
  QStringList texts;
  for (const auto& message : messages) texts << message.text;
  return texts;
}

}  // namespace renvale::test

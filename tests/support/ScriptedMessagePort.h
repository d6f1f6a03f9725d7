#pragma once

#include <deque>
#include <functional>
#include <vector>

#include "platform/MessagePort.h"

namespace renvale::test {

// Records every message and answers from a script. With the script empty it
// answers the first button (Ok or Yes), so a test must script every
// question whose answer it depends on.
class ScriptedMessagePort : public platform::MessagePort {
 public:
  platform::MessageAnswer Show(const platform::Message& message) override;
  void Beep() override { ++beeps; }

  void Script(platform::MessageAnswer answer) { answers_.push_back(answer); }
  QStringList Texts() const;
  const platform::Message& Last() const { return messages.back(); }
  void Clear() { messages.clear(); answers_.clear(); }

  std::vector<platform::Message> messages;
  int beeps = 0;
  // Called with each message before it is answered, to look at the window then.
  std::function<void()> onShow;

 private:
  std::deque<platform::MessageAnswer> answers_;
};

}  // namespace renvale::test

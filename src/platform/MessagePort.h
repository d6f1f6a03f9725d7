#pragma once

#include <QString>
#include <optional>

namespace renvale::platform {

enum class MessageIcon { None, Information, Question, Warning, Critical };
enum class MessageButtons { Ok, OkCancel, YesNo, YesNoCancel };
enum class MessageAnswer { Ok, Cancel, Yes, No };

// The program's title, used on every message box that names no other.
inline const QString kProgramTitle = QStringLiteral("Renvale");

struct Message {
  QString text;
  QString title = kProgramTitle;
  MessageIcon icon = MessageIcon::None;
  MessageButtons buttons = MessageButtons::Ok;
  // The button Enter presses; none means the first one. A question whose
  // Yes loses a file names No here, so that Enter pressed once too often
  // never destroys anything.
  std::optional<MessageAnswer> defaultButton;
};

// Every message box and beep of the program goes through one of these, so
// that tests can script the answers and assert the exact texts.
class MessagePort {
 public:
  virtual ~MessagePort() = default;
  virtual MessageAnswer Show(const Message& message) = 0;
  virtual void Beep() = 0;

  // Shorthands for the common shapes.
  MessageAnswer Notify(const QString& text, MessageIcon icon = MessageIcon::None,
                       const QString& title = kProgramTitle);
  MessageAnswer Ask(const QString& text, MessageButtons buttons, MessageIcon icon,
                    const QString& title = kProgramTitle);
  // A question whose Yes loses a file: No is the default button.
  MessageAnswer AskBeforeLoss(const QString& text, MessageButtons buttons, MessageIcon icon,
                              const QString& title = kProgramTitle);
};

}  // namespace renvale::platform

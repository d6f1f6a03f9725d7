#pragma once

#include <QString>

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
};

}  // namespace renvale::platform

#pragma once

#include "platform/MessagePort.h"

class QWidget;

namespace renvale::platform {

// Shows messages as modal QMessageBox dialogs over `parent`.
class QtMessagePort : public MessagePort {
 public:
  explicit QtMessagePort(QWidget* parent = nullptr) : parent_(parent) {}
  void SetParent(QWidget* parent) { parent_ = parent; }

  MessageAnswer Show(const Message& message) override;
  void Beep() override;

  // Message texts join lines with CR, LF or CR LF; all of them are one break.
  static QString NormaliseLineBreaks(const QString& text);

 private:
  QWidget* parent_;
};

}  // namespace renvale::platform

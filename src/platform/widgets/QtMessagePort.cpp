#include "platform/widgets/QtMessagePort.h"

#include <QApplication>
#include <QMessageBox>

namespace renvale::platform {
namespace {

QMessageBox::Icon ToQtIcon(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::Information: return QMessageBox::Information;
    case MessageIcon::Question: return QMessageBox::Question;
    case MessageIcon::Warning: return QMessageBox::Warning;
    case MessageIcon::Critical: return QMessageBox::Critical;
    case MessageIcon::None: break;
  }
  return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons ToQtButtons(MessageButtons buttons) {
  switch (buttons) {
    case MessageButtons::OkCancel: return QMessageBox::Ok | QMessageBox::Cancel;
    case MessageButtons::YesNo: return QMessageBox::Yes | QMessageBox::No;
    case MessageButtons::YesNoCancel: return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case MessageButtons::Ok: break;
  }
  return QMessageBox::Ok;
}

QMessageBox::StandardButton ToQtButton(MessageAnswer answer) {
  switch (answer) {
    case MessageAnswer::Yes: return QMessageBox::Yes;
    case MessageAnswer::No: return QMessageBox::No;
    case MessageAnswer::Cancel: return QMessageBox::Cancel;
    case MessageAnswer::Ok: break;
  }
  return QMessageBox::Ok;
}

// Escape answers Cancel where there is one, else No.
QMessageBox::StandardButton EscapeButton(MessageButtons buttons) {
  switch (buttons) {
    case MessageButtons::YesNo: return QMessageBox::No;
    case MessageButtons::YesNoCancel:
    case MessageButtons::OkCancel: return QMessageBox::Cancel;
    case MessageButtons::Ok: break;
  }
  return QMessageBox::Ok;
}

MessageAnswer FromQtButton(int button, MessageButtons offered) {
  switch (button) {
    case QMessageBox::Yes: return MessageAnswer::Yes;
    case QMessageBox::No: return MessageAnswer::No;
    case QMessageBox::Ok: return MessageAnswer::Ok;
    default: break;
  }
  // Escape or the window's close button: the safe answer of each shape.
  return offered == MessageButtons::YesNo ? MessageAnswer::No : MessageAnswer::Cancel;
}

}  // namespace

QString QtMessagePort::NormaliseLineBreaks(const QString& text) {
  QString result = text;
  result.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  result.replace(QLatin1Char('\r'), QLatin1Char('\n'));
  return result;
}

MessageAnswer QtMessagePort::Show(const Message& message) {
  QMessageBox box(ToQtIcon(message.icon), message.title, NormaliseLineBreaks(message.text),
                  ToQtButtons(message.buttons), parent_);
  box.setObjectName(QStringLiteral("MessageBox"));
  box.setTextFormat(Qt::PlainText);
  box.setAccessibleName(message.title);
  box.setEscapeButton(EscapeButton(message.buttons));
  if (message.defaultButton) box.setDefaultButton(ToQtButton(*message.defaultButton));
  return FromQtButton(box.exec(), message.buttons);
}

void QtMessagePort::Beep() { QApplication::beep(); }

}  // namespace renvale::platform

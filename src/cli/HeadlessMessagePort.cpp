#include "cli/HeadlessMessagePort.h"

#include <QRegularExpression>

#include "cli/CliTexts.h"

namespace renvale::cli {

using platform::MessageAnswer;
using platform::MessageButtons;

QString HeadlessMessagePort::OneLine(const QString& text) {
  static const QRegularExpression breaks(QStringLiteral("\\s*[\\r\\n]+\\s*"));
  return QString(text).replace(breaks, QStringLiteral(" ")).trimmed();
}

MessageAnswer HeadlessMessagePort::Show(const platform::Message& message) {
  if (message.icon == platform::MessageIcon::Critical) failed = true;
  switch (message.buttons) {
    case MessageButtons::Ok:
      if (message.icon == platform::MessageIcon::Information) {
        notices << OneLine(message.text);
      } else {
        lines << texts::kErrorPrefix + OneLine(message.text);
      }
      return MessageAnswer::Ok;
    case MessageButtons::OkCancel:
      return MessageAnswer::Cancel;
    case MessageButtons::YesNo:
      // Yes loses a file only where No is the default; the base-name
      // warnings have no default and are accepted.
      if (message.defaultButton == MessageAnswer::No) return MessageAnswer::No;
      lines << texts::kWarningPrefix + OneLine(message.text);
      return MessageAnswer::Yes;
    case MessageButtons::YesNoCancel:
      // Replace a file outside the batch? Never: that one file is skipped.
      return MessageAnswer::No;
  }
  return MessageAnswer::Cancel;
}

}  // namespace renvale::cli

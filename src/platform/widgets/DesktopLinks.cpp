#include "platform/widgets/DesktopLinks.h"

#include <QDesktopServices>
#include <QUrl>

namespace renvale::platform {

bool OpenInBrowser(const QString& address) {
  return QDesktopServices::openUrl(QUrl(address, QUrl::StrictMode));
}

bool WriteEmailTo(const QString& mailbox) {
  QUrl mail;
  mail.setScheme(QStringLiteral("mailto"));
  mail.setPath(mailbox);
  return QDesktopServices::openUrl(mail);
}

}  // namespace renvale::platform

#include "platform/AppPaths.h"

#include <unistd.h>

#include <QDir>
#include <QStandardPaths>
#include <vector>

namespace renvale::platform {

QByteArray CurrentDirectory() {
  std::vector<char> buffer(4096);
  while (getcwd(buffer.data(), buffer.size()) == nullptr) {
    if (errno != ERANGE || buffer.size() > (1u << 20)) return QByteArrayLiteral("/");
    buffer.resize(buffer.size() * 2);
  }
  QByteArray folder(buffer.data());
  if (!folder.endsWith('/')) folder.append('/');
  return folder;
}

QString DataFolder() {
  QString base = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
  const QString folder = base + QStringLiteral("/MorventSoftware/Renvale/");
  QDir().mkpath(folder);
  return folder;
}

QString StateFolder() {
  QString base = qEnvironmentVariable("XDG_STATE_HOME");
  if (base.isEmpty() || !QDir::isAbsolutePath(base)) base = QDir::homePath() + QStringLiteral("/.local/state");
  const QString folder = base + QStringLiteral("/MorventSoftware/Renvale/");
  QDir().mkpath(folder);
  return folder;
}

QString HelpFilePath() { return QStringLiteral("qrc:/help/"); }

}  // namespace renvale::platform

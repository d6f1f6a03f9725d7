#include "platform/widgets/FolderPicker.h"

#include <QFileDialog>
#include <QUrl>

namespace renvale::platform {

QString PickFolder(QWidget* parent, const QString& title, const QString& startFolder) {
  const QUrl chosen = QFileDialog::getExistingDirectoryUrl(
      parent, title, QUrl::fromLocalFile(startFolder), QFileDialog::ShowDirsOnly);
  if (chosen.isEmpty()) return {};
  if (!chosen.isLocalFile()) return QStringLiteral("::") + chosen.toString();
  return chosen.toLocalFile();
}

}  // namespace renvale::platform

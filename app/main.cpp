#include <QApplication>

#include "platform/AppPaths.h"
#include "platform/FileSystem.h"
#include "platform/MountList.h"
#include "platform/QtSettingsStorage.h"
#include "platform/widgets/FolderPicker.h"
#include "platform/widgets/QtMessagePort.h"
#include "shell/MainWindow.h"
#include "shell/SilentQuickTips.h"

int main(int argc, char** argv) {
  using namespace renvale;
  QApplication app(argc, argv);
  QApplication::setOrganizationName(QStringLiteral("MorventSoftware"));
  QApplication::setApplicationName(QStringLiteral("Renvale"));

  platform::QtSettingsStorage settings;
  platform::QtMessagePort messages;
  shell::SilentQuickTips tips;
  shell::MainWindowServices services{platform::RealFileSystem(), messages, settings, tips,
                                     platform::PickFolder, platform::MountList::Current,
                                     platform::CurrentDirectory};
  shell::MainWindow window(std::move(services));
  messages.SetParent(&window);
  window.Start();
  window.show();
  return app.exec();
}

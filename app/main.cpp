#include <QApplication>
#include <QFile>

#include "fileops/Journal.h"
#include "platform/AppPaths.h"
#include "platform/FileSystem.h"
#include "platform/GioNetworkShares.h"
#include "platform/MountList.h"
#include "platform/QtSettingsStorage.h"
#include "platform/widgets/FolderPicker.h"
#include "platform/widgets/QtMessagePort.h"
#include "shell/MainWindow.h"
#include "shell/ShownQuickTips.h"

namespace {

// The one argument: a folder to open or a file to select, given by a file
// manager's "Open With" or on the command line. Taken from argv as bytes,
// because a file name need not be valid UTF-8; Qt has already removed its
// own options (-platform and the like) by then.
QByteArray StartPath(int argc, char** argv) {
  if (argc < 2 || argv[1][0] == '\0') return {};
  QByteArray path(argv[1]);
  if (!path.startsWith('/')) path.prepend(renvale::platform::CurrentDirectory());
  return path;
}

}  // namespace

int main(int argc, char** argv) {
  using namespace renvale;
  QApplication app(argc, argv);
  QApplication::setOrganizationName(QStringLiteral("MorventSoftware"));
  QApplication::setApplicationName(QStringLiteral("Renvale"));
  // Docks and task bars match the window to its menu entry by this name.
  QGuiApplication::setDesktopFileName(QString::fromLatin1(RENVALE_APP_ID));

  platform::QtSettingsStorage settings;
  platform::QtMessagePort messages;
  shell::ShownQuickTips tips(settings, messages);
  fileops::Journal journal(platform::RealFileSystem(), QFile::encodeName(platform::StateFolder()), messages);
  shell::MainWindowServices services{platform::RealFileSystem(), messages, settings, tips,
                                     platform::PickFolder, platform::MountList::Current,
                                     platform::CurrentDirectory, &journal};
  platform::GioNetworkShares shares;
  shell::MainWindow window(std::move(services));
  window.UseNetworkShares(shares);
  messages.SetParent(&window);
  window.Start(StartPath(argc, argv));
  window.show();
  return app.exec();
}

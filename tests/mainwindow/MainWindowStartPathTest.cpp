#include <unistd.h>

#include <QFile>
#include <QStatusBar>

#include "mainwindow/MainWindowFixture.h"

namespace renvale::test {
namespace {

using MainWindowStartPath = MainWindowFixture;

TEST_F(MainWindowStartPath, TheArgumentOpensItsFolderOrSaysWhyNotWithoutChangingSettings) {
  MakeFiles({"a.jpg", "b.jpg"});
  MakeFile("caf\xe9.jpg");
  const QByteArray remembered = Folder() + "sub/";
  const QByteArray gone = Folder() + "gone/a.jpg";
  const struct { QByteArray path, folder, selected; QString status; } rows[] = {
      {Folder() + "sub/../", Folder(), {}, {}},
      {Folder() + "b.jpg", Folder(), "b.jpg", {}},
      {Folder() + "caf\xe9.jpg", Folder(), "caf\xe9.jpg", {}},
      {gone, remembered, {}, "Drive Unaccessable: " + platform::FileName{gone}.Display()},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.path.toStdString());
    storage->WriteSettingString("", "Last Folder", QFile::decodeName(remembered));
    window.reset();
    window = std::make_unique<shell::MainWindow>(shell::MainWindowServices{
        platform::RealFileSystem(), messages, *storage, tips,
        [](QWidget*, const QString&, const QString&) { return QString(); }, [this] { return drives; },
        [this] { return Folder(); }});
    window->Start(row.path);
    EXPECT_EQ(window->Session().CurrentFolder, row.folder);
    EXPECT_EQ(window->Session().SelectedFileName.raw, row.selected);
    EXPECT_EQ(window->statusBar()->currentMessage(), row.status);
    EXPECT_TRUE(messages.messages.empty());
    CloseWindow();
    EXPECT_EQ(storage->ReadSettingString("", "Last Folder"), QFile::decodeName(row.folder));
  }
  ::unlink((Folder() + "caf\xe9.jpg").constData());  // a name QTemporaryDir cannot spell
}

}  // namespace
}  // namespace renvale::test

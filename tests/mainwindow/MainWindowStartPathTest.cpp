#include <unistd.h>

#include <QFile>
#include <QLineEdit>
#include <QStatusBar>

#include "mainwindow/MainWindowFixture.h"

namespace renvale::test {
namespace {

class MainWindowStartPath : public MainWindowFixture {
 protected:
  shell::MainWindow& OpenOn(const QByteArray& path) {
    window.reset();
    shell::MainWindowServices services{platform::RealFileSystem(), messages, *storage, tips,
                                       [](QWidget*, const QString&, const QString&) { return QString(); },
                                       [this] { return drives; }, [this] { return Folder(); }};
    window = std::make_unique<shell::MainWindow>(std::move(services));
    window->Start(path);
    return *window;
  }

  QString StatusText() const {
    const auto* bar = window->findChild<QStatusBar*>();
    return bar != nullptr ? bar->currentMessage() : QString();
  }
};

TEST_F(MainWindowStartPath, TheArgumentOpensItsFolderOrSaysWhyNotWithoutChangingSettings) {
  MakeFiles({"a.jpg", "b.jpg"});
  MakeFile("caf\xe9.jpg");
  const QByteArray remembered = Folder() + "sub/";
  struct Row {
    QByteArray path;
    QByteArray folder;
    QByteArray selected;
    QString status;
  } rows[] = {
      {Folder() + "sub/../", Folder(), {}, {}},
      {Folder() + "b.jpg", Folder(), "b.jpg", {}},
      {Folder() + "caf\xe9.jpg", Folder(), "caf\xe9.jpg", {}},
      {Folder() + "gone/a.jpg", remembered, {},
       "Drive Unaccessable: " + platform::FileName{Folder() + "gone/a.jpg"}.Display()},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.path.toStdString());
    storage->WriteSettingString("", "Last Folder", QFile::decodeName(remembered));
    shell::MainWindow& main = OpenOn(row.path);
    EXPECT_EQ(main.Session().CurrentFolder, row.folder);
    EXPECT_EQ(main.Session().SelectedCount, row.selected.isEmpty() ? 0 : 1);
    EXPECT_EQ(main.Session().SelectedFileName.raw, row.selected);
    EXPECT_EQ(main.Ui().Text1->text(), platform::FileName{row.selected}.Display());
    EXPECT_EQ(StatusText(), row.status);
    EXPECT_TRUE(messages.messages.empty());
    CloseWindow();
    EXPECT_EQ(storage->ReadSettingString("", "Last Folder"), QFile::decodeName(row.folder));
  }
  ::unlink((Folder() + "caf\xe9.jpg").constData());  // a name QTemporaryDir cannot spell
}

}  // namespace
}  // namespace renvale::test

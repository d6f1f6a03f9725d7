#include <QCheckBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTest>

#include "mainwindow/MainWindowFixture.h"
#include "shell/FileListModel.h"
#include "support/SampleImages.h"

namespace renvale::test {
namespace {

using platform::MessageAnswer;

class MainWindowRename : public MainWindowFixture {
 protected:
  void SelectAllFiles() { window->SelectAll(); }
  void PressEnter() {
    window->show();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    QTest::keyClick(window->Ui().Text1, Qt::Key_Return);
  }
};

TEST_F(MainWindowRename, EnterRenamesTheSelectedFileAndSelectsItAgain) {
  MakeFiles({"a.JPG", "c.JPG"});
  shell::MainWindow& main = Open();
  main.show();
  ClickRow(0);
  main.Ui().Text1->setText("b");
  PressEnter();
  EXPECT_EQ(ListedNames(), QStringList({"b.JPG", "c.JPG"}));
  EXPECT_EQ(main.Session().SelectedFileName.Display(), "b.JPG");
  EXPECT_EQ(main.Ui().Text1->text(), "b.JPG");
  EXPECT_TRUE(messages.messages.empty()) << messages.Texts().join('|').toStdString();
}

TEST_F(MainWindowRename, ABatchNumbersEveryFileAndLeavesTheNextNumber) {
  MakeFiles({"x1.jpg", "x2.JPG", "x3.png"});
  storage->WriteSettingString("", "Placeholders", "3");
  shell::MainWindow& main = Open();
  main.Ui().Text2->setText("7");
  SelectAllFiles();
  ASSERT_TRUE(main.Session().BatchMode);
  main.Ui().Text1->setText("Holiday %SERIES%");
  main.Ui().Command11->click();
  EXPECT_EQ(ListedNames(), QStringList({"Holiday 007.jpg", "Holiday 008.JPG", "Holiday 009.png"}));
  EXPECT_EQ(main.Ui().Text2->text(), "010");
  EXPECT_FALSE(main.Session().BatchMode);
  EXPECT_EQ(main.Session().SelectedFileName.Display(), "Holiday 009.png");
  EXPECT_TRUE(main.Ui().File1->isEnabled());
}

TEST_F(MainWindowRename, ABatchTakesEachPicturesOwnDate) {
  ExifFields fields = TypicalExifFields();
  fields.dateTimeOriginal = "2004:07:15 18:03:09";
  ASSERT_TRUE(WriteFile(QFile::decodeName(Folder()) + "p1.jpg", MakeExifJpeg(&fields)));
  fields.dateTimeOriginal = "2005:01:02 03:04:05";
  ASSERT_TRUE(WriteFile(QFile::decodeName(Folder()) + "p2.jpg", MakeExifJpeg(&fields)));
  shell::MainWindow& main = Open();
  SelectAllFiles();
  main.Ui().Text1->setText("%DATE% %TIME%");
  main.Ui().Command11->click();
  EXPECT_EQ(ListedNames(), QStringList({"2004-07-15 18-03-09.jpg", "2005-01-02 03-04-05.jpg"}));
  EXPECT_TRUE(messages.messages.empty()) << messages.Texts().join('|').toStdString();
}

// Records whether the file list could be clicked when a question came.
class ListWatchingPort : public ScriptedMessagePort {
 public:
  platform::MessageAnswer Show(const platform::Message& message) override {
    if (list != nullptr) listEnabled.push_back(list->isEnabled());
    return ScriptedMessagePort::Show(message);
  }
  QListView* list = nullptr;
  std::vector<bool> listEnabled;
};

TEST_F(MainWindowRename, CancelOnAnExistingTargetStepsTheSeriesBackAndTheListIsLockedMeanwhile) {
  MakeFiles({"a.jpg", "b.jpg", "Trip 02.jpg"});
  shell::MainWindow& main = Open();
  ListWatchingPort watcher;
  // The window keeps the fixture's port; re-open with the watching one.
  window.reset();
  shell::MainWindowServices services{platform::RealFileSystem(), watcher, *storage, tips,
                                     [](QWidget*, const QString&, const QString&) { return QString(); },
                                     [this] { return drives; }, [this] { return Folder(); }};
  window = std::make_unique<shell::MainWindow>(std::move(services));
  window->Start();
  watcher.list = window->Ui().File1;
  (void)main;
  window->Ui().Text2->setText("1");
  window->Ui().Command14->click();  // "a.jpg", "b.jpg", "Trip 02.jpg"
  window->Ui().Text1->setText("Trip %SERIES%");
  watcher.Script(MessageAnswer::Cancel);
  window->Ui().Command11->click();
  ASSERT_EQ(watcher.messages.size(), 1u);
  EXPECT_EQ(watcher.Last().title, "Filename already exists!");
  EXPECT_EQ(watcher.listEnabled, std::vector<bool>({false}));
  EXPECT_EQ(window->Ui().Text2->text(), "02") << "the number of the declined file is offered again";
  EXPECT_TRUE(window->Ui().File1->isEnabled());
  EXPECT_EQ(ListedNames(), QStringList({"b.jpg", "Trip 01.jpg", "Trip 02.jpg"}));
}

}  // namespace
}  // namespace renvale::test

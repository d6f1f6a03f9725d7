#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QUrl>

#include "mainwindow/MainWindowFixture.h"
#include "shell/BrowsePane.h"
#include "shell/DropToggleButton.h"

namespace renvale::test {
namespace {

using platform::MessageIcon;

class MainWindowSettings : public MainWindowFixture {};

TEST_F(MainWindowSettings, ClosingAndReopeningRestoresFolderModeCaptionsAndPlacement) {
  shell::MainWindow& first = Open();
  first.ChangeFolder(Folder() + "sub/");
  first.ApplyBrowseMode(1);
  first.Ui().Command1[3]->setText("Kids && Pets");
  first.move(40, 30);
  first.resize(700, 560);
  const QRect placed = first.geometry();
  CloseWindow();

  EXPECT_EQ(storage->ReadSettingString("", "Last Folder"), QFile::decodeName(Folder() + "sub/"));
  EXPECT_EQ(storage->ReadSettingString("Last Custom", "Custom 4"), "Kids && Pets");
  EXPECT_EQ(storage->ReadSettingString("", "BrowseMode"), "1");

  shell::MainWindow& second = Open();
  EXPECT_EQ(second.Session().CurrentFolder, Folder() + "sub/");
  EXPECT_EQ(second.Settings().browseMode, 1);
  EXPECT_EQ(second.Ui().browse->CurFold->text(), QFile::decodeName(Folder() + "sub/"));
  EXPECT_EQ(second.Ui().Command1[3]->text(), "Kids && Pets");
  EXPECT_EQ(second.Ui().Command1[0]->text(), "Custom1");
  // Twips round to whole numbers, so allow a pixel either way.
  EXPECT_NEAR(second.x(), placed.x(), 1);
  EXPECT_NEAR(second.y(), placed.y(), 1);
  EXPECT_NEAR(second.width(), placed.width(), 1);
  EXPECT_NEAR(second.height(), placed.height(), 1);
}

TEST_F(MainWindowSettings, DropsOpenTheFolderOfTheFirstItemOrAreRefused) {
  MakeFiles({"a.jpg"});
  shell::MainWindow& main = Open();
  main.ChangeFolder("/");
  const QString folder = QFile::decodeName(Folder());
  emit main.Ui().browse->toggleBrowseS->UrlsDropped({QUrl::fromLocalFile(folder + "a.jpg"), QUrl::fromLocalFile(folder + "sub")});
  EXPECT_EQ(main.Session().CurrentFolder, Folder());
  emit main.Ui().browse->toggleBrowseA->UrlsDropped({QUrl::fromLocalFile(folder + "sub")});
  EXPECT_EQ(main.Session().CurrentFolder, Folder() + "sub/");
  emit main.Ui().browse->toggleBrowseS->UrlsDropped({QUrl("https://example.org/pictures")});
  EXPECT_EQ(messages.Texts(), QStringList{"Only DRIVES or FOLDERS can be dropped here!"});
  EXPECT_EQ(main.Session().CurrentFolder, Folder() + "sub/");
}

TEST_F(MainWindowSettings, ChooseFolderHandlesCancelVirtualPlacesAndRealFolders) {
  shell::MainWindow& main = Open();
  main.ApplyBrowseMode(1);
  pickerAnswer = "";
  main.Ui().browse->Command15->click();
  EXPECT_EQ(pickerTitle, "Choose a location containing files you wish to work with...");
  EXPECT_EQ(main.Session().CurrentFolder, Folder());

  pickerAnswer = "::smb://server/share";
  main.Ui().browse->Command15->click();
  ASSERT_EQ(messages.messages.size(), 1u);
  EXPECT_EQ(messages.Last().text, "An invalid folder was chosen.  Please choose an actual folder.");

  pickerAnswer = QFile::decodeName(Folder()) + "sub";
  main.Ui().browse->Command15->click();
  EXPECT_EQ(main.Session().CurrentFolder, Folder() + "sub/");
  EXPECT_EQ(main.Ui().browse->CurFold->text(), QFile::decodeName(Folder()) + "sub/");
}

TEST_F(MainWindowSettings, AnUnreadableDriveWarnsAndKeepsTheFolder) {
  drives.push_back({QByteArrayLiteral("/nonexistent-card/"), QStringLiteral("Card"), platform::VolumeKind::Removable});
  shell::MainWindow& main = Open();
  emit main.Ui().browse->DriveChosen(1);
  ASSERT_EQ(messages.messages.size(), 1u);
  EXPECT_EQ(messages.Last().title, "Drive Unaccessable");
  EXPECT_EQ(messages.Last().icon, MessageIcon::Warning);
  EXPECT_EQ(messages.Last().text,
            "Could not access selected drive.\n"
            "If it uses removable media, please be sure it is inserted and ready.\n"
            "If this is a network drive, be sure you have permission to access it and that the "
            "computer is turned on.");
  EXPECT_EQ(main.Session().CurrentFolder, Folder());
  EXPECT_EQ(main.Ui().browse->Drive1->currentIndex(), 0);
}

TEST_F(MainWindowSettings, TheFolderListOpensAncestorsAndSubfolders) {
  shell::MainWindow& main = Open();
  QListWidget* list = main.Ui().browse->Dir1;
  int subRow = -1;
  for (int row = 0; row < list->count(); ++row) {
    if (list->item(row)->text().trimmed() == "sub") subRow = row;
  }
  ASSERT_GE(subRow, 0);
  emit list->itemActivated(list->item(subRow));
  EXPECT_EQ(main.Session().CurrentFolder, Folder() + "sub/");
  emit list->itemActivated(list->item(0));
  EXPECT_EQ(main.Session().CurrentFolder, "/");
}

}  // namespace
}  // namespace renvale::test

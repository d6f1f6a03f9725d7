#include <QApplication>
#include <QFile>
#include <QFocusEvent>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QStandardPaths>
#include <QTest>

#include "compose/ComposeFixture.h"
#include "core/CoreTexts.h"
#include "platform/AppPaths.h"
#include "platform/ErrorNumbers.h"
#include "platform/FileSystem.h"
#include "shell/ManTempDialog.h"
#include "shell/TemplateManager.h"
#include "support/FaultyFileSystem.h"
#include "support/SampleAudio.h"
#include "support/SampleImages.h"

namespace renvale::test {
namespace {

class ButtonTexts : public ComposeFixture {
 protected:
  void SetUp() override {
    ComposeFixture::SetUp();
    MakeFile("Beach.JPG");
    Open();
  }
};

// A right click opens the editor with its prompt and inserts nothing. The
// editor refuses characters no file name can hold and stays open; a double
// click empties its box, and an empty text is kept.
TEST_F(ButtonTexts, RightClickOpensTheEditorWhichRefusesForbiddenCharactersAndKeepsAnEmptyText) {
  struct Case { QPushButton* button; QString prompt; int editIndex; QString text; };
  Ui().Command9[0]->setText(QStringLiteral("R&&D"));
  const Case cases[] = {{Ui().Command9[0], "Enter new text for Temp # 1", 20, "R&D"},
                        {Ui().Command1[8], "Enter new text for Button # 9", 9, "Custom9"}};
  for (const Case& c : cases) {
    QTest::mouseClick(c.button, Qt::RightButton);
    EXPECT_TRUE(Ui().namebutton->isVisible());
    EXPECT_EQ(Ui().namebutton->title(), c.prompt);
    EXPECT_EQ(editor->EditButtonIndex(), c.editIndex);
    EXPECT_EQ(Ui().Text3->text(), c.text);
    EXPECT_EQ(Ui().Text3->selectedText(), c.text);
  }
  EXPECT_TRUE(messages.messages.empty()) << "a right click inserts nothing";

  Ui().Text3->setText(QStringLiteral("a|b"));
  Ui().Command3->click();
  EXPECT_TRUE(Ui().namebutton->isVisible());
  EXPECT_EQ(messages.Texts(), QStringList{core::texts::kInvalidFilenameChars});
  EXPECT_EQ(Ui().Command1[8]->text(), "Custom9");
  QTest::mouseDClick(Ui().Text3, Qt::LeftButton);
  EXPECT_EQ(Ui().Text3->text(), "");
  Ui().Command3->click();
  EXPECT_EQ(Ui().Command1[8]->text(), "");
  EXPECT_EQ(window->Settings().customCaptions[8], "");
}

TEST_F(ButtonTexts, FilenameAsTempDropsTheSelectedExtensionAndNeedsAUsableName) {
  // An empty name, or one no file can have, is refused.
  SetNewName({});
  Ui().Command10->click();
  SetNewName(QStringLiteral("a?b"));
  Ui().Command10->click();
  EXPECT_EQ(messages.Texts(), QStringList({core::texts::kNoTempFilename, core::texts::kInvalidFilenameChars}));
  EXPECT_EQ(tips.offered, std::vector<int>({9, 9}));
  EXPECT_EQ(Ui().Command9[0]->text(), "Temp1");
  messages.Clear();
  Select({0});
  ASSERT_EQ(window->Session().SelectedExt, ".JPG");
  EXPECT_EQ(Captions(tempSaver->PrepareMenu()), QStringList({"Temp1", "Temp2", "Temp3", "-Cancel-"}));
  const std::pair<QString, QString> cases[] = {
      {"Beach 2004.jpg", "Beach 2004"}, {"Beach", "Beach"}, {"R&D.JPG", "R&&D"}, {"a.jpeg", "a.jpeg"}};
  for (const auto& [name, caption] : cases) {
    SetNewName(name);
    Trigger(tempSaver->PrepareMenu(), "Temp2");
    EXPECT_EQ(Ui().Command9[1]->text(), caption);
  }
  Trigger(tempSaver->PrepareMenu(), "-Cancel-");
  EXPECT_EQ(Ui().Command9[1]->text(), "a.jpeg");
  window->Session().SelectedExt.clear();
  SetNewName(QStringLiteral("Beach 2004.jpg"));
  Trigger(tempSaver->PrepareMenu(), "Temp3");
  EXPECT_EQ(Ui().Command9[2]->text(), "Beach 2004.jpg");
  EXPECT_TRUE(messages.messages.empty());
}

class Compose : public ComposeFixture {
 protected:
  // Two pictures taken 2004-05-01 13:14:15, the first with a serial number.
  void OpenWithPictures() {
    ExifFields fields;
    fields.dateTimeOriginal = QStringLiteral("2004:05:01 13:14:15");
    fields.imageNumber = 1234567;
    MakeFile("IMG_0001.JPG", MakeExifJpeg(&fields));
    fields.imageNumber = -1;
    MakeFile("IMG_0002.JPG", MakeExifJpeg(&fields));
    Open();
  }
};

// Every insert needs a selected file; ID3 values come from the selected MP3.
TEST_F(Compose, EveryInsertNeedsASelectedFileAndId3ValuesComeFromTheSelectedMp3) {
  Id3v1Fields tag;
  tag.title = "Song";
  tag.track = 7;
  MakeFile("a.mp3", MakeMp3(&tag));
  Open();
  SetNewName(QStringLiteral("kept"));
  const std::vector<QPushButton*> buttons = {Ui().OrigFN,      Ui().exif,        Ui().Command5,
                                             Ui().Command6,    Ui().Command1[0], Ui().Command9[2]};
  for (QPushButton* button : buttons) {
    ASSERT_TRUE(button->isEnabled()) << button->objectName().toStdString();
    button->click();
  }
  EXPECT_EQ(messages.Texts(), QStringList(6, "Please select a file to rename first."));
  EXPECT_EQ(NewName(), "kept");
  EXPECT_TRUE(tips.offered.empty());

  Select({0});
  SetNewName({});
  for (const char* entry : {"ID3> Insert Title", "ID3> Insert Album", "ID3> Insert Track #"}) {
    Trigger(compose->PrepareExifMenu(), entry);
  }
  EXPECT_EQ(NewName(), "SongAlbum07");
}

TEST_F(Compose, ValuesInIndividualModeAndTokensInBatchMode) {
  OpenWithPictures();
  struct Case { std::function<void()> insert; QString individual, batch; };
  const std::vector<Case> cases = {
      {[&] { Ui().OrigFN->click(); }, "IMG_0001", "%ORIGFN%"},
      {[&] { Trigger(compose->PrepareExifMenu(), "Insert Date"); }, "2004-05-01", "%DATE%"},
      {[&] { Trigger(compose->PrepareExifMenu(), "Insert Time"); }, "13-14-15", "%TIME%"},
      {[&] { Trigger(compose->PrepareExifMenu(), "Insert Date && Time"); }, "2004-05-01 13-14-15", "%DATE TIME%"},
      {[&] { Trigger(compose->PrepareExifMenu(), "Insert Serial (Limited Availability)"); }, "1234567", "%SERIAL%"},
      {[&] { Trigger(compose->PrepareExifMenu(), "ID3> Insert Artist"); }, "", "%ARTIST%"},
      {[&] { Ui().Command1[3]->click(); }, "Trip 2004-05-01", "Trip %DATE%"},
      {[&] { Ui().Command9[0]->click(); }, "IMG_0001 & 01", "%ORIGFN% & %series%"},
      {[&] { Ui().Command9[1]->click(); }, "%Date% kept", "%Date% kept"},
  };
  Ui().Command1[3]->setText(QStringLiteral("Trip %DATE%"));
  Ui().Command9[0]->setText(QStringLiteral("%ORIGFN% && %series%"));
  Ui().Command9[1]->setText(QStringLiteral("%Date% kept"));
  for (const bool batch : {false, true}) {
    batch ? Select({0, 1}) : Select({0});
    ASSERT_EQ(window->Session().BatchMode, batch);
    for (const Case& c : cases) {
      SetNewName({});
      c.insert();
      EXPECT_EQ(NewName(), batch ? c.batch : c.individual);
    }
    Ui().Text2->setText(QStringLiteral("01"));
  }
  // Only the batch's current file, the second, lacks a serial number.
  EXPECT_EQ(messages.Texts(), QStringList{core::texts::kNoSerialInLastSelected});
  EXPECT_EQ(tips.offered.front(), 3) << "the Orig. Filename tip";
}

TEST_F(Compose, MenusHoldTheirEntriesAndInsertAtTheCaret) {
  OpenWithPictures();
  Select({0});
  EXPECT_EQ(Captions(compose->PrepareExifMenu()),
            QStringList({"Insert Date", "Insert Time", "Insert Date && Time", "Insert Serial (Limited Availability)",
                         "-", "ID3> Insert Title", "ID3> Insert Artist", "ID3> Insert Album", "ID3> Insert Track #",
                         "-", "View EXIF && Other Info (Current File)", "-Cancel-"}));
  const QStringList words = {"(SPACE)", "' - '", "' && '", "' at '", "' with '", "' on '", "' in '"};
  const QStringList inserted = {" ", " - ", " & ", " at ", " with ", " on ", " in "};
  EXPECT_EQ(Captions(compose->PrepareInsertMenu()), words + QStringList{"-Cancel-"});
  for (qsizetype i = 0; i < words.size(); ++i) {
    SetNewName(QStringLiteral("ab.JPG"));
    Ui().Text1->setCursorPosition(1);
    Trigger(compose->PrepareInsertMenu(), words[i]);
    EXPECT_EQ(NewName(), "a" + inserted[i] + "b.JPG");
  }
  SetNewName(QStringLiteral("ab.JPG"));
  Ui().Text1->setSelection(0, 2);
  Trigger(compose->PrepareInsertMenu(), "' at '");
  Trigger(compose->PrepareInsertMenu(), "-Cancel-");
  Trigger(compose->PrepareExifMenu(), "-Cancel-");
  EXPECT_EQ(NewName(), " at .JPG");
  EXPECT_EQ(tips.offered, std::vector<int>({2, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 2}));
}

TEST_F(Compose, SeriesNumbersInIndividualModeAndTheBoxResetByADoubleClick) {
  OpenWithPictures();
  window->Settings().seriesSpacing = QStringLiteral("-");
  Select({0});
  SetNewName(QStringLiteral("Trip "));
  Ui().Command6->click();
  EXPECT_EQ(NewName(), "Trip 01-.JPG");
  EXPECT_EQ(Ui().Text1->cursorPosition(), 8);
  Ui().Command6->click();
  EXPECT_EQ(NewName(), "Trip 01-02-.JPG");
  EXPECT_EQ(Ui().Text2->text(), "03");
  EXPECT_TRUE(window->Session().SeriesUsed);
  EXPECT_EQ(tips.offered, std::vector<int>({5, 5}));
  // A double click sets the box back to one.
  window->Settings().placeholders = 4;
  QTest::mouseDClick(Ui().Text2, Qt::LeftButton);
  EXPECT_EQ(Ui().Text2->text(), "0001");

  // The click on a button takes the focus, and with it the box's selection;
  // the insert still replaces what was selected.
  SetNewName(QStringLiteral("IMG_0001.JPG"));
  Ui().Text1->setSelection(0, 8);
  QFocusEvent out(QEvent::FocusOut, Qt::MouseFocusReason);
  QApplication::sendEvent(Ui().Text1, &out);
  ASSERT_FALSE(Ui().Text1->hasSelectedText());
  Ui().Command6->click();
  EXPECT_EQ(NewName(), "0001-.JPG");
}

using platform::MessageAnswer;

QByteArray Nine(const QByteArray& first) {
  QByteArray bytes = first;
  for (int n = 2; n <= 9; ++n) bytes += "\"B" + QByteArray::number(n) + "\"\r\n";
  return bytes;
}

class Templates : public ::testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(dir.isValid()); }
  QByteArray Read(const QString& name) {
    QFile file(dir.filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
  }
  void Write(const QString& name, const QByteArray& bytes) {
    ASSERT_EQ(platform::RealFileSystem().WriteWholeFile(QFile::encodeName(dir.filePath(name)), bytes), 0);
  }
  std::vector<QString> OpenAndCollect(const QString& name) {
    std::vector<QString> applied;
    manager.Open(platform::FileName::FromDisplay(name),
                 [&](int, const QString& caption) { applied.push_back(caption); });
    return applied;
  }
  std::vector<QString> Listed() {
    std::vector<QString> names;
    for (const platform::FileName& name : manager.List()) names.push_back(name.Display());
    return names;
  }

  QTemporaryDir dir;
  ScriptedMessagePort messages;
  FaultyFileSystem fs{platform::RealFileSystem()};
  shell::TemplateManager manager{fs, messages, dir.path() + "/"};
  shell::TemplateManager::Captions captions{"Kids && Pets", "B2", "B3", "B4", "B5", "B6", "B7", "B8", "B9"};
};

// A save that cannot write ends silently; only a missing name is told.
TEST_F(Templates, SaveNamesTheFileAndAsksOnlyForAListedName) {
  EXPECT_FALSE(manager.Save("", {}, captions));
  fs.FailWrite(QFile::encodeName(dir.filePath("Locked.rnt")), platform::kAccessViolation);
  EXPECT_FALSE(manager.Save("Locked", {}, captions));
  EXPECT_FALSE(manager.Save("a/b", {}, captions));
  EXPECT_EQ(messages.Texts(), QStringList({"Please enter a filename."}));
  messages.Clear();
  EXPECT_TRUE(manager.Save("Kids", {}, captions));
  EXPECT_EQ(Read("Kids.rnt"), Nine("\"Kids && Pets\"\r\n"));
  EXPECT_TRUE(manager.Save("Kids.RNT", {}, captions));
  EXPECT_TRUE(QFile::exists(dir.filePath("Kids.RNT")));
  EXPECT_EQ(messages.Texts(), QStringList(2, "The template has been saved."));
  EXPECT_EQ(Listed(), std::vector<QString>({"Kids.RNT", "Kids.rnt"}));

  messages.Clear();
  captions[0] = "Other";
  EXPECT_TRUE(manager.Save("Kids", manager.List(), captions)) << "typed without extension: no question";
  messages.Script(MessageAnswer::No);
  EXPECT_FALSE(manager.Save("Kids.rnt", manager.List(), {}));
  EXPECT_EQ(Read("Kids.rnt"), Nine("\"Other\"\r\n"));
  ASSERT_EQ(messages.messages.size(), 2u);
  const platform::Message& question = messages.messages[1];
  EXPECT_EQ(question.text, "Overwrite the existing file?");
  EXPECT_EQ(question.title, "File Exists");
  EXPECT_EQ(question.buttons, platform::MessageButtons::YesNo);
  EXPECT_EQ(question.icon, platform::MessageIcon::Question);
}

TEST_F(Templates, OpenReadsQuotedAndUnquotedFields) {
  Write("Smith.rnt", Nine("Smith, John\r\n"));
  Write("Short.rnt", "\"One\"\r\n\"Two\"\r\n");
  EXPECT_EQ(OpenAndCollect("Smith.rnt"),
            std::vector<QString>({"Smith", "John", "B2", "B3", "B4", "B5", "B6", "B7", "B8"}));
  EXPECT_EQ(OpenAndCollect("Short.rnt"), std::vector<QString>({"One", "Two"}));
  EXPECT_TRUE(OpenAndCollect("Missing.rnt").empty());
  EXPECT_EQ(messages.Texts(), QStringList{"The selected template has been applied to the buttons."});
  messages.Clear();
  EXPECT_FALSE(manager.Open(std::nullopt, {}));
  EXPECT_EQ(messages.Texts(), QStringList({"Please choose a file to open."}));
}

TEST_F(Templates, DeleteAsksThenMovesToTheTrash) {
  Write("Kids.rnt", Nine("\"A\"\r\n"));
  Write("notes.txt", "x");
  const auto kids = platform::FileName::FromDisplay("Kids.rnt");
  EXPECT_FALSE(manager.Delete(std::nullopt));
  messages.Script(MessageAnswer::No);
  EXPECT_FALSE(manager.Delete(kids));
  EXPECT_EQ(Listed(), std::vector<QString>({"Kids.rnt"}));
  fs.FailTrash(QFile::encodeName(dir.filePath("Kids.rnt")), platform::kAccessViolation);
  EXPECT_TRUE(manager.Delete(kids));
  fs.ClearFaults();
  EXPECT_TRUE(manager.Delete(kids));
  EXPECT_TRUE(Listed().empty());
  const QString question = "Are you sure you want to move 'Kids.rnt' to the Recycle Bin?";
  EXPECT_EQ(messages.Texts(), QStringList({"Please choose a template to delete.", question, question,
                                           "Could not move template to Recycle Bin!", question,
                                           "The template has been moved to the Recycle Bin."}));
  EXPECT_EQ(messages.messages[1].title, "Confirm Delete");
}

class TemplateDialog : public ComposeFixture {};

TEST_F(TemplateDialog, SavesOpensAndDeletesThroughTheWindow) {
  Open();
  const QString folder = platform::DataFolder();
  shell::ManTempDialog dialog(Ui(), window->Settings(), platform::RealFileSystem(), messages, folder, window.get());
  dialog.show();
  auto* list = dialog.findChild<QListWidget*>("File1");
  auto* save = dialog.findChild<QLineEdit*>("Text1");
  EXPECT_EQ(save->text(), "New Template");
  for (const QWidget* widget : dialog.findChildren<QWidget*>()) {
    if (widget->focusPolicy() != Qt::NoFocus) {
      EXPECT_FALSE(widget->accessibleName().isEmpty()) << widget->metaObject()->className();
    }
  }

  Ui().Command1[0]->setText("A&&B");
  save->setText("Holiday");
  dialog.findChild<QPushButton*>("cmdSave")->click();
  ASSERT_EQ(list->count(), 1);
  Ui().Command1[0]->setText("changed");
  list->setCurrentRow(0);
  for (const char* box : {"Text1", "Text2", "Text3"}) EXPECT_EQ(dialog.findChild<QLineEdit*>(box)->text(), "Holiday.rnt");
  dialog.findChild<QPushButton*>("cmdOpen")->click();
  EXPECT_EQ(Ui().Command1[0]->text(), "A&&B");
  EXPECT_EQ(window->Settings().customCaptions[0], "A&&B");

  dialog.findChild<QPushButton*>("cmdDelete")->click();
  EXPECT_EQ(list->count(), 0);
  EXPECT_EQ(save->text(), "");
  const QString trash = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/Trash/files/";
  EXPECT_TRUE(QFile::exists(trash + "Holiday.rnt"));
  EXPECT_EQ(messages.Texts().last(), "The template has been moved to the Recycle Bin.");
}

}  // namespace
}  // namespace renvale::test

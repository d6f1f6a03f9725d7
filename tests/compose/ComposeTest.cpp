#include <QApplication>
#include <QFocusEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTest>

#include "compose/ComposeFixture.h"
#include "core/CoreTexts.h"
#include "platform/FileSystem.h"
#include "support/SampleAudio.h"
#include "support/SampleImages.h"

namespace renvale::test {
namespace {

class Compose : public ComposeFixture {
 protected:
  // Two pictures taken 2004-05-01 13:14:15, the first with a serial number.
  void OpenWithPictures() {
    ExifFields fields;
    fields.dateTimeOriginal = QStringLiteral("2004:05:01 13:14:15");
    fields.imageNumber = 1234567;
    MakeFile(QStringLiteral("IMG_0001.JPG"), MakeExifJpeg(&fields));
    fields.imageNumber = -1;
    MakeFile(QStringLiteral("IMG_0002.JPG"), MakeExifJpeg(&fields));
    Open();
  }
};

TEST_F(Compose, EveryInsertNeedsASelectedFile) {
  OpenWithPictures();
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
}

TEST_F(Compose, ValuesInIndividualModeAndTokensInBatchMode) {
  OpenWithPictures();
  struct Case {
    std::function<void()> insert;
    QString individual, batch;
  };
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

TEST_F(Compose, Id3ValuesComeFromTheSelectedMp3) {
  Id3v1Fields tag;
  tag.title = "Song";
  tag.track = 7;
  MakeFile(QStringLiteral("a.mp3"), MakeMp3(&tag));
  Open();
  Select({0});
  SetNewName({});
  Trigger(compose->PrepareExifMenu(), "ID3> Insert Title");
  Trigger(compose->PrepareExifMenu(), "ID3> Insert Album");
  Trigger(compose->PrepareExifMenu(), "ID3> Insert Track #");
  EXPECT_EQ(NewName(), "SongAlbum07");
}

TEST_F(Compose, SeriesNumbersInIndividualMode) {
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
}

TEST_F(Compose, DoubleClickResetsTheSeriesBoxToOne) {
  OpenWithPictures();
  window->Settings().placeholders = 4;
  Ui().Text2->setText(QStringLiteral("57"));
  QTest::mouseDClick(Ui().Text2, Qt::LeftButton);
  EXPECT_EQ(Ui().Text2->text(), "0001");
}

// The click on a button takes the focus, and with it the box's selection;
// the insert still replaces what was selected.
TEST_F(Compose, SelectionLostToAButtonIsStillReplaced) {
  OpenWithPictures();
  Select({0});
  SetNewName(QStringLiteral("IMG_0001.JPG"));
  Ui().Text1->setSelection(0, 8);
  QFocusEvent out(QEvent::FocusOut, Qt::MouseFocusReason);
  QApplication::sendEvent(Ui().Text1, &out);
  ASSERT_FALSE(Ui().Text1->hasSelectedText());
  Ui().Command6->click();
  EXPECT_EQ(NewName(), "01 .JPG");
}

}  // namespace
}  // namespace renvale::test

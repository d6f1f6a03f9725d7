#include <QGroupBox>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTest>

#include "compose/ComposeFixture.h"
#include "core/CoreTexts.h"

namespace renvale::test {
namespace {

class ButtonTexts : public ComposeFixture {
 protected:
  void SetUp() override {
    ComposeFixture::SetUp();
    MakeFile(QStringLiteral("Beach.JPG"));
    Open();
  }
  void StoreText(int editIndex, const QString& text) {
    editor->Open(editIndex);
    Ui().Text3->setText(text);
    Ui().Command3->click();
  }
};

TEST_F(ButtonTexts, RightClickOpensTheEditorWithItsPrompt) {
  struct Case {
    QPushButton* button;
    QString prompt;
    int editIndex;
    QString text;
  };
  Ui().Command9[0]->setText(QStringLiteral("R&&D"));
  const Case cases[] = {{Ui().Command1[8], "Enter new text for Button # 9", 9, "Custom9"},
                        {Ui().Command9[0], "Enter new text for Temp # 1", 20, "R&D"}};
  for (const Case& c : cases) {
    QTest::mouseClick(c.button, Qt::RightButton);
    EXPECT_TRUE(Ui().namebutton->isVisible());
    EXPECT_EQ(Ui().namebutton->title(), c.prompt);
    EXPECT_EQ(editor->EditButtonIndex(), c.editIndex);
    EXPECT_EQ(Ui().Text3->text(), c.text);
    EXPECT_EQ(Ui().Text3->selectedText(), c.text);
  }
  EXPECT_TRUE(messages.messages.empty()) << "a right click inserts nothing";
}

TEST_F(ButtonTexts, CharactersNoFileNameCanHoldAreRefused) {
  StoreText(5, QStringLiteral("a|b"));
  EXPECT_TRUE(Ui().namebutton->isVisible()) << "the editor stays open";
  EXPECT_EQ(messages.Texts(), QStringList{core::texts::kInvalidFilenameChars});
  EXPECT_EQ(Ui().Command1[4]->text(), "Custom5");
}

TEST_F(ButtonTexts, DoubleClickEmptiesTheBoxAndAnEmptyTextIsKept) {
  editor->Open(3);
  QTest::mouseDClick(Ui().Text3, Qt::LeftButton);
  EXPECT_EQ(Ui().Text3->text(), "");
  Ui().Command3->click();
  EXPECT_EQ(Ui().Command1[2]->text(), "");
  EXPECT_EQ(window->Settings().customCaptions[2], "");
}

TEST_F(ButtonTexts, FilenameAsTempDropsTheSelectedExtension) {
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

TEST_F(ButtonTexts, FilenameAsTempNeedsAUsableName) {
  SetNewName({});
  Ui().Command10->click();
  SetNewName(QStringLiteral("a?b"));
  Ui().Command10->click();
  EXPECT_EQ(messages.Texts(), QStringList({core::texts::kNoTempFilename, core::texts::kInvalidFilenameChars}));
  EXPECT_EQ(tips.offered, std::vector<int>({9, 9}));
  EXPECT_EQ(Ui().Command9[0]->text(), "Temp1");
}

}  // namespace
}  // namespace renvale::test

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "mainwindow/MainWindowFixture.h"
#include "shell/OptionsDialog.h"

namespace renvale::test {
namespace {

class MainWindowOptions : public MainWindowFixture {};

QAbstractButton* Choice(QWidget* options, const char* name, int index) {
  for (QRadioButton* button : options->findChildren<QRadioButton*>(QString::fromLatin1(name))) {
    if (button->property("index").toInt() == index) return button;
  }
  return nullptr;
}

template <typename Widget>
Widget* Child(QWidget* options, const char* name) {
  return options->findChild<Widget*>(QString::fromLatin1(name));
}

TEST_F(MainWindowOptions, OpenedFromTheMenuEveryChoiceActsAndDoneAppliesTheRest) {
  MakeFiles({"a.jpg", "b.txt"});
  shell::MainWindow& main = Open();
  auto* options = main.findChild<shell::OptionsDialog*>(QStringLiteral("Options"));
  ASSERT_NE(options, nullptr);
  EXPECT_FALSE(options->isVisible());
  ASSERT_TRUE(main.Ui().optionsAction->isEnabled());
  main.Ui().optionsAction->trigger();
  ASSERT_TRUE(options->isVisible());
  EXPECT_EQ(options->windowTitle(), "Renvale Options");

  Choice(options, "FF", 1)->click();
  EXPECT_EQ(ListedNames(), QStringList{"a.jpg"});
  Choice(options, "Option3", 2)->click();
  EXPECT_EQ(main.Settings().seriesSpacing, "X");
  EXPECT_EQ(Child<QLabel>(options, "SpaceSample")->text(), "Filename01.JPG");

  auto* resize = Child<QCheckBox>(options, "ResFonts");
  resize->click();
  resize->click();
  resize->click();
  const QString restart = "When turning this option off, you must restart Renvale for the change to take effect.";
  EXPECT_EQ(messages.Texts(), (QStringList{restart, restart}));
  EXPECT_EQ(messages.Last().icon, platform::MessageIcon::Information);

  // The window hears F12 even while a list has the keyboard.
  messages.Clear();
  QTest::keyRelease(Child<QListWidget>(options, "DateFormat"), Qt::Key_F12);
  EXPECT_EQ(messages.Texts(), QStringList{"DirectShow bug work-around has been enabled."});
  EXPECT_TRUE(main.Settings().fixDirectShow);

  main.Ui().Text2->setText("7");
  Choice(options, "Option1", 3)->click();
  Child<QCheckBox>(options, "Check1")->click();
  Child<QPushButton>(options, "Command1")->click();
  EXPECT_FALSE(options->isVisible());
  EXPECT_EQ(main.Ui().Text2->text(), "0007");
  EXPECT_EQ(main.Ui().previewCaption->text(), "Auto-Preview is disabled.  See 'Tools|Program Options' menu.");
}

TEST_F(MainWindowOptions, ReopeningShowsSettingsChangedElsewhere) {
  shell::MainWindow& main = Open();
  auto* options = main.findChild<shell::OptionsDialog*>(QStringLiteral("Options"));
  main.Ui().optionsAction->trigger();
  options->Done();
  main.Settings().placeholders = 0;
  main.Settings().exifTime = "hhmm";
  main.Settings().resizeFonts = false;
  main.Ui().optionsAction->trigger();
  EXPECT_TRUE(Choice(options, "Option1", 0)->isChecked());
  EXPECT_EQ(Child<QListWidget>(options, "TimeFormat")->currentItem()->text(), "hhmm");
  EXPECT_FALSE(Child<QCheckBox>(options, "ResFonts")->isChecked());
  EXPECT_EQ(Child<QLabel>(options, "Sample")->text(), "1");
  EXPECT_TRUE(messages.messages.empty());
}

}  // namespace
}  // namespace renvale::test

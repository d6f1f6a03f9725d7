#include <QAccessible>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include "mainwindow/MainWindowFixture.h"
#include "shell/BrowsePane.h"
#include "shell/FileListModel.h"

namespace renvale::test {
namespace {


class MainWindowSession : public MainWindowFixture {};

TEST_F(MainWindowSession, SelectAllInAnEmptyFolderOnlyTellsSo) {
  shell::MainWindow& main = Open();
  main.Ui().Command14->click();
  ASSERT_EQ(messages.messages.size(), 1u);
  EXPECT_EQ(messages.Last().text, "There are no files in this folder to select!");
  EXPECT_EQ(messages.Last().title, "Renvale");
  EXPECT_FALSE(main.FileIsSelected());
}

TEST_F(MainWindowSession, SelectAllIsOneSelectionChangeAndEntersBatchMode) {
  QStringList names;
  for (int i = 0; i < 500; ++i) names << QStringLiteral("f%1.jpg").arg(i);
  MakeFiles(names);
  shell::MainWindow& main = Open();
  QSignalSpy changes(main.Ui().File1->selectionModel(), &QItemSelectionModel::selectionChanged);
  main.Ui().Command14->click();
  EXPECT_EQ(changes.count(), 1);
  EXPECT_EQ(main.Session().SelectedCount, 500);
  EXPECT_TRUE(main.Session().BatchMode);
}

TEST_F(MainWindowSession, CtrlAInTheListSelectsAllButInATextBoxSelectsText) {
  MakeFiles({"a.jpg", "b.jpg"});
  shell::MainWindow& main = Open();
  main.show();
  main.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&main));
  main.Ui().File1->setFocus();
  QTest::keyClick(main.Ui().File1, Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(main.Session().SelectedCount, 2);

  ClickRow(0);
  main.Ui().Text1->setFocus();
  QTest::keyClick(main.Ui().Text1, Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(main.Session().SelectedCount, 1);
  EXPECT_EQ(main.Ui().Text1->selectedText(), "a.jpg");
}

TEST_F(MainWindowSession, ToolTipsFollowTheSetting) {
  shell::MainWindow& main = Open();
  EXPECT_EQ(main.Ui().Text2->toolTip(), "Adjust next series # (Double-click to reset to 1)");
  EXPECT_EQ(main.Ui().Command1[4]->toolTip(), "Click to add to filename, Right-click to edit");
  main.ApplyToolTips(false);
  EXPECT_TRUE(main.Ui().Text2->toolTip().isEmpty());
  EXPECT_TRUE(main.Ui().browse->Drive1->toolTip().isEmpty());
}

// What a screen reader speaks for a widget.
QString SpokenName(QWidget* widget) {
  QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(widget);
  return accessible != nullptr ? accessible->text(QAccessible::Name) : QString();
}

// What the widget shows, mnemonic marks taken out ("&&" shows as "&").
QString ShownText(QWidget* widget) {
  QString text;
  if (auto* label = qobject_cast<QLabel*>(widget)) text = label->text();
  if (auto* button = qobject_cast<QAbstractButton*>(widget)) text = button->text();
  if (auto* frame = qobject_cast<QGroupBox*>(widget)) text = frame->title();
  return text.replace(QLatin1String("&&"), QLatin1String("\x01")).remove(QLatin1Char('&')).replace(
      QLatin1Char('\x01'), QLatin1Char('&'));
}

// Names must follow the texts after they change: the counts, a button given
// a text of the person's own, the editor's prompt.
TEST_F(MainWindowSession, ScreenReadersHearWhatEveryControlShowsNow) {
  MakeFiles({"a.jpg", "b.jpg"});
  shell::MainWindow& main = Open();
  main.show();
  ClickRow(1);
  QPushButton* custom1 = main.Ui().Command1[0];
  QTest::mouseClick(custom1, Qt::RightButton);
  main.Ui().Text3->setText("Kids & Pets");
  main.Ui().Command3->click();
  QTest::mouseClick(custom1, Qt::RightButton);
  ASSERT_EQ(main.Ui().namebutton->title(), "Enter new text for Button # 1");
  EXPECT_EQ(SpokenName(main.Ui().Text3), "Enter new text for Button # 1");
  EXPECT_EQ(SpokenName(custom1), "Kids & Pets");
  EXPECT_EQ(SpokenName(main.Ui().fileCountLabel), "Files in folder (2):");
  EXPECT_EQ(SpokenName(main.Ui().selectionLabel), "b.jpg");
  int checked = 0;
  for (QWidget* widget : main.findChildren<QWidget*>()) {
    if (widget->objectName().isEmpty()) continue;
    const QString shown = ShownText(widget);
    if (!shown.isEmpty()) {
      EXPECT_EQ(SpokenName(widget), shown) << widget->objectName().toStdString();
    }
    if (widget->focusPolicy() == Qt::NoFocus) continue;
    EXPECT_FALSE(SpokenName(widget).isEmpty()) << widget->objectName().toStdString();
    ++checked;
  }
  EXPECT_GT(checked, 20);
}

TEST_F(MainWindowSession, TheReportCommandAsksForAFileFirst) {
  Open().Ui().vEX->trigger();
  EXPECT_EQ(messages.Texts(), QStringList{"Please select a file first."});
}

}  // namespace
}  // namespace renvale::test

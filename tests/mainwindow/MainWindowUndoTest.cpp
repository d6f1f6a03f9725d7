#include <QAction>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTemporaryDir>

#include "fileops/Journal.h"
#include "mainwindow/MainWindowFixture.h"

namespace renvale::test {
namespace {

using MainWindowUndo = MainWindowFixture;

// The window's part: the rename reaches the journal, the Edit menu names
// what Undo takes back (an ampersand shown, not taken as the key), Undo
// puts the file back and the list follows.
TEST_F(MainWindowUndo, TheEditMenuUndoesTheLastRename) {
  QTemporaryDir state;
  QDir().mkpath(state.path() + "/damaged");
  fileops::Journal kept(platform::RealFileSystem(), QFile::encodeName(state.path()) + '/', messages);
  journal = &kept;
  MakeFiles({"a.JPG", "c.JPG"});
  shell::MainWindow& main = Open();
  main.show();
  QAction* undo = main.Ui().mnuUndo;
  EXPECT_FALSE(undo->isEnabled());
  ClickRow(0);
  main.Ui().Text1->setText("b");
  main.Ui().Command2->click();
  ASSERT_EQ(ListedNames(), QStringList({"b.JPG", "c.JPG"}));
  undo->trigger();
  EXPECT_EQ(ListedNames(), QStringList({"a.JPG", "c.JPG"}));
  EXPECT_EQ(messages.Last().text, "Undo of Rename of 1 file: 1 file(s) were put back.");
  EXPECT_FALSE(undo->isEnabled());

  core::OperationPlan plan{core::OperationKind::SearchReplace, Folder(), QDateTime::currentDateTimeUtc(),
                           {{core::StepKind::Rename, Folder() + "c.JPG", Folder() + "d.JPG", {}}}};
  ASSERT_EQ(kept.Begin(plan), 0);
  kept.End();
  emit qobject_cast<QMenu*>(undo->parent())->aboutToShow();
  EXPECT_EQ(undo->text(), "&Undo Search && Replace of 1 file");
}

}  // namespace
}  // namespace renvale::test

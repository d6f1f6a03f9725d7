#include <QDialog>
#include <QFile>
#include <QPushButton>
#include <QTimer>

#include "mainwindow/MainWindowFixture.h"

namespace renvale::test {
namespace {

using platform::MessageAnswer;

QPushButton* Button(QDialog* dialog, const char* name) {
  return dialog->findChild<QPushButton*>(QString::fromLatin1(name));
}

// The window's part: "Transfer" opens the dialog over the selection, the
// chosen folder enters the history, and while the run asks, the transfer
// button reads "Cancel" and the rest of the dialog is locked until the end.
TEST_F(MainWindowFixture, TransferMovesTheSelectionThroughTheDialog) {
  MakeFiles({"a.JPG", "b.JPG"});
  QTemporaryDir target;
  QFile old(target.path() + "/a.JPG");
  ASSERT_TRUE(old.open(QIODevice::WriteOnly));
  old.close();
  shell::MainWindow& main = Open();
  main.Ui().Command13->click();
  EXPECT_EQ(messages.Texts(), QStringList{"No file is selected!"});

  messages.Clear();
  main.SelectAll();
  pickerAnswer = target.path();
  QStringList duringQuestion;
  QTimer::singleShot(0, &main, [&] {
    auto* dialog = main.findChild<QDialog*>(QStringLiteral("frmMoveFiles"));
    ASSERT_NE(dialog, nullptr);
    messages.onShow = [&, dialog] {
      duringQuestion << Button(dialog, "Command3")->text()
                     << (Button(dialog, "Command4")->isEnabled() ? "enabled" : "locked");
    };
    Button(dialog, "Command1")->click();
    Button(dialog, "Command3")->click();
    messages.onShow = nullptr;
    Button(dialog, "Command4")->click();
  });
  messages.Script(MessageAnswer::No);
  main.Ui().Command13->click();

  EXPECT_EQ(messages.Texts(),
            (QStringList{"The file 'a.JPG' already exists in the destination folder.\rOverwrite the existing file?  "
                         "The existing file will be lost!",
                         "File(s) moved successfully.\r\rSome files were not moved because they already existed in "
                         "destination folder."}));
  EXPECT_EQ(duringQuestion, (QStringList{"Cancel", "locked", "Transfer File(s)", "enabled"}));
  EXPECT_EQ(ListedNames(), QStringList{"a.JPG"});
  EXPECT_TRUE(QFile::exists(target.path() + "/b.JPG"));
  EXPECT_EQ(main.Settings().lastMovePath, target.path() + '/');
  EXPECT_EQ(main.Settings().folderHistory[0], target.path() + '/');
  EXPECT_EQ(tips.offered, std::vector<int>{16});
}

}  // namespace
}  // namespace renvale::test

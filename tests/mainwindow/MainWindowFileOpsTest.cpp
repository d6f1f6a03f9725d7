#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>

#include "mainwindow/MainWindowFixture.h"

namespace renvale::test {
namespace {

using MainWindowFileOps = MainWindowFixture;

// Terms typed in the dialog rename the selection and are listed; then "DEL" trashes two.
TEST_F(MainWindowFileOps, SearchAndReplaceThroughTheDialogThenDelTrashesTheSelection) {
  MakeFiles({"IMG_1.jpg", "IMG_2.jpg", "IMG_3.jpg"});
  shell::MainWindow& main = Open();
  main.Ui().FSR->trigger();
  EXPECT_EQ(messages.Texts(), QStringList{"Please select file(s) to search first."});
  ClickRow(0);
  ClickRow(1, Qt::ShiftModifier);
  QString results;
  messages.onShow = [&] {
    QTimer::singleShot(0, [&] {
      QWidget* window = QApplication::activeModalWidget();
      results = window->findChild<QPlainTextEdit*>("textResults")->toPlainText();
      window->findChild<QPushButton*>("Command1")->click();
    });
  };
  QTimer::singleShot(0, [&] {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    ASSERT_EQ(dialog->windowTitle(), "Filename Search & Replace");
    dialog->findChildren<QLineEdit*>("SearchTerm").at(0)->setText("IMG");
    dialog->findChildren<QLineEdit*>("ReplaceTerm").at(0)->setText("Pic");
    dialog->findChild<QPushButton*>("Command2")->click();
    dialog->findChild<QPushButton*>("Command1")->click();
  });
  main.Ui().FSR->trigger();
  messages.onShow = nullptr;
  EXPECT_EQ(messages.Last().text, "Search & Replace Renaming Complete.  Click OK for the results.");
  EXPECT_EQ(results, "\n\"IMG_1.jpg\" was renamed to \"Pic_1.jpg\"\n\"IMG_2.jpg\" was renamed to \"Pic_2.jpg\"");
  EXPECT_EQ(ListedNames(), (QStringList{"IMG_3.jpg", "Pic_1.jpg", "Pic_2.jpg"}));
  EXPECT_EQ(main.Ui().selectionLabel->text(), "( No File Selected )");
  ClickRow(0);
  ClickRow(1, Qt::ShiftModifier);
  main.Ui().Command4->click();
  EXPECT_EQ(messages.Last().text, "Are you sure you want to move all selected files to the Recycle Bin?");
  EXPECT_EQ(ListedNames(), QStringList{"Pic_2.jpg"});
  EXPECT_EQ(main.Ui().fileCountLabel->text(), "Files in folder (1):");
  EXPECT_EQ(tips.offered, (std::vector<int>{17, 6}));
}

}  // namespace
}  // namespace renvale::test

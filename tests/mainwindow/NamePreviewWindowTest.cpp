#include <QAbstractItemModel>
#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTimer>

#include "mainwindow/MainWindowFixture.h"
#include "shell/NamePreviewDialog.h"
#include "support/SampleImages.h"

namespace renvale::test {
namespace {

using NamePreviewWindow = MainWindowFixture;

QByteArray TakenOn(const char* moment) {
  ExifFields fields = TypicalExifFields();
  fields.dateTimeOriginal = QString::fromLatin1(moment);
  return MakeExifJpeg(&fields);
}

// Two pictures trading names and a third wanting the name of one of them:
// the window lists each with its note, and its Start gives the names listed.
TEST_F(NamePreviewWindow, ListsASwapAndADuplicateAndStartGivesTheNamesShown) {
  MakeFile("2004-07-01.jpg", TakenOn("2004:07:02 10:00:00"));
  MakeFile("2004-07-02.jpg", TakenOn("2004:07:01 10:00:00"));
  MakeFile("c.jpg", TakenOn("2004:07:01 11:00:00"));
  shell::MainWindow& main = Open();
  main.SelectAll();
  main.Ui().Text1->setText("%DATE%");
  QStringList shown;
  QString summary;
  QTimer::singleShot(0, [&] {
    auto* dialog = qobject_cast<shell::NamePreviewDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    const QAbstractItemModel* rows = dialog->List()->model();
    for (int row = 0; row < rows->rowCount(); ++row) {
      QStringList cells;
      for (int column : {0, 1, 3}) cells << rows->index(row, column).data().toString();
      shown << cells.join(" | ");
    }
    summary = dialog->findChild<QLabel*>("PreviewSummary")->text();
    dialog->StartButton()->click();
  });
  messages.Script(platform::MessageAnswer::Yes);  // the duplicate names were meant
  messages.Script(platform::MessageAnswer::No);   // c.jpg must not replace a picture
  main.Ui().previewNames->click();
  EXPECT_EQ(shown, (QStringList{
                       "2004-07-01.jpg | 2004-07-02.jpg | Renamed after '2004-07-02.jpg' has left this name.",
                       "2004-07-02.jpg | 2004-07-01.jpg | Same new name as row 3 ('c.jpg'). Renamed after "
                       "'2004-07-01.jpg' has left this name.",
                       "c.jpg | 2004-07-01.jpg | Same new name as row 2 ('2004-07-02.jpg'). Renamed after "
                       "'2004-07-01.jpg' has left this name."}));
  EXPECT_EQ(summary, "3 files; 3 with notes. Nothing has been renamed yet.");
  ASSERT_EQ(messages.messages.size(), 2u);
  EXPECT_TRUE(messages.Last().text.startsWith("Overwrite file: '2004-07-01.jpg'?"));
  EXPECT_EQ(messages.Last().defaultButton, std::optional(platform::MessageAnswer::No));
  const auto holds = [&](const char* name) {
    QFile file(QFile::decodeName(Folder() + name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  };
  EXPECT_EQ(holds("2004-07-02.jpg"), TakenOn("2004:07:02 10:00:00"));
  EXPECT_EQ(holds("2004-07-01.jpg"), TakenOn("2004:07:01 10:00:00"));
  EXPECT_EQ(holds("c.jpg"), TakenOn("2004:07:01 11:00:00"));
}

}  // namespace
}  // namespace renvale::test

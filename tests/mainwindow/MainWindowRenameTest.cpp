#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <thread>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTest>

#include "mainwindow/MainWindowFixture.h"
#include "shell/FileListModel.h"
#include "support/FaultyFileSystem.h"
#include "support/SampleImages.h"

namespace renvale::test {
namespace {

using platform::MessageAnswer;

class MainWindowRename : public MainWindowFixture {
 protected:
  void PressEnter() {
    window->show();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    QTest::keyClick(window->Ui().Text1, Qt::Key_Return);
  }
};

TEST_F(MainWindowRename, EnterRenamesTheSelectedFileAndSelectsItAgain) {
  MakeFiles({"a.JPG", "c.JPG"});
  shell::MainWindow& main = Open();
  main.show();
  ClickRow(0);
  main.Ui().Text1->setText("b");
  PressEnter();
  EXPECT_EQ(ListedNames(), QStringList({"b.JPG", "c.JPG"}));
  EXPECT_EQ(main.Session().SelectedFileName.Display(), "b.JPG");
  EXPECT_EQ(main.Ui().Text1->text(), "b.JPG");
  EXPECT_TRUE(messages.messages.empty()) << messages.Texts().join('|').toStdString();
}

// "0.jpg" is to take the name of a picture the same batch renames: that one
// goes first, no question is asked, and each keeps its own contents.
TEST_F(MainWindowRename, ANameAnotherFileOfTheBatchLeavesIsTakenWithoutLoss) {
  ExifFields fields = TypicalExifFields();
  fields.dateTimeOriginal = "2004:01:01 10:00:00";
  const QByteArray first = MakeExifJpeg(&fields);
  ASSERT_TRUE(WriteFile(QFile::decodeName(Folder()) + "0.jpg", first));
  fields.dateTimeOriginal = "2005:05:05 10:00:00";
  ASSERT_TRUE(WriteFile(QFile::decodeName(Folder()) + "2004-01-01.jpg", MakeExifJpeg(&fields)));
  shell::MainWindow& main = Open();
  window->SelectAll();
  main.Ui().Text1->setText("%DATE%");
  messages.Script(MessageAnswer::Yes);  // a base without time or series: go on
  main.Ui().Command11->click();
  ASSERT_EQ(messages.messages.size(), 1u) << messages.Texts().join('|').toStdString();
  EXPECT_EQ(ListedNames(), QStringList({"2004-01-01.jpg", "2005-05-05.jpg"}));
  QFile kept(QFile::decodeName(Folder()) + "2004-01-01.jpg");
  ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
  EXPECT_EQ(kept.readAll(), first);
}

// Camera sets, raws of many makes and pictures without EXIF: reading ahead
// must name them exactly as reading each at its turn does.
TEST_F(MainWindowRename, ReadingAheadNamesRealCameraFilesAsReadingEachAtItsTurn) {
  const QString camera = qEnvironmentVariable("RENVALE_TESTDATA") + "/camera/";
  if (qEnvironmentVariableIsEmpty("RENVALE_TESTDATA") || !QDir(camera).exists()) GTEST_SKIP() << "no camera files";
  const QString folder = QFile::decodeName(Folder());
  // The same old file time everywhere, so that fallback dates agree.
  const QDateTime taken(QDate(2001, 2, 3), QTime(4, 5, 6), Qt::UTC);
  auto batch = [&](platform::FileSystem& fs) {
    for (const QString& name : QDir(folder).entryList(QDir::Files)) QFile::remove(folder + name);
    for (const QString& name : QDir(camera).entryList(QDir::Files)) {
      QFile::copy(camera + name, folder + name);
      QFile copy(folder + name);
      copy.open(QIODevice::ReadWrite);
      copy.setFileTime(taken, QFileDevice::FileModificationTime);
    }
    messages.messages.clear();
    shell::MainWindow& main = Open(fs);
    main.Ui().Text2->setText("1");
    window->SelectAll();
    main.Ui().Text1->setText("%DATE% %TIME% %SERIES%");
    main.Ui().Command11->click();
    return std::make_pair(ListedNames(), messages.Texts());
  };
  FaultyFileSystem oneThread(platform::RealFileSystem());  // offers no second thread
  const auto atTheirTurn = batch(oneThread);
  EXPECT_EQ(batch(platform::RealFileSystem()), atTheirTurn);
  EXPECT_GT(atTheirTurn.first.size(), 20);
}

// Bytes a legacy camera or tool wrote must survive the text they pass
// through: the new-name box, "Orig. Filename" and "%ORIGFN%".
TEST_F(MainWindowRename, NamesThatAreNotUtf8KeepTheirBytesThroughOrigFilename) {
  MakeFile("bad\xff.jpg");
  MakeFile("raw\xfe.jpg");
  shell::MainWindow& main = Open();
  main.show();
  main.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&main));
  ClickRow(0);
  main.Ui().Command8->click();
  EXPECT_TRUE(main.Ui().Text1->hasFocus()) << "the box is cleared to be typed into";
  main.Ui().OrigFN->click();
  QTest::keyClicks(main.Ui().Text1, " copy");
  main.Ui().Command2->click();
  std::vector<QByteArray> names;
  ASSERT_EQ(platform::RealFileSystem().ListFiles(Folder(), &names), 0);
  std::sort(names.begin(), names.end());
  EXPECT_EQ(names, (std::vector<QByteArray>{"bad\xff copy.jpg", "raw\xfe.jpg"}));

  window->SelectAll();
  main.Ui().Text2->setText("26");
  main.Ui().Text1->setText("%ORIGFN% v%SERIES%");
  main.Ui().Command11->click();
  ASSERT_EQ(platform::RealFileSystem().ListFiles(Folder(), &names), 0);
  std::sort(names.begin(), names.end());
  EXPECT_EQ(names, (std::vector<QByteArray>{"bad\xff copy v26.jpg", "raw\xfe v27.jpg"}));
  EXPECT_TRUE(messages.messages.empty()) << messages.Texts().join('|').toStdString();
}

// A named pipe waits in open() for a writer that never comes, and a device
// never ends: neither may hold up a batch that reads every file's date. The
// watchdog plays the missing writer so that a fault fails instead of hanging.
TEST_F(MainWindowRename, ABatchOverANamedPipeAndADeviceFinishes) {
  MakeFile("b.jpg");
  const QByteArray pipe = Folder() + "IMG_0001.JPG";
  ASSERT_EQ(::mkfifo(pipe.constData(), 0644), 0);
  ASSERT_EQ(::symlink("/dev/zero", (Folder() + "zero.jpg").constData()), 0);
  std::atomic<bool> finished{false};
  std::atomic<bool> rescued{false};
  std::thread watchdog([&] {
    for (int i = 0; i < 100 && !finished; ++i) std::this_thread::sleep_for(std::chrono::milliseconds(100));
    while (!finished) {
      const int fd = ::open(pipe.constData(), O_WRONLY | O_NONBLOCK);
      if (fd >= 0) rescued = true, ::close(fd);
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
  });
  shell::MainWindow& main = Open();
  window->SelectAll();
  main.Ui().Text1->setText("%DATE% %SERIES%");
  main.Ui().Command11->click();
  finished = true;
  watchdog.join();
  EXPECT_FALSE(rescued) << "a read waited for the pipe's writer";
  std::vector<QByteArray> names;
  ASSERT_EQ(platform::RealFileSystem().ListFiles(Folder(), &names), 0);
  ASSERT_EQ(names.size(), 3u);
  int pipes = 0;
  for (const QByteArray& name : names) {
    EXPECT_FALSE(name == "b.jpg" || name == "IMG_0001.JPG" || name == "zero.jpg") << name.constData();
    struct stat st;
    ASSERT_EQ(::lstat((Folder() + name).constData(), &st), 0);
    pipes += S_ISFIFO(st.st_mode) ? 1 : 0;
  }
  EXPECT_EQ(pipes, 1);
  EXPECT_TRUE(messages.messages.empty()) << messages.Texts().join('|').toStdString();
}

}  // namespace
}  // namespace renvale::test

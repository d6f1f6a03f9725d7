#include "mainwindow/MainWindowFixture.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QListView>
#include <QTest>

#include "shell/FileListModel.h"

namespace renvale::test {

void MainWindowFixture::SetUp() {
  ASSERT_TRUE(dir.isValid());
  QDir(dir.path()).mkpath(QStringLiteral("files/sub"));
  storage = std::make_unique<platform::QtSettingsStorage>(dir.path() + QStringLiteral("/Renvale.conf"));
  drives = {{QByteArrayLiteral("/"), QStringLiteral("/"), platform::VolumeKind::Root}};
}

void MainWindowFixture::TearDown() { window.reset(); }

QByteArray MainWindowFixture::Folder() const { return QFile::encodeName(dir.path()) + "/files/"; }

shell::MainWindow& MainWindowFixture::Open(platform::FileSystem& fs, const QByteArray& startPath) {
  window.reset();
  shell::MainWindowServices services{
      fs, messages, *storage, tips,
      [this](QWidget*, const QString& title, const QString&) {
        pickerTitle = title;
        return pickerAnswer;
      },
      [this] { return drives; },
      [this] { return Folder(); },
      journal};
  window = std::make_unique<shell::MainWindow>(std::move(services));
  window->Start(startPath);
  return *window;
}

void MainWindowFixture::CloseWindow() {
  window->Shutdown();
  window.reset();
}

void MainWindowFixture::MakeFiles(const QStringList& names) {
  for (const QString& name : names) MakeFile(name.toUtf8());
}

void MainWindowFixture::MakeFile(const QByteArray& rawName, const QByteArray& bytes) {
  // Straight to the file system: the names may be bytes Qt cannot spell,
  // and thousands of them must not each wait for a flush to disk.
  const int fd = ::open((Folder() + rawName).constData(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
  ASSERT_GE(fd, 0);
  ASSERT_EQ(::write(fd, bytes.constData(), static_cast<size_t>(bytes.size())), bytes.size());
  ::close(fd);
}

QStringList MainWindowFixture::ListedNames() {
  QStringList names;
  for (int row = 0; row < window->Files().Count(); ++row) names << window->Files().FileAt(row).Display();
  return names;
}

void MainWindowFixture::ClickRow(int row, Qt::KeyboardModifiers modifiers) {
  QListView* list = window->Ui().File1;
  const QRect rect = list->visualRect(window->Files().index(row));
  QTest::mouseClick(list->viewport(), Qt::LeftButton, modifiers, rect.center());
}

void MainWindowFixture::ShowActive() {
  window->show();
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
}

std::vector<QByteArray> MainWindowFixture::DiskNames() {
  std::vector<QByteArray> names;
  EXPECT_EQ(platform::RealFileSystem().ListFiles(Folder(), &names), 0);
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace renvale::test

// The media player in the real window, through the system's media
// framework: where Qt's GStreamer backend or the WAV reader is missing the
// cases skip.

#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include "mainwindow/MainWindowFixture.h"
#include "shell/MainWindowUi.h"
#include "shell/MediaPane.h"
#include "shell/PreviewPane.h"
#include "support/FaultyFileSystem.h"
#include "support/SampleAudio.h"

namespace renvale::test {
namespace {

// Whether Qt's GStreamer backend is there with all of the GStreamer `plugins`.
bool CanPlay(const QStringList& plugins) {
  const QString qtPlugin = QLibraryInfo::path(QLibraryInfo::PluginsPath) + "/multimedia/libgstreamermediaplugin.so";
  const QStringList gstFolders = {"/usr/lib/x86_64-linux-gnu/gstreamer-1.0", "/usr/lib/aarch64-linux-gnu/gstreamer-1.0",
                                  "/usr/lib/gstreamer-1.0", "/usr/lib64/gstreamer-1.0"};
  return QFile::exists(qtPlugin) && std::any_of(gstFolders.begin(), gstFolders.end(), [&](const QString& folder) {
           return std::all_of(plugins.begin(), plugins.end(),
                              [&](const QString& plugin) { return QFile::exists(folder + "/libgst" + plugin + ".so"); });
         });
}

// Whether this process holds `path` open.
bool HeldOpen(const QByteArray& path) {
  for (const QString& fd : QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)) {
    char target[4096];
    const ssize_t length = ::readlink(("/proc/self/fd/" + fd.toLatin1()).constData(), target, sizeof target);
    if (length > 0 && QByteArray(target, length) == path) return true;
  }
  return false;
}

class MainWindowMedia : public MainWindowFixture {
 protected:
  void SetUp() override {
    if (!CanPlay({"wavparse"})) GTEST_SKIP() << "no GStreamer backend with a WAV reader";
    MainWindowFixture::SetUp();
  }
  QString Text(QLabel* label) { return label->text(); }
};

TEST_F(MainWindowMedia, PlaysASoundAndLetsGoOfItBeforeItIsRenamed) {
  const QByteArray name = "tone\xFF.wav";  // not UTF-8: reaches the framework byte for byte
  MakeFile(name, MakeWav(3000));
  FaultyFileSystem fs(platform::RealFileSystem());
  shell::MainWindow& main = Open(fs);
  shell::MainWindowUi& ui = main.Ui();
  QSignalSpy ready(&main.Preview().Media(), &shell::MediaPane::Ready);
  ClickRow(0);
  EXPECT_EQ(Text(ui.previewCaption), "(Loading media file...)");
  ASSERT_TRUE(ready.wait(10000)) << Text(ui.previewCaption).toStdString();
  EXPECT_EQ(Text(ui.previewCaption), platform::FileName{name}.Display());
  EXPECT_EQ(Text(ui.CurTime) + Text(ui.TotalLength), ".00 / 3.00");
  EXPECT_FALSE(ui.MediaButton[1]->isEnabled());

  ui.MediaButton[0]->click();  // Play
  // (QTRY_ macros would only return on failure: gtest never hears of it.)
  ASSERT_TRUE(QTest::qWaitFor([&] { return ui.MediaButton[1]->isEnabled(); }, 5000));
  ASSERT_TRUE(QTest::qWaitFor([&] { return Text(ui.CurTime) != ".00"; }, 5000));
  const QByteArray path = Folder() + name;
  ASSERT_TRUE(HeldOpen(path));
  int renames = 0;
  fs.beforeRename = [&](const QByteArray& from) {
    ++renames;
    EXPECT_FALSE(HeldOpen(from));
    EXPECT_TRUE(main.Session().PreviewedPath.isEmpty());
  };
  ui.Text1->setText("tone.wav");
  ui.Command2->click();
  EXPECT_EQ(renames, 1);
}

// GStreamer knows the length of a VBR MP3 (and a video's first frame) only
// once its pipeline is paused: it shows before Play.
TEST_F(MainWindowMedia, ALoadedMp3ShowsItsLengthBeforePlay) {
  QFile mp3(qEnvironmentVariable("RENVALE_TESTDATA") + "/mp3/mutagen__silence-44-s.mp3");
  if (!CanPlay({"audioparsers", "mpg123"}) || !mp3.open(QIODevice::ReadOnly)) GTEST_SKIP() << "no MP3 reader or file";
  MakeFile("song.mp3", mp3.readAll());
  shell::MainWindow& main = Open();
  QSignalSpy ready(&main.Preview().Media(), &shell::MediaPane::Ready);
  ClickRow(0);
  ASSERT_TRUE(ready.wait(10000)) << Text(main.Ui().previewCaption).toStdString();
  EXPECT_TRUE(QTest::qWaitFor([&] { return Text(main.Ui().TotalLength) == " / 3.74"; }, 5000));
  EXPECT_FALSE(main.Ui().MediaButton[2]->isEnabled());  // Stop: the pause reads as stopped
}

// A damaged file, and a named pipe, which the framework would wait on
// forever.
TEST_F(MainWindowMedia, AFileThatCannotBePlayedSaysSoAndIsLetGo) {
  MakeFile("broken.wav", "RIFF\x10\0\0\0WAVEjunkjunkjunk");
  ASSERT_EQ(::mkfifo((Folder() + "pipe.wav").constData(), 0600), 0);
  shell::MainWindow& main = Open();
  QSignalSpy unplayable(&main.Preview().Media(), &shell::MediaPane::Unplayable);
  for (const char* name : {"broken.wav", "pipe.wav"}) {
    ClickRow(ListedNames().indexOf(name));
    ASSERT_TRUE(unplayable.count() > 0 || unplayable.wait(10000)) << name;
    unplayable.clear();
    EXPECT_TRUE(Text(main.Ui().previewCaption).startsWith(QString(name) + "  -  cannot be played ("));
    EXPECT_TRUE(main.Session().PreviewedPath.isEmpty());
    EXPECT_FALSE(HeldOpen(Folder() + name));
    EXPECT_TRUE(main.Ui().mediaControls->isHidden());
  }
}

}  // namespace
}  // namespace renvale::test

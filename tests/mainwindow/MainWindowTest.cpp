#include <gtest/gtest.h>

#include <QAbstractItemModel>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>
#include <QTextDocument>
#include <QThread>
#include <QTimer>
#include <QUrl>
#include <algorithm>
#include <atomic>
#include <chrono>
#include <fcntl.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

#include "fileops/Journal.h"
#include "mainwindow/MainWindowFixture.h"
#include "platform/widgets/HelpWindow.h"
#include "shell/AboutDialog.h"
#include "shell/BackgroundTextDocument.h"
#include "shell/BrowsePane.h"
#include "shell/DropToggleButton.h"
#include "shell/MainWindowUi.h"
#include "shell/MediaPane.h"
#include "shell/NamePreviewDialog.h"
#include "shell/OptionsDialog.h"
#include "shell/PreviewPane.h"
#include "support/FaultyFileSystem.h"
#include "support/SampleAudio.h"
#include "support/SampleImages.h"

namespace renvale::test {
namespace {

using MainWindowFileOps = MainWindowFixture;

// Terms typed in the dialog rename the selection and are listed, a clash
// asked about with the files done so far on the bar; then "DEL" trashes one.
TEST_F(MainWindowFileOps, SearchAndReplaceThroughTheDialogThenDelTrashesTheSelection) {
  MakeFiles({"IMG_1.jpg", "IMG_2.jpg", "IMG_3.jpg", "Pic_2.jpg"});
  shell::MainWindow& main = Open();
  main.Ui().FSR->trigger();
  EXPECT_EQ(messages.Texts(), QStringList{"Please select file(s) to search first."});
  ClickRow(0);
  ClickRow(1, Qt::ShiftModifier);
  QString results;
  int doneAtQuestion = -1;
  messages.Script(platform::MessageAnswer::No);
  messages.onShow = [&] {
    if (messages.Last().text.startsWith("The file 'Pic_2.jpg'")) {
      doneAtQuestion = QApplication::activeModalWidget()->findChild<QProgressBar*>("ProgressBar1")->value();
      return;
    }
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
  EXPECT_EQ(doneAtQuestion, 1);
  EXPECT_EQ(results, "\n\"IMG_1.jpg\" was renamed to \"Pic_1.jpg\"\nThe file 'IMG_2.jpg' was not renamed to "
                     "'Pic_2.jpg' because the new proposed filename already existed.");
  EXPECT_EQ(ListedNames(), (QStringList{"IMG_2.jpg", "IMG_3.jpg", "Pic_1.jpg", "Pic_2.jpg"}));
  EXPECT_EQ(main.Ui().selectionLabel->text(), "( No File Selected )");
  ClickRow(0);
  main.Ui().Command4->click();
  EXPECT_EQ(ListedNames(), (QStringList{"IMG_3.jpg", "Pic_1.jpg", "Pic_2.jpg"}));
  EXPECT_EQ(tips.offered, (std::vector<int>{17, 6}));
}

TEST(AboutVersion, RevisionShowsOnlyWhenNotZero) {
  struct Row { int major, minor, revision; const char* text; };
  for (const Row& row : {Row{2, 1, 0, "v2.1"}, Row{2, 1, 3, "v2.1.3"}, Row{0, 10, 0, "v0.10"}}) {
    EXPECT_EQ(shell::AboutDialog::VersionText(row.major, row.minor, row.revision), row.text);
  }
}

class MainWindowHelp : public MainWindowFixture {};

TEST_F(MainWindowHelp, F1OpensTheHelpWindowAtTheMainWindowsPage) {
  shell::MainWindow& main = Open();
  ShowActive();
  QTest::keyClick(main.Ui().File1, Qt::Key_F1);
  auto* help = main.findChild<platform::HelpWindow*>();
  ASSERT_NE(help, nullptr);
  EXPECT_TRUE(help->isVisible());
  EXPECT_EQ(help->Page(), QUrl(QStringLiteral("qrc:/help/interface.html")));
  EXPECT_FALSE(help->Browser()->toPlainText().isEmpty());

  main.Ui().HelpMen[0]->trigger();
  EXPECT_EQ(main.findChildren<platform::HelpWindow*>().size(), 1);
  EXPECT_EQ(help->Page(), QUrl(QStringLiteral("qrc:/help/index.html")));
}

// The media player in the real window, through the system's media
// framework: where Qt's GStreamer backend or the WAV reader is missing the
// cases skip.
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

// Opened from the menu every choice acts at once and Done applies the rest;
// opened again it shows settings changed elsewhere.
TEST_F(MainWindowOptions, EveryChoiceActsDoneAppliesTheRestAndReopeningShowsTheSettings) {
  MakeFiles({"a.jpg", "b.txt"});
  shell::MainWindow& main = Open();
  auto* options = main.findChild<shell::OptionsDialog*>(QStringLiteral("Options"));
  main.Ui().optionsAction->trigger();
  ASSERT_TRUE(options->isVisible());

  Choice(options, "FF", 1)->click();
  EXPECT_EQ(ListedNames(), QStringList{"a.jpg"});
  Choice(options, "Option3", 2)->click();
  EXPECT_EQ(main.Settings().seriesSpacing, "X");
  EXPECT_EQ(Child<QLabel>(options, "SpaceSample")->text(), "Filename01.JPG");

  Child<QCheckBox>(options, "ResFonts")->click();
  EXPECT_EQ(messages.Texts(),
            QStringList{"When turning this option off, you must restart Renvale for the change to take effect."});
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

  // Opened again, it shows what was changed elsewhere meanwhile.
  messages.Clear();
  main.Settings().placeholders = 0;
  main.Settings().exifTime = "hhmm";
  main.Settings().resizeFonts = true;
  main.Ui().optionsAction->trigger();
  EXPECT_TRUE(Choice(options, "Option1", 0)->isChecked());
  EXPECT_EQ(Child<QListWidget>(options, "TimeFormat")->currentItem()->text(), "hhmm");
  EXPECT_TRUE(Child<QCheckBox>(options, "ResFonts")->isChecked());
  EXPECT_EQ(Child<QLabel>(options, "Sample")->text(), "1");
  EXPECT_TRUE(messages.messages.empty());
}

using platform::DefaultApplication;

using MainWindowPreview = MainWindowFixture;

// The preview pane in the real window: without automatic preview only the
// button shows; the external preview says when no application opens the
// file, and only then.
TEST_F(MainWindowPreview, WithoutAutoPreviewOnlyTheButtonShowsAndExternalPreviewTellsWhatFailed) {
  MakeFile("a.jpg", MakeExifJpeg(nullptr, 20, 10));
  MakeFiles({"a.xyz"});
  shell::MainWindow& main = Open();
  main.Settings().autoPreview = false;
  main.Ui().ShPrev->click();
  EXPECT_EQ(messages.beeps, 1);
  EXPECT_EQ(messages.Texts(), QStringList{"No file is selected!"});
  ClickRow(0);
  EXPECT_EQ(main.Ui().previewCaption->text(), "Auto-Preview is disabled.  See 'Tools|Program Options' menu.");
  QSignalSpy shown(&main.Preview(), &shell::PreviewPane::PictureShown);
  main.Ui().ShPrev->click();
  ASSERT_TRUE(shown.count() > 0 || shown.wait(5000));
  EXPECT_EQ(main.Ui().previewCaption->text(), "a.jpg  -  20w X 10h");
  // A quarter turn of what is shown.
  main.Ui().RotIP->trigger();
  EXPECT_EQ(main.Preview().Picture().size(), QSize(10, 20));

  messages.Clear();
  QByteArray opened;
  DefaultApplication::Result answer = DefaultApplication::Result::NoApplication;
  main.Preview().SetExternalOpener([&](const QByteArray& path) {
    opened = path;
    return answer;
  });
  ClickRow(1);
  main.Ui().UnSupported->click();
  EXPECT_EQ(opened, Folder() + "a.xyz");
  EXPECT_EQ(messages.Texts(),
            QStringList{"Unable to preview file externally.\nThis computer does not appear to have an application "
                        "associated with this type of file."});
  // Other failures stay silent; the picture's pop-up menu opens the same way.
  messages.Clear();
  opened.clear();
  answer = DefaultApplication::Result::Failed;
  QMenu* extprev = main.Ui().Gvbox1->findChild<QMenu*>("extprev");
  ASSERT_NE(extprev, nullptr);
  extprev->actions().value(0)->trigger();
  EXPECT_EQ(opened, Folder() + "a.xyz");
  EXPECT_TRUE(messages.Texts().isEmpty());
}

using MainWindowRename = MainWindowFixture;

// A selected picture shows with its size, a file without a preview says so,
// and the shown picture is let go of before the rename and shown again after.
TEST_F(MainWindowRename, EnterRenamesTheSelectedFileAndSelectsItAgain) {
  MakeFile("a.JPG", MakeExifJpeg(nullptr, 20, 10));
  MakeFiles({"notes.txt"});
  FaultyFileSystem fs(platform::RealFileSystem());  // decodes at once, on this thread
  shell::MainWindow& main = Open(fs);
  ShowActive();
  QSignalSpy shown(&main.Preview(), &shell::PreviewPane::PictureShown);
  ClickRow(0);  // reports the current file and the selection: decoded once, caption kept
  EXPECT_EQ(shown.count(), 1);
  EXPECT_EQ(main.Ui().previewCaption->text(), "a.JPG  -  20w X 10h");
  ClickRow(1);
  EXPECT_EQ(main.Ui().previewCaption->text(), "(Preview Unavailable)");
  EXPECT_TRUE(main.Ui().Gvbox1->pixmap().isNull());
  ClickRow(0);
  int renames = 0;
  fs.beforeRename = [&](const QByteArray&) {
    ++renames;
    EXPECT_TRUE(main.Session().PreviewedPath.isEmpty());
    EXPECT_TRUE(main.Preview().Picture().isNull());
  };
  main.Ui().Text1->setText("b");
  QTest::keyClick(main.Ui().Text1, Qt::Key_Return);
  EXPECT_EQ(renames, 1);
  EXPECT_EQ(ListedNames(), QStringList({"b.JPG", "notes.txt"}));
  EXPECT_EQ(main.Session().SelectedFileName.Display(), "b.JPG");
  EXPECT_EQ(main.Ui().Text1->text(), "b.JPG");
  EXPECT_EQ(main.Ui().previewCaption->text(), "b.JPG  -  20w X 10h");
  EXPECT_TRUE(messages.messages.empty()) << messages.Texts().join('|').toStdString();
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
  ShowActive();
  ClickRow(0);
  main.Ui().Command8->click();
  EXPECT_TRUE(main.Ui().Text1->hasFocus()) << "the box is cleared to be typed into";
  main.Ui().OrigFN->click();
  QTest::keyClicks(main.Ui().Text1, " copy");
  main.Ui().Command2->click();
  EXPECT_EQ(DiskNames(), (std::vector<QByteArray>{"bad\xff copy.jpg", "raw\xfe.jpg"}));

  window->SelectAll();
  main.Ui().Text2->setText("26");
  main.Ui().Text1->setText("%ORIGFN% v%SERIES%");
  main.Ui().Command11->click();
  EXPECT_EQ(DiskNames(), (std::vector<QByteArray>{"bad\xff copy v26.jpg", "raw\xfe v27.jpg"}));
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
  const std::vector<QByteArray> names = DiskNames();
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

class MainWindowSession : public MainWindowFixture {};

// Select All and the report need files: in an empty folder each only says so.
TEST_F(MainWindowSession, CommandsInAnEmptyFolderOnlyTellSo) {
  shell::MainWindow& main = Open();
  main.Ui().Command14->click();
  main.Ui().vEX->trigger();
  EXPECT_EQ(messages.Texts(),
            (QStringList{"There are no files in this folder to select!", "Please select a file first."}));
  EXPECT_EQ(messages.messages[0].title, "Renvale");
  EXPECT_FALSE(main.FileIsSelected());
}

// Ctrl+A in the list selects all in one selection change; in a text box it
// selects the text.
TEST_F(MainWindowSession, CtrlAInTheListSelectsAllButInATextBoxSelectsText) {
  QStringList names;
  for (int i = 0; i < 500; ++i) names << QStringLiteral("f%1.jpg").arg(i);
  MakeFiles(names);
  shell::MainWindow& main = Open();
  ShowActive();
  QSignalSpy changes(main.Ui().File1->selectionModel(), &QItemSelectionModel::selectionChanged);
  main.Ui().File1->setFocus();
  QTest::keyClick(main.Ui().File1, Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(changes.count(), 1);
  EXPECT_EQ(main.Session().SelectedCount, 500);
  EXPECT_TRUE(main.Session().BatchMode);

  ClickRow(0);
  main.Ui().Text1->setFocus();
  QTest::keyClick(main.Ui().Text1, Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(main.Session().SelectedCount, 1);
  EXPECT_EQ(main.Ui().Text1->selectedText(), "f0.jpg");
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

using platform::MessageIcon;

class MainWindowSettings : public MainWindowFixture {};

TEST_F(MainWindowSettings, ClosingAndReopeningRestoresFolderModeCaptionsAndPlacement) {
  shell::MainWindow& first = Open();
  first.ChangeFolder(Folder() + "sub/");
  first.ApplyBrowseMode(1);
  first.Ui().Command1[3]->setText("Kids && Pets");
  first.move(40, 30);
  first.resize(700, 560);
  const QRect placed = first.geometry();
  CloseWindow();
  EXPECT_EQ(storage->ReadSettingString("Last Custom", "Custom 4"), "Kids && Pets");

  shell::MainWindow& second = Open();
  EXPECT_EQ(second.Session().CurrentFolder, Folder() + "sub/");
  EXPECT_EQ(second.Settings().browseMode, 1);
  EXPECT_EQ(second.Ui().browse->CurFold->text(), QFile::decodeName(Folder() + "sub/"));
  EXPECT_EQ(second.Ui().Command1[3]->text(), "Kids && Pets");
  // Twips round to whole numbers, so allow a pixel either way.
  EXPECT_NEAR(second.x(), placed.x(), 1);
  EXPECT_NEAR(second.y(), placed.y(), 1);
  EXPECT_NEAR(second.width(), placed.width(), 1);
  EXPECT_NEAR(second.height(), placed.height(), 1);
}

// Drops open the folder of the first item or are refused.
TEST_F(MainWindowSettings, DropsAndDrivesOpenFoldersOrSayWhyNot) {
  MakeFiles({"a.jpg"});
  drives.push_back({QByteArrayLiteral("/nonexistent-card/"), QStringLiteral("Card"), platform::VolumeKind::Removable});
  shell::MainWindow& main = Open();
  main.ChangeFolder("/");
  const QString folder = QFile::decodeName(Folder());
  emit main.Ui().browse->toggleBrowseS->UrlsDropped({QUrl::fromLocalFile(folder + "a.jpg"), QUrl::fromLocalFile(folder + "sub")});
  EXPECT_EQ(main.Session().CurrentFolder, Folder());
  emit main.Ui().browse->toggleBrowseA->UrlsDropped({QUrl::fromLocalFile(folder + "sub")});
  EXPECT_EQ(main.Session().CurrentFolder, Folder() + "sub/");
  emit main.Ui().browse->toggleBrowseS->UrlsDropped({QUrl("https://example.org/pictures")});
  EXPECT_EQ(messages.Texts(), QStringList{"Only DRIVES or FOLDERS can be dropped here!"});
  EXPECT_EQ(main.Session().CurrentFolder, Folder() + "sub/");

  // A drive that cannot be read warns and keeps the folder.
  messages.Clear();
  emit main.Ui().browse->DriveChosen(1);
  ASSERT_EQ(messages.messages.size(), 1u);
  EXPECT_EQ(messages.Last().title, "Drive Unaccessable");
  EXPECT_EQ(messages.Last().icon, MessageIcon::Warning);
  EXPECT_EQ(messages.Last().text,
            "Could not access selected drive.\n"
            "If it uses removable media, please be sure it is inserted and ready.\n"
            "If this is a network drive, be sure you have permission to access it and that the "
            "computer is turned on.");
  EXPECT_EQ(main.Session().CurrentFolder, Folder() + "sub/");
  EXPECT_EQ(main.Ui().browse->Drive1->currentIndex(), 0);
}

// The folder list opens subfolders and ancestors; Choose Folder handles a
// cancel, a virtual place and a real folder.
TEST_F(MainWindowSettings, TheFolderListAndChooseFolderOpenRealFoldersOnly) {
  shell::MainWindow& main = Open();
  QListWidget* list = main.Ui().browse->Dir1;
  const QList<QListWidgetItem*> sub = list->findItems(QStringLiteral(" sub"), Qt::MatchEndsWith);
  ASSERT_EQ(sub.size(), 1);
  emit list->itemActivated(sub[0]);
  EXPECT_EQ(main.Session().CurrentFolder, Folder() + "sub/");
  emit list->itemActivated(list->item(0));
  EXPECT_EQ(main.Session().CurrentFolder, "/");

  main.ApplyBrowseMode(1);
  pickerAnswer = "";
  main.Ui().browse->Command15->click();
  EXPECT_EQ(pickerTitle, "Choose a location containing files you wish to work with...");
  EXPECT_EQ(main.Session().CurrentFolder, "/");

  pickerAnswer = "::smb://server/share";
  main.Ui().browse->Command15->click();
  ASSERT_EQ(messages.Texts(), QStringList{"An invalid folder was chosen.  Please choose an actual folder."});

  pickerAnswer = QFile::decodeName(Folder()) + "sub";
  main.Ui().browse->Command15->click();
  EXPECT_EQ(main.Session().CurrentFolder, Folder() + "sub/");
  EXPECT_EQ(main.Ui().browse->CurFold->text(), QFile::decodeName(Folder()) + "sub/");
}

using MainWindowStartPath = MainWindowFixture;

TEST_F(MainWindowStartPath, TheArgumentOpensItsFolderOrSaysWhyNotWithoutChangingSettings) {
  MakeFiles({"a.jpg", "b.jpg"});
  MakeFile("caf\xe9.jpg");
  const QByteArray remembered = Folder() + "sub/";
  const QByteArray gone = Folder() + "gone/a.jpg";
  const struct { QByteArray path, folder, selected; QString status; } rows[] = {
      {Folder() + "sub/../", Folder(), {}, {}},
      {Folder() + "b.jpg", Folder(), "b.jpg", {}},
      {Folder() + "caf\xe9.jpg", Folder(), "caf\xe9.jpg", {}},
      {gone, remembered, {}, "Drive Unaccessable: " + platform::FileName{gone}.Display()},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.path.toStdString());
    storage->WriteSettingString("", "Last Folder", QFile::decodeName(remembered));
    Open(platform::RealFileSystem(), row.path);
    EXPECT_EQ(window->Session().CurrentFolder, row.folder);
    EXPECT_EQ(window->Session().SelectedFileName.raw, row.selected);
    EXPECT_EQ(window->statusBar()->currentMessage(), row.status);
    EXPECT_TRUE(messages.messages.empty());
    CloseWindow();
    EXPECT_EQ(storage->ReadSettingString("", "Last Folder"), QFile::decodeName(row.folder));
  }
  ::unlink((Folder() + "caf\xe9.jpg").constData());  // a name QTemporaryDir cannot spell
}

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
  ASSERT_TRUE(QFile(target.path() + "/a.JPG").open(QIODevice::WriteOnly));
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

// Pieces handed in one after another end up whole and in order in a
// document that belongs to the taker's thread; one never taken is let go.
TEST(BackgroundTextDocument, HoldsEveryPieceInOrderOnTheTakersThread) {
  shell::BackgroundTextDocument pieces(QFont(QStringLiteral("Sans"), 13));
  QString whole;
  for (int i = 0; i < 300; ++i) {
    const QString piece = QStringLiteral("\n\"IMG_%1.JPG\" was renamed to \"Pic_%1.JPG\"").arg(i);
    pieces.Append(piece);
    whole += piece;
  }
  pieces.Append(QString());  // adds nothing, and leaves the last piece to compare
  EXPECT_TRUE(pieces.Continues(whole + "x"));
  EXPECT_FALSE(pieces.Continues(QString(whole).replace(whole.size() - 3, 1, 'X')));
  EXPECT_FALSE(pieces.Continues(whole.chopped(1)));
  const std::unique_ptr<QTextDocument> document = pieces.Take();
  EXPECT_EQ(document->thread(), QThread::currentThread());
  EXPECT_EQ(document->toPlainText(), whole);
  EXPECT_EQ(document->defaultFont().pointSize(), 13);
  shell::BackgroundTextDocument abandoned{QFont()};
  abandoned.Append(whole);
}

}  // namespace
}  // namespace renvale::test

// The preview pane in the real window: automatic preview, the buttons, and
// the previewed file let go of before it is renamed.

#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include "mainwindow/MainWindowFixture.h"
#include "shell/PreviewPane.h"
#include "support/FaultyFileSystem.h"
#include "support/SampleImages.h"

namespace renvale::test {
namespace {

using platform::DefaultApplication;

class MainWindowPreview : public MainWindowFixture {
 protected:
  QString Caption() { return window->Ui().previewCaption->text(); }
  void WaitForPicture(QSignalSpy& shown) { ASSERT_TRUE(shown.count() > 0 || shown.wait(5000)); }
};

TEST_F(MainWindowPreview, SelectingAPictureShowsItWithItsSize) {
  MakeFile("IMG_0001.JPG", MakeExifJpeg(nullptr, 64, 48));
  MakeFiles({"notes.txt"});
  FaultyFileSystem fs(platform::RealFileSystem());  // decodes at once, on this thread
  shell::MainWindow& main = Open(fs);
  QSignalSpy shown(&main.Preview(), &shell::PreviewPane::PictureShown);
  ClickRow(0);  // reports the current file and the selection: decoded once, caption kept
  EXPECT_EQ(shown.count(), 1);
  EXPECT_EQ(Caption(), "IMG_0001.JPG  -  64w X 48h");
  EXPECT_EQ(main.Session().PreviewedPath, Folder() + "IMG_0001.JPG");
  EXPECT_FALSE(main.Ui().Gvbox1->pixmap().isNull());

  ClickRow(1);
  EXPECT_EQ(Caption(), "(Preview Unavailable)");
  EXPECT_TRUE(main.Session().PreviewedPath.isEmpty());
  EXPECT_TRUE(main.Ui().Gvbox1->pixmap().isNull());
}

TEST_F(MainWindowPreview, WithoutAutoPreviewOnlyTheButtonShows) {
  MakeFile("a.jpg", MakeExifJpeg(nullptr, 20, 10));
  shell::MainWindow& main = Open();
  main.Settings().autoPreview = false;
  main.Ui().ShPrev->click();
  EXPECT_EQ(messages.beeps, 1);
  EXPECT_EQ(messages.Texts(), QStringList{"No file is selected!"});
  ClickRow(0);
  EXPECT_EQ(Caption(), "Auto-Preview is disabled.  See 'Tools|Program Options' menu.");
  QSignalSpy shown(&main.Preview(), &shell::PreviewPane::PictureShown);
  main.Ui().ShPrev->click();
  WaitForPicture(shown);
  EXPECT_EQ(Caption(), "a.jpg  -  20w X 10h");
  // A quarter turn of what is shown.
  main.Ui().RotIP->trigger();
  EXPECT_EQ(main.Preview().Picture().size(), QSize(10, 20));
}

TEST_F(MainWindowPreview, ExternalPreviewWithoutAnApplicationSaysSo) {
  MakeFiles({"a.xyz"});
  shell::MainWindow& main = Open();
  QByteArray opened;
  DefaultApplication::Result answer = DefaultApplication::Result::NoApplication;
  main.Preview().SetExternalOpener([&](const QByteArray& path) {
    opened = path;
    return answer;
  });
  ClickRow(0);
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

TEST_F(MainWindowPreview, TheFileIsReleasedBeforeItIsRenamed) {
  MakeFile("a.jpg", MakeExifJpeg(nullptr, 20, 10));
  FaultyFileSystem fs(platform::RealFileSystem());
  shell::MainWindow& main = Open(fs);
  ClickRow(0);
  ASSERT_EQ(main.Session().PreviewedPath, Folder() + "a.jpg");
  ASSERT_FALSE(main.Preview().Picture().isNull());
  int renames = 0;
  fs.beforeRename = [&](const QByteArray&) {
    ++renames;
    EXPECT_TRUE(main.Session().PreviewedPath.isEmpty());
    EXPECT_TRUE(main.Preview().Picture().isNull());
  };
  main.Ui().Text1->setText("b.jpg");
  main.Ui().Command2->click();
  EXPECT_EQ(renames, 1);
  // The renamed file is selected and shown again.
  EXPECT_EQ(Caption(), "b.jpg  -  20w X 10h");
}

}  // namespace
}  // namespace renvale::test

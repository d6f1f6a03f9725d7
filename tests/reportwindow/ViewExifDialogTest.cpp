#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QTemporaryDir>
#include <QTimer>

#include "metadata/FileReport.h"
#include "platform/FileSystem.h"
#include "shell/ViewExifDialog.h"
#include "support/MemoryFileSystem.h"
#include "support/OracleCsv.h"
#include "support/SampleAudio.h"
#include "support/SampleImages.h"
#include "support/SampleRaw.h"
#include "support/ScriptedMessagePort.h"

namespace renvale::test {
namespace {

using shell::ViewExifDialog;

const QString kNote =
    "NOTE: EXIF data availability depends on camera's ability to record it.  Therefore, some "
    "fields may be empty.";

ViewExifDialog* OpenReportWindow() {
  return qobject_cast<ViewExifDialog*>(QApplication::activeModalWidget());
}

TEST(ViewExifDialog, HoldsTheNamedControls) {
  ViewExifDialog dialog;
  EXPECT_EQ(dialog.objectName(), "frmViewEXIF");
  EXPECT_EQ(dialog.windowTitle(), "General File / EXIF Data");
  auto* exif = dialog.findChild<QTextEdit*>("EXIFText");
  auto* general = dialog.findChild<QTextEdit*>("GenInfo");
  auto* close = dialog.findChild<QPushButton*>("Command1");
  ASSERT_TRUE(exif && general && close);
  EXPECT_TRUE(exif->isReadOnly() && general->isReadOnly());
  EXPECT_EQ(close->text(), "Close");
  QStringList labels;
  for (auto* label : dialog.findChildren<QLabel*>()) labels << label->text();
  EXPECT_TRUE(labels.contains("EXIF Data") && labels.contains("General Info"));
  EXPECT_TRUE(labels.contains(kNote));
  for (auto* widget : dialog.findChildren<QWidget*>()) {
    if (widget->isWidgetType() && widget->parent() == &dialog) {
      EXPECT_FALSE(widget->accessibleName().isEmpty()) << widget->metaObject()->className();
    }
  }
}

TEST(ViewExifDialog, ShowsTheTextsWithPlainLineBreaksAndCentresItself) {
  ViewExifDialog dialog;
  dialog.SetTexts({"EXIF data for \"a.jpg\":\n\nline", "File Size: 2 KB (. MB)\r\nRead Only: No\r\n"});
  EXPECT_EQ(dialog.ExifText(), "EXIF data for \"a.jpg\":\n\nline");
  EXPECT_EQ(dialog.GeneralText(), "File Size: 2 KB (. MB)\nRead Only: No\n");
  dialog.show();
  const QRect screen = dialog.screen()->geometry();
  EXPECT_EQ(dialog.x(), screen.x() + (screen.width() - dialog.width()) / 2);
  EXPECT_EQ(dialog.y(), screen.y() + (screen.height() - dialog.height()) / 2);
  dialog.findChild<QPushButton*>("Command1")->click();
  EXPECT_FALSE(dialog.isVisible());
}

TEST(ViewExifDialog, CommandWithoutASelectedFileOnlyAsks) {
  MemoryFileSystem fs;
  ScriptedMessagePort messages;
  bool opened = false;
  QTimer::singleShot(0, [&opened] {
    if (auto* dialog = OpenReportWindow()) {
      opened = true;
      dialog->reject();
    }
  });
  ViewExifDialog::RunViewCommand(nullptr, fs, messages, "/p/", "");
  QApplication::processEvents();
  EXPECT_FALSE(opened);
  EXPECT_EQ(messages.Texts(), QStringList{"Please select a file first."});
}

TEST(ViewExifDialog, CommandShowsTheReportOfTheSelectedFile) {
  MemoryFileSystem fs;
  ScriptedMessagePort messages;
  const Id3v1Fields tag{"Song", "Band", "Record", "1999", "", 4, 17};
  fs.Add("/p/song.mp3", MakeMp3(&tag));
  const metadata::FileReportTexts expected = metadata::BuildFileReport(fs, messages, "/p/", "song.mp3");
  QString shownExif, shownGeneral;
  QTimer::singleShot(0, [&] {
    if (auto* dialog = OpenReportWindow()) {
      shownExif = dialog->ExifText();
      shownGeneral = dialog->GeneralText();
      dialog->findChild<QPushButton*>("Command1")->click();
    }
  });
  ViewExifDialog::RunViewCommand(nullptr, fs, messages, "/p/", "song.mp3");
  EXPECT_EQ(shownExif, expected.exif);
  EXPECT_EQ(shownGeneral, QString(expected.general).replace("\r\n", "\n"));
  EXPECT_TRUE(shownGeneral.contains("---Title: Song\n---Artist: Band\n"));
  EXPECT_TRUE(messages.messages.empty());
}

// With RENVALE_SCREENSHOT_DIR set, saves the window for typical files there
// so that a person can look at it.
TEST(ViewExifDialog, Screenshots) {
  const QString out = QString::fromLocal8Bit(qgetenv("RENVALE_SCREENSHOT_DIR"));
  if (out.isEmpty()) GTEST_SKIP() << "RENVALE_SCREENSHOT_DIR not set";
  QTemporaryDir dir;
  ASSERT_TRUE(dir.isValid());
  ExifFields exif = TypicalExifFields();
  const Id3v1Fields tag{"Silence", "piman", "Quod Libet Test Data", "2004", "comment", 2, 50};
  const std::pair<const char*, QByteArray> files[] = {
      {"IMG_0001.JPG", MakeExifJpeg(&exif)},
      {"plain.jpg", MakeExifJpeg(nullptr)},
      {"CRW_0002.CRW", MakeCrw()},
      {"CRW_0002.THM", MakeThm("2004:07:15 18:03:09", "2004:07:16 09:00:00")},
      {"CRW_0003.CRW", MakeCrw()},
      {"tagged.mp3", MakeMp3(&tag)},
      {"untagged.mp3", MakeMp3(nullptr)},
  };
  for (const auto& [name, bytes] : files) ASSERT_TRUE(WriteFile(dir.filePath(name), bytes));
  QStringList shots = {"IMG_0001.JPG", "plain.jpg", "CRW_0002.CRW", "CRW_0003.CRW",
                       "tagged.mp3", "untagged.mp3"};
  for (const char* real : {"CanonRaw.cr2", "CanonRaw.crw"}) {
    if (QFile::copy(TestDataFolder() + "/camera/" + real, dir.filePath(real))) shots << real;
  }
  // The THM partner is found only under its lower-case name.
  QFile::rename(dir.filePath("CRW_0002.THM"), dir.filePath("CRW_0002.thm"));
  ScriptedMessagePort messages;
  for (const QString& name : shots) {
    ViewExifDialog dialog;
    dialog.SetTexts(metadata::BuildFileReport(platform::RealFileSystem(), messages,
                                              (dir.path() + '/').toUtf8(), name.toUtf8()));
    dialog.show();
    QApplication::processEvents();
    EXPECT_TRUE(dialog.grab().save(QDir(out).filePath("report-" + name + ".png")));
  }
  EXPECT_TRUE(messages.messages.empty());
}

}  // namespace
}  // namespace renvale::test

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QTimer>

#include "metadata/FileReport.h"
#include "shell/ViewExifDialog.h"
#include "support/MemoryFileSystem.h"
#include "support/SampleAudio.h"
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

TEST(ViewExifDialog, ReadOnlyTextsTheNoteAndAccessibleNames) {
  ViewExifDialog dialog;
  auto* exif = dialog.findChild<QTextEdit*>("EXIFText");
  auto* general = dialog.findChild<QTextEdit*>("GenInfo");
  ASSERT_TRUE(exif && general);
  EXPECT_TRUE(exif->isReadOnly() && general->isReadOnly());
  QStringList labels;
  for (auto* label : dialog.findChildren<QLabel*>()) labels << label->text();
  EXPECT_TRUE(labels.contains(kNote));
  for (auto* widget : dialog.findChildren<QWidget*>()) {
    if (widget->parent() != &dialog) continue;
    EXPECT_FALSE(widget->accessibleName().isEmpty()) << widget->metaObject()->className();
  }
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

}  // namespace
}  // namespace renvale::test

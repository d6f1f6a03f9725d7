#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QTextEdit>
#include <QPushButton>
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

// The report in read-only boxes under the note, every control named for
// screen readers.
TEST(ViewExifDialog, CommandShowsTheReportOfTheSelectedFile) {
  MemoryFileSystem fs;
  ScriptedMessagePort messages;
  const Id3v1Fields tag{"Song", "Band", "Record", "1999", "", 4, 17};
  fs.Add("/p/song.mp3", MakeMp3(&tag));
  const metadata::FileReportTexts expected = metadata::BuildFileReport(fs, messages, "/p/", "song.mp3");
  QString shownExif, shownGeneral;
  QStringList labels, unnamed;
  bool readOnly = false;
  QTimer::singleShot(0, [&] {
    auto* dialog = qobject_cast<ViewExifDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr) return;
    shownExif = dialog->ExifText();
    shownGeneral = dialog->GeneralText();
    readOnly = dialog->findChild<QTextEdit*>("EXIFText")->isReadOnly() &&
               dialog->findChild<QTextEdit*>("GenInfo")->isReadOnly();
    for (auto* label : dialog->findChildren<QLabel*>()) labels << label->text();
    for (auto* widget : dialog->findChildren<QWidget*>()) {
      if (widget->parent() != dialog || !widget->accessibleName().isEmpty()) continue;
      unnamed << widget->metaObject()->className();
    }
    dialog->findChild<QPushButton*>("Command1")->click();
  });
  ViewExifDialog::RunViewCommand(nullptr, fs, messages, "/p/", "song.mp3");
  EXPECT_EQ(shownExif, expected.exif);
  EXPECT_EQ(shownGeneral, QString(expected.general).replace("\r\n", "\n"));
  EXPECT_TRUE(shownGeneral.contains("---Title: Song\n---Artist: Band\n"));
  EXPECT_TRUE(messages.messages.empty());
  EXPECT_TRUE(readOnly);
  EXPECT_TRUE(labels.contains(kNote));
  EXPECT_EQ(unnamed, QStringList{});
}

}  // namespace
}  // namespace renvale::test

#include <gtest/gtest.h>

#include "core/FileSelection.h"

namespace renvale::core {
namespace {

platform::FileName Name(const char* raw) { return platform::FileName{QByteArray(raw)}; }

// How names split is the file name rules' business; here only the mode the
// count gives and what the session, the box and the captions take from the
// current file. Nothing selected keeps the mode and lets go of the held name.
TEST(FileSelection, TheCountGivesTheModeAndTheCurrentFileFillsTheSession) {
  const platform::FileName file = Name("a.b.TAR");
  const QString noAutoPreview = "Auto-Preview is disabled.  See 'Tools|Program Options' menu.";
  struct Row {
    int count;
    bool forceLower, autoPreview;
    WindowMode mode;
    const char *label, *base, *ext, *newName;
    QString caption;
  };
  const Row rows[] = {
      {0, false, true, WindowMode::NoSelection, "(No File Selected)", "", "", "", ""},
      {1, true, true, WindowMode::Individual, "a.b.TAR", "a.b", ".tar", "a.b.tar", "a.b.TAR"},
      {1, false, false, WindowMode::Individual, "a.b.TAR", "a.b", ".TAR", "a.b.TAR", noAutoPreview},
      // The batch pane needs the current item's extension.
      {3, false, true, WindowMode::Batch, "3 files selected", "a.b", ".TAR", "", ""},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(::testing::Message() << row.count << " selected, caption " << row.caption.toStdString());
    RenameSession session;
    session.BatchMode = true;
    session.SelectedFileName = Name("old.jpg");
    SettingsRecord settings;
    settings.forceLowerCaseExtension = row.forceLower;
    settings.autoPreview = row.autoPreview;
    const SelectionView view = ApplySelection(session, row.count, row.count > 0 ? &file : nullptr, settings);
    EXPECT_EQ(view.mode, row.mode);
    EXPECT_EQ(session.BatchMode, row.mode != WindowMode::Individual);
    EXPECT_EQ(session.SelectedCount, row.count);
    EXPECT_EQ(session.SelectedFileName.raw, row.count > 0 ? "a.b.TAR" : "");
    EXPECT_EQ(view.selectionLabel, row.label);
    EXPECT_EQ(session.SelectedBase, row.base);
    EXPECT_EQ(session.SelectedExt, row.ext);
    EXPECT_EQ(view.newName, row.newName);
    EXPECT_EQ(view.previewCaption, row.caption);
  }
}

}  // namespace
}  // namespace renvale::core

#include <gtest/gtest.h>

#include "core/FileSelection.h"

namespace renvale::core {
namespace {

platform::FileName Name(const char* raw) { return platform::FileName{QByteArray(raw)}; }

TEST(FileSelection, NothingSelectedKeepsTheModeAndClearsTheHeldName) {
  RenameSession session;
  session.BatchMode = true;
  session.SelectedFileName = Name("old.jpg");
  const SelectionView view = ApplySelection(session, 0, nullptr, SettingsRecord{});
  EXPECT_EQ(view.mode, WindowMode::NoSelection);
  EXPECT_EQ(view.selectionLabel, "(No File Selected)");
  EXPECT_TRUE(session.SelectedFileName.raw.isEmpty());
  EXPECT_EQ(session.SelectedCount, 0);
}

// How names split is the file name rules' business; here only that the
// session and the box take the split, with the forced extension case.
TEST(FileSelection, OneFileIsIndividualModeWithTheNameSplit) {
  RenameSession session;
  session.BatchMode = true;
  SettingsRecord settings;
  settings.forceLowerCaseExtension = true;
  const platform::FileName file = Name("a.b.TAR");
  const SelectionView view = ApplySelection(session, 1, &file, settings);
  EXPECT_EQ(view.mode, WindowMode::Individual);
  EXPECT_FALSE(session.BatchMode);
  EXPECT_EQ(session.SelectedBase, "a.b");
  EXPECT_EQ(session.SelectedExt, ".tar");
  EXPECT_EQ(view.newName, "a.b.tar");
}

TEST(FileSelection, AutoPreviewOffExplainsWhereToTurnItOn) {
  RenameSession session;
  SettingsRecord settings;
  settings.autoPreview = false;
  const platform::FileName file = Name("a.jpg");
  EXPECT_EQ(ApplySelection(session, 1, &file, settings).previewCaption,
            "Auto-Preview is disabled.  See 'Tools|Program Options' menu.");
}

TEST(FileSelection, TwoOrMoreSelectedIsBatchModeAndKeepsTheBox) {
  RenameSession session;
  const platform::FileName file = Name("b.CRW");
  const SelectionView view = ApplySelection(session, 3, &file, SettingsRecord{});
  EXPECT_EQ(view.mode, WindowMode::Batch);
  EXPECT_TRUE(session.BatchMode);
  EXPECT_TRUE(view.newName.isEmpty());
  EXPECT_EQ(session.SelectedExt, ".CRW") << "the batch pane needs the current item's extension";
  EXPECT_EQ(session.SelectedCount, 3);
}

}  // namespace
}  // namespace renvale::core

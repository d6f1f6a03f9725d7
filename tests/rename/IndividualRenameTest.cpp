#include "core/IndividualRename.h"

#include "RenameFixture.h"
#include "core/CoreTexts.h"
#include "core/RenameFailureTexts.h"
#include "platform/ErrorNumbers.h"
#include "support/MemoryFileSystem.h"

namespace renvale::test {
namespace {

using platform::MessageAnswer;
using Files = std::map<QByteArray, QByteArray>;

class IndividualRenameTest : public RenameFixture {
 protected:
  void Rename(const QString& box) {
    view.newName = box;
    core::IndividualRename(context).RenameSelectedFile();
  }
};

TEST_F(IndividualRenameTest, RefusalsLeaveTheFolderAlone) {
  struct Case { const char* box; bool selected; QString message; };
  const Case cases[] = {
      {"b", false, core::texts::kPleaseSelectFileFirst}, {"", true, core::texts::kPleaseEnterNewFilename},
      {"a?b", true, core::texts::kInvalidFilenameChars},
      {"a", true, core::texts::kSameAsOriginal},  // the guard completes it to a.JPG
  };
  Make({"a.JPG"});
  for (const Case& c : cases) {
    port.Clear();
    Select({"a.JPG"});
    if (!c.selected) session.SelectedFileName = {};
    Rename(c.box);
    EXPECT_EQ(port.Texts(), QStringList{c.message}) << c.box;
    EXPECT_EQ(Folder(), (Files{{"a.JPG", "a.JPG"}}));
    EXPECT_EQ(view.tips.back(), 10);
  }
}

// Each name is composed, taken and selected again in the list.
TEST_F(IndividualRenameTest, ComposesTheNameWithGuardAndTokens) {
  struct Case { const char* box; bool forceLce; const char* result; const char* seriesAfter; };
  const Case cases[] = {
      {"b", false, "b.JPG", "07"}, {"b", true, "b.jpg", "07"}, {"b.png", false, "b.png.JPG", "07"},
      {"b.jpg", true, "b.jpg", "07"},  // already ends with the extension
      {"%origfn%-%ORIGFN%", false, "a-a.JPG", "07"}, {"%DATE% %time%", false, "2004-05-01 10-20-30.JPG", "07"},
      {"x%SERIES%", false, "x07.JPG", "08"}, {"x%series%", false, "x07.JPG", "08"},
      {"x%Series%", false, "x%Series%.JPG", "08"},  // found, consumed, kept as typed
  };
  settings.autoPreview = false;
  for (const Case& c : cases) {
    Make({"a.JPG"});
    Select({"a.JPG"});
    session.PreviewedPath = Path("a.JPG");
    settings.forceLowerCaseExtension = c.forceLce;
    view.series = "07";
    settings.placeholders = 2;
    Rename(c.box);
    EXPECT_EQ(Folder(), (Files{{c.result, "a.JPG"}})) << c.box;
    EXPECT_EQ(view.series, c.seriesAfter) << c.box;
    EXPECT_EQ(view.reselected, c.result);
    EXPECT_TRUE(session.PreviewedPath.isEmpty());
    platform::RealFileSystem().RemoveFile(Path(c.result));
  }
  EXPECT_TRUE(port.messages.empty());
  EXPECT_EQ(view.refreshes, static_cast<int>(std::size(cases)));
  EXPECT_EQ(view.labels.back(), "( No File Selected )");
  EXPECT_EQ(view.newName, "");
  EXPECT_EQ(view.previewCaptions.back(), "Auto-Preview is disabled.  See 'Options' menu.");
  EXPECT_EQ(view.previews, 0);
}

TEST_F(IndividualRenameTest, CaseOnlyChangeAsksOnlyWhenTheOtherNameIsAnotherFile) {
  Make({"photo.jpg", "Photo.jpg"});
  Select({"photo.jpg"});
  port.Script(MessageAnswer::No);
  Rename("Photo.jpg");
  EXPECT_EQ(port.Last().title, core::texts::kOverwriteTitle);
  EXPECT_EQ(Folder(), (Files{{"Photo.jpg", "Photo.jpg"}, {"photo.jpg", "photo.jpg"}}));
  Rename("Photo.jpg");  // unscripted: Yes
  EXPECT_EQ(Folder(), (Files{{"Photo.jpg", "photo.jpg"}}));
}

// A file system that refuses even a change of case as "exists" (as the plain
// no-replace rename does on a FAT card when the alias is not recognised):
// agreeing to overwrite must not delete the file being renamed.
TEST_F(IndividualRenameTest, CaseFoldingTargetIsNeverDeletedAsAnotherFile) {
  MemoryFileSystem card(/*foldCase=*/true);
  card.Add("/card/photo.jpg", "picture");
  core::RenameContext onCard{session, settings, view, port, card, tokens};
  session.CurrentFolder = "/card/";
  Select({"photo.jpg"});
  view.newName = "Photo.jpg";
  core::IndividualRename(onCard).RenameSelectedFile();  // Yes to the question
  EXPECT_EQ(port.Last().text, core::IndividualRenameFailureText(58, platform::ErrorDescription(58)));
  EXPECT_TRUE(card.Exists("/card/photo.jpg"));
}

TEST_F(IndividualRenameTest, OverwriteAnswers) {
  struct Case { MessageAnswer answer; Files after; const char* seriesAfter; };
  const Case cases[] = {
      {MessageAnswer::No, {{"a.JPG", "a.JPG"}, {"05.JPG", "05.JPG"}}, "05"},
      {MessageAnswer::Cancel, {{"a.JPG", "a.JPG"}, {"05.JPG", "05.JPG"}}, "05"},
      {MessageAnswer::Yes, {{"05.JPG", "a.JPG"}}, "06"},
  };
  for (const Case& c : cases) {
    Remake({"a.JPG", "05.JPG"});
    Select({"a.JPG"});
    view.series = "05";
    port.Clear();
    port.Script(c.answer);
    Rename("%SERIES%");
    ASSERT_EQ(port.messages.size(), 1u);
    EXPECT_EQ(port.Last().text, "Overwrite file: '05.JPG'?\nOverwriting an existing file will cause that file to be lost!");
    EXPECT_EQ(port.Last().icon, platform::MessageIcon::Warning);
    EXPECT_EQ(port.Last().buttons, platform::MessageButtons::YesNoCancel);
    EXPECT_EQ(port.Last().defaultButton, MessageAnswer::No);
    EXPECT_EQ(Folder(), c.after);
    EXPECT_EQ(view.series, c.seriesAfter);
  }
}

TEST_F(IndividualRenameTest, FailuresAreReportedAndChangeNothing) {
  Make({"a.JPG"});
  Select({"a.JPG"});
  fs.FailRename(Path("a.JPG"), 1028);
  view.series = "3";
  Rename("x%SERIES%");
  EXPECT_EQ(port.Texts(), QStringList{core::IndividualRenameFailureText(1028, "No space left on device")});
  EXPECT_EQ(port.Last().icon, platform::MessageIcon::Critical);
  EXPECT_EQ(view.newName, "x03.JPG");  // the composed name stays for another try
  EXPECT_EQ(view.series, "04");        // and the number stays consumed
  EXPECT_EQ(view.refreshes, 0);
  EXPECT_EQ(Folder(), (Files{{"a.JPG", "a.JPG"}}));
}

TEST_F(IndividualRenameTest, OverwriteFailuresSayWhatHappened) {
  Make({"a.JPG", "b.JPG"});
  Select({"a.JPG"});
  fs.FailRemove(Path("b.JPG"), 75);
  Rename("b");
  EXPECT_EQ(port.Last().text, core::OverwriteFailureText(75));
  EXPECT_EQ(Folder().size(), 2u);

  fs.ClearFaults();
  fs.FailRename(Path("a.JPG"), 70);
  port.Clear();
  Rename("b");
  EXPECT_EQ(port.Last().text, core::IndividualRenameFailureText(70, QString()) + "\r" +
                                  core::texts::kTargetDeletedRenameFailed.arg("b.JPG", "a.JPG"));
  EXPECT_EQ(Folder(), (Files{{"a.JPG", "a.JPG"}}));
}

TEST_F(IndividualRenameTest, RevertNeedsASelectionAndForcesTheCase) {
  core::IndividualRename rename(context);
  rename.RevertNewName();
  EXPECT_EQ(port.Texts(), QStringList{"No file is selected!"});
  Select({"a.JPG"});
  settings.forceLowerCaseExtension = true;
  rename.RevertNewName();
  EXPECT_EQ(view.newName, "a.jpg");
  rename.ClearNewName();
  EXPECT_EQ(view.newName, "");
  EXPECT_EQ(view.tips, (std::vector<int>{7, 7, 8}));
}

}  // namespace
}  // namespace renvale::test

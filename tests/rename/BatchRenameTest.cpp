#include "core/BatchRename.h"

#include <QDir>
#include <cerrno>

#include "RenameFixture.h"
#include "core/BatchBaseCheck.h"
#include "core/CoreTexts.h"
#include "core/RenameFailureTexts.h"

namespace renvale::test {
namespace {

using platform::MessageAnswer;
using Files = std::map<QByteArray, QByteArray>;

class BatchRenameTest : public RenameFixture {
 protected:
  void MakeAbc() {
    Make({"a.jpg", "b.JPG", "c.png"});
    Select({"a.jpg", "b.JPG", "c.png"});
  }
};

TEST_F(BatchRenameTest, BaseChecksComeBeforeAnyFile) {
  struct Case { const char* base; core::BatchBaseIssue issue; };
  const Case cases[] = {
      {"A.JPG", core::BatchBaseIssue::NoBaseName},
      {"Trip %TIME%", core::BatchBaseIssue::TimeWithoutSeconds},
  };
  settings.exifTime = "hh-mm";
  Make({"a.JPG", "b.JPG"});
  Select({"a.JPG", "b.JPG"});
  for (const Case& c : cases) {
    port.Clear();
    view.tips.clear();
    port.Script(MessageAnswer::No);
    Batch(c.base);
    const core::BatchBaseVerdict verdict = core::CheckBatchBase(c.base, "a.JPG", "hh-mm");
    ASSERT_EQ(verdict.issue, c.issue);
    EXPECT_EQ(port.Texts(), QStringList{verdict.text});
    EXPECT_EQ(port.Last().buttons, verdict.IsQuestion() ? platform::MessageButtons::YesNo : platform::MessageButtons::Ok);
    EXPECT_EQ(Folder(), (Files{{"a.JPG", "a.JPG"}, {"b.JPG", "b.JPG"}}));
    // Stopping at a duplicate warning brings the tip on unique names.
    EXPECT_EQ(view.tips, verdict.IsQuestion() ? std::vector<int>{21} : std::vector<int>{});
  }
  port.Clear();
  view.tips.clear();
  port.Script(MessageAnswer::Yes);  // go on despite the warning...
  port.Script(MessageAnswer::No);   // ...and the duplicate it warned of is asked about
  Batch("Trip %DATE%");
  EXPECT_EQ(view.tips, std::vector<int>{15});
  EXPECT_EQ(port.messages.size(), 2u);
  EXPECT_EQ(Folder(), (Files{{"Trip 2004-05-01.JPG", "a.JPG"}, {"b.JPG", "b.JPG"}}));
}

TEST_F(BatchRenameTest, TokensPerFileInTheirOrder) {
  Make({"s.MP3", "t.jpg", "u.JPG"});
  Select({"s.MP3", "t.jpg", "u.JPG"});
  tokens.id3["s.MP3"] = core::Id3Values{"Song", "Band", "Disc", "07"};
  tokens.serials["t.jpg"] = "123";
  Batch("%TRACK% %title% %SERIAL% %serial% %ORIGFN%");
  EXPECT_EQ(Folder(), (Files{{"07 Song  %serial% s.MP3", "s.MP3"}, {"07 Song 123 %serial% t.jpg", "t.jpg"},
                             {"07 Song  %serial% u.JPG", "u.JPG"}}));
  EXPECT_EQ(tokens.id3Reads, 1);  // only the ".mp3" is read; the others keep its values
}

TEST_F(BatchRenameTest, SlashFromATagNeverMovesAFileIntoAFolder) {
  Make({"s.mp3"});
  QDir(dir.path()).mkdir("AC");
  Select({"s.mp3"});
  tokens.id3["s.mp3"] = core::Id3Values{"Song", "AC/DC", "Disc", "07"};
  Batch("%ARTIST% %SERIES%");
  EXPECT_EQ(port.Texts(), QStringList{core::BatchRenameFailureText(1000 + EINVAL)});
  EXPECT_EQ(Folder(), (Files{{"s.mp3", "s.mp3"}}));
  EXPECT_TRUE(QDir(dir.path() + "/AC").isEmpty());
}

TEST_F(BatchRenameTest, ExistingTargets) {
  struct Case { MessageAnswer answer; Files after; const char* series; const char* reselected; };
  const Case cases[] = {
      {MessageAnswer::No, {{"2.jpg", "a.jpg"}, {"3.jpg", "3.jpg"}, {"b.jpg", "b.jpg"}, {"4.jpg", "c.jpg"}}, "5", "4.jpg"},
      {MessageAnswer::Cancel, {{"2.jpg", "a.jpg"}, {"3.jpg", "3.jpg"}, {"b.jpg", "b.jpg"}, {"c.jpg", "c.jpg"}}, "3", ""},
      {MessageAnswer::Yes, {{"2.jpg", "a.jpg"}, {"3.jpg", "b.jpg"}, {"4.jpg", "c.jpg"}}, "5", "4.jpg"},
  };
  settings.placeholders = 0;
  for (const Case& c : cases) {
    Remake({"3.jpg", "a.jpg", "b.jpg", "c.jpg"});
    Select({"a.jpg", "b.jpg", "c.jpg"});
    view.series = "2";
    view.reselected.clear();
    port.Clear();
    port.Script(c.answer);
    Batch("%SERIES%");
    EXPECT_EQ(port.Texts(), QStringList{"Overwrite file: '3.jpg'?\nOverwriting an existing file will cause that file to be lost!"});
    EXPECT_EQ(Folder(), c.after);
    EXPECT_EQ(view.series, c.series);
    EXPECT_EQ(view.reselected, c.reselected);
  }
}

TEST_F(BatchRenameTest, EveryFailureEndsTheBatch) {
  MakeAbc();
  fs.FailRename(Path("b.JPG"), 75);
  Batch("N%SERIES%");
  EXPECT_EQ(port.Texts(), QStringList{core::BatchRenameFailureText(75)});
  EXPECT_EQ(port.Last().icon, platform::MessageIcon::Critical);
  EXPECT_EQ(Folder(), (Files{{"N01.jpg", "a.jpg"}, {"b.JPG", "b.JPG"}, {"c.png", "c.png"}}));
  Make({"N01.png"});
  fs.ClearFaults();
  fs.FailRemove(Path("N01.png"), 70);
  Select({"c.png"});
  port.Clear();
  view.series = "1";
  Batch("N%SERIES%");
  EXPECT_EQ(port.Texts(), (QStringList{core::OverwriteQuestionText("N01.png"), core::OverwriteFailureText(70)}));
}

TEST_F(BatchRenameTest, WindowDuringAndAfterTheBatch) {
  MakeAbc();
  settings.autoPreview = false;
  settings.placeholders = 3;
  settings.autoResetSeries = true;
  view.series = "7";
  view.onEvents = [&] { core::BatchRename(context).StartBatchRename(); };  // Enter pressed again
  Batch("Holiday %SERIES%");
  EXPECT_EQ(Folder(), (Files{{"Holiday 007.jpg", "a.jpg"}, {"Holiday 008.JPG", "b.JPG"},
                             {"Holiday 009.png", "c.png"}}));
  EXPECT_EQ(view.series, "001");
  EXPECT_TRUE(view.busyInEvents);
  EXPECT_FALSE(session.Busy);
  EXPECT_LE(view.events, 4);
  EXPECT_EQ(view.progress, (std::vector<int>{0, 33, 66, 100}));
  EXPECT_FALSE(view.progressVisible);
  EXPECT_EQ(view.labels, (QStringList{"Processing files.  Please wait.......", "( No File Selected )"}));
  EXPECT_EQ(view.refreshes, 1);
  EXPECT_EQ(view.leftBatch, 1);
  EXPECT_EQ(view.newName, "");
  EXPECT_EQ(view.reselected, "Holiday 009.png");
  EXPECT_EQ(view.previewCaptions.back(), "Auto-Preview is disabled.  See 'Options' menu.");
}

}  // namespace
}  // namespace renvale::test

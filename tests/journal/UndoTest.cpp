#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <map>

#include "core/PlanIdentity.h"
#include "fileops/OperationHistory.h"
#include "support/ScriptedMessagePort.h"

namespace renvale::fileops {
namespace {

using platform::MessageAnswer;
using Files = std::map<QByteArray, QByteArray>;

// Real files in a temporary folder; each holds its own first name, so a
// test can tell which file ended where.
class Undo : public ::testing::Test {
 protected:
  QByteArray Path(const QByteArray& name) const { return card + name; }
  void Make(const QByteArray& name, const QByteArray& contents = {}) {
    fs.WriteWholeFile(Path(name), contents.isEmpty() ? name : contents);
  }
  Files Folder() {
    std::vector<QByteArray> names;
    fs.ListFiles(card, &names);
    Files files;
    for (const QByteArray& name : names) fs.ReadWholeFile(Path(name), 1 << 20, &files[name]);
    return files;
  }
  // Records a plan step for `from` as it is now, as an operation would.
  void Step(core::StepKind kind, const QByteArray& from, const QByteArray& to) {
    plan.steps.push_back({kind, Path(from), to.isEmpty() ? QByteArray() : Path(to),
                          core::IdentityOf(fs, Path(from), true)});
  }
  void Record() {
    ASSERT_EQ(journal.Begin(plan), 0);
    journal.End();
  }
  // Begins the plan in a journal that goes away without ending it, as a
  // killed program's does.
  void BeginAndDie() {
    Journal killed{fs, state, port};
    ASSERT_EQ(killed.Begin(plan), 0);
  }

  QTemporaryDir dir;
  QByteArray card = QFile::encodeName(dir.path()) + '/';
  QByteArray state = QFile::encodeName(dir.path()) + "/.state/";
  platform::FileSystem& fs = platform::RealFileSystem();
  test::ScriptedMessagePort port;
  Journal journal{fs, (QDir().mkpath(QFile::decodeName(state)), state), port};
  OperationHistory history{journal, fs, port};
  core::OperationPlan plan{core::OperationKind::SearchReplace, card, QDateTime::currentDateTimeUtc(), {}};
};

TEST_F(Undo, TrashedFilesComeBackUnlessTheirNameIsTakenAgain) {
  plan.kind = core::OperationKind::Trash;
  Make("x.jpg");
  Make("y.jpg");
  Step(core::StepKind::Trash, "x.jpg", {});
  Step(core::StepKind::Trash, "y.jpg", {});
  Record();
  ASSERT_EQ(fs.MoveToTrash(Path("x.jpg")), 0);
  ASSERT_EQ(fs.MoveToTrash(Path("y.jpg")), 0);
  Make("y.jpg", "other");
  EXPECT_TRUE(history.UndoNewest());
  EXPECT_EQ(Folder(), (Files{{"x.jpg", "x.jpg"}, {"y.jpg", "other"}}));
  EXPECT_TRUE(port.Last().text.endsWith("/y.jpg' was passed over: it has been renamed, moved, replaced or deleted since."))
      << port.Last().text.toStdString();
}

// The copies go to the trash only after a Yes whose default is No.
TEST_F(Undo, CopiesGoToTheTrashAfterAQuestion) {
  plan.kind = core::OperationKind::Copy;
  Make("p.jpg");
  Step(core::StepKind::Copy, "p.jpg", "q.jpg");
  Record();
  fs.CopyFile(Path("p.jpg"), Path("q.jpg"), false);
  port.Script(MessageAnswer::Yes);
  EXPECT_TRUE(history.UndoNewest());
  EXPECT_EQ(port.messages[0].text, "Undoing this copy moves the 1 copied file(s) to the trash.  The originals stay "
                                   "where they are.\rMove the copies to the trash?");
  EXPECT_EQ(port.messages[0].defaultButton, MessageAnswer::No);
  EXPECT_EQ(Folder(), (Files{{"p.jpg", "p.jpg"}}));
}

// A swap through a temporary name, cut after each step: the disk tells
// "b as it was" from "a, renamed to b", so finishing swaps and undoing
// restores wherever the cut fell.
TEST_F(Undo, ASwapCutShortIsFinishedOrUndoneWhereverItStopped) {
  for (size_t cut = 0; cut <= 3; ++cut) {
    for (const bool finish : {true, false}) {
      for (const auto& [name, contents] : Folder()) fs.RemoveFile(Path(name));
      plan.steps.clear();
      Make("a.jpg", "AAA");
      Make("b.jpg", "BBBB");
      Step(core::StepKind::Rename, "a.jpg", ".t");
      Step(core::StepKind::Rename, "b.jpg", "a.jpg");
      plan.steps.push_back({core::StepKind::Rename, Path(".t"), Path("b.jpg"), plan.steps[0].identity});
      for (size_t i = 0; i < cut; ++i) fs.RenameNoReplace(plan.steps[i].from, plan.steps[i].to);
      PlanReplay replay(fs, port);
      const ReplayResult result = finish ? replay.Finish(plan) : replay.Undo(plan);
      EXPECT_TRUE(result.passedOver.isEmpty()) << cut;
      EXPECT_EQ(Folder(), finish ? (Files{{"a.jpg", "BBBB"}, {"b.jpg", "AAA"}})
                                 : (Files{{"a.jpg", "AAA"}, {"b.jpg", "BBBB"}}))
          << "cut after " << cut << (finish ? ", finished" : ", undone");
    }
  }
}

TEST_F(Undo, AtStartARunCutShortIsOfferedAndARunDoneOrNotBegunIsSettledQuietly) {
  Make("a.jpg");
  Make("c.jpg");
  Make("x.jpg");
  Make("y.jpg");
  Step(core::StepKind::Rename, "a.jpg", "b.jpg");
  Step(core::StepKind::Rename, "c.jpg", "d.jpg");
  // A swap: x steps aside through a hidden name, and counts as one file.
  Step(core::StepKind::Rename, "x.jpg", ".s.jpg");
  Step(core::StepKind::Rename, "y.jpg", "x.jpg");
  plan.steps.push_back({core::StepKind::Rename, Path(".s.jpg"), Path("y.jpg"), plan.steps[2].identity});
  ASSERT_EQ(journal.Begin(plan), 0);  // still running, here or in another program
  history.RecoverUnfinished();
  EXPECT_FALSE(history.UndoNewest());
  EXPECT_EQ(journal.Entries().front().state, JournalEntry::State::Open);
  journal.End();
  // Cut after x stepped aside, no file has reached its new name: the run is
  // settled without asking, and x comes back.
  BeginAndDie();
  fs.RenameNoReplace(Path("x.jpg"), Path(".s.jpg"));
  history.RecoverUnfinished();
  EXPECT_TRUE(port.messages.empty());
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "a.jpg"}, {"c.jpg", "c.jpg"}, {"x.jpg", "x.jpg"}, {"y.jpg", "y.jpg"}}));
  BeginAndDie();
  fs.RenameNoReplace(Path("a.jpg"), Path("b.jpg"));
  fs.RenameNoReplace(Path("x.jpg"), Path(".s.jpg"));
  port.Script(MessageAnswer::Cancel);
  history.RecoverUnfinished();
  ASSERT_EQ(port.messages.size(), 1u);
  EXPECT_EQ(port.Last().text, "Renvale was stopped in the middle of Search & Replace of 4 files in '" + dir.path() +
                                  "/'.\r1 file(s) were done, 3 were not yet done, 0 have changed since and will be "
                                  "left alone.\r\rYes finishes the operation, No undoes what was done, Cancel "
                                  "decides later (Edit > Operation History...).");
  EXPECT_EQ(port.Last().defaultButton, MessageAnswer::Cancel);
  port.Script(MessageAnswer::Yes);
  history.RecoverUnfinished();
  EXPECT_EQ(Folder(), (Files{{"b.jpg", "a.jpg"}, {"d.jpg", "c.jpg"}, {"x.jpg", "y.jpg"}, {"y.jpg", "x.jpg"}}));
  EXPECT_EQ(port.Last().text, "The operation was finished: 3 more file(s) were done.");
  port.Clear();
  BeginAndDie();  // done entirely before the kill
  history.RecoverUnfinished();
  EXPECT_TRUE(port.messages.empty());
  EXPECT_EQ(journal.Entries().front().state, JournalEntry::State::Done);
}

}  // namespace
}  // namespace renvale::fileops

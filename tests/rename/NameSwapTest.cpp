#include <QSet>
#include <algorithm>
#include <cerrno>
#include <chrono>
#include <deque>
#include <mutex>
#include <thread>

#include "RenameFixture.h"
#include "core/BatchNaming.h"
#include "core/BatchRename.h"
#include "core/CoreTexts.h"
#include "core/OperationRecorder.h"
#include "platform/ErrorNumbers.h"

namespace renvale::test {
namespace {

using platform::MessageAnswer;
using Files = std::map<QByteArray, QByteArray>;

// Takes the plan as a journal would and notes every rename whose source
// no step recorded so far leaves from. Written from a second thread, it
// keeps a slow disk's pace, so that a rename that does not wait shows.
class CheckingRecorder : public core::OperationRecorder {
 public:
  explicit CheckingRecorder(FaultyFileSystem& fs) {
    fs.beforeRename = [this](const QByteArray& from) {
      const std::lock_guard<std::mutex> hold(lock_);
      if (!sources_.contains(from)) unrecorded.push_back(from);
    };
  }
  int Begin(const core::OperationPlan& plan) override { return Extend(plan.steps); }
  int Extend(std::vector<core::PlanStep> steps) override {
    if (fromAnyThread) std::this_thread::sleep_for(std::chrono::milliseconds(5));
    if (piecesKept >= 0 && piecesKept-- == 0) return platform::kErrnoBase + ENOSPC;
    const std::lock_guard<std::mutex> hold(lock_);
    for (const core::PlanStep& step : steps) sources_.insert(step.from);
    return 0;
  }
  void End() override {}
  bool WritesFromAnyThread() const override { return fromAnyThread; }
  bool fromAnyThread = false;
  int piecesKept = -1;  // how many pieces are kept before the disk is full; -1: all
  void Reset() {
    sources_.clear();
    unrecorded.clear();
  }

  std::vector<QByteArray> unrecorded;

 private:
  std::mutex lock_;
  QSet<QByteArray> sources_;
};

class NameSwapTest : public RenameFixture {
 protected:
  NameSwapTest() { context.recorder = &recorder; }
  CheckingRecorder recorder{fs};
};

// Files that trade names in one batch are renamed without a question and
// without a loss; a file outside the batch is still asked about. Random
// draws are fixed through names worked out beforehand, the way the preview
// hands its names to the batch.
TEST_F(NameSwapTest, FilesTradingNamesAreNeitherAskedAboutNorLost) {
  const struct {
    std::initializer_list<const char*> files;
    std::initializer_list<const char*> selected;
    std::deque<double> draws;  // empty: counting up
    std::vector<MessageAnswer> answers;
    Files after;
    int questions;
  } rows[] = {
      // A series that starts at 2 over 01, 02, 03.
      {{"01.jpg", "02.jpg", "03.jpg"}, {"01.jpg", "02.jpg", "03.jpg"}, {}, {},
       {{"02.jpg", "01.jpg"}, {"03.jpg", "02.jpg"}, {"04.jpg", "03.jpg"}}, 0},
      // 1 -> 2 -> 3 -> 1.
      {{"01.jpg", "02.jpg", "03.jpg"}, {"01.jpg", "02.jpg", "03.jpg"}, {0.5, 0.9, 0.0}, {},
       {{"02.jpg", "01.jpg"}, {"03.jpg", "02.jpg"}, {"01.jpg", "03.jpg"}}, 0},
      // Two camera sets swap; each THM stays with its CRW.
      {{"01.CRW", "01.THM", "02.CRW", "02.THM"}, {"01.CRW", "01.THM", "02.CRW", "02.THM"}, {0.9, 0.0}, {},
       {{"02.CRW", "01.CRW"}, {"02.THM", "01.THM"}, {"01.CRW", "02.CRW"}, {"01.THM", "02.THM"}}, 0},
      // 04.jpg is not part of the batch: No keeps it, and the files waiting
      // for 03.jpg and 02.jpg to be left are asked about in turn.
      {{"01.jpg", "02.jpg", "03.jpg", "04.jpg"}, {"01.jpg", "02.jpg", "03.jpg"}, {},
       {MessageAnswer::No, MessageAnswer::No, MessageAnswer::No},
       {{"01.jpg", "01.jpg"}, {"02.jpg", "02.jpg"}, {"03.jpg", "03.jpg"}, {"04.jpg", "04.jpg"}}, 3},
  };
  for (const auto& row : rows) {
    // The batch names each file at its turn; the preview hands over names
    // worked out beforehand.
    for (const bool beforehand : {false, true}) {
      Remake(row.files);
      recorder.Reset();
      Select(row.selected);
      port.messages.clear();
      for (MessageAnswer answer : row.answers) port.Script(answer);
      settings.placeholders = 2;
      view.series = row.draws.empty() ? "2" : "1";
      view.random = !row.draws.empty();
      view.newName = "%SERIES%";
      std::deque<double> draws = row.draws;
      const auto random = [&draws] {
        const double r = draws.empty() ? 0.0 : draws.front();
        if (!draws.empty()) draws.pop_front();
        return r;
      };
      core::BatchRename batch(context, random);
      const std::vector<platform::FileName> files = view.SelectedFiles();
      const core::BatchNaming prepared =
          core::NameBatch(context, core::FileRenamer(context, session.CurrentFolder, files), files,
                          batch.FileBase(view.newName), view.random, false, random);
      draws = row.draws;
      batch.StartBatchRename(beforehand ? &prepared : nullptr);
      EXPECT_EQ(Folder(), row.after) << *row.files.begin() << beforehand;
      EXPECT_EQ(static_cast<int>(port.messages.size()), row.questions);
      EXPECT_EQ(view.series, row.draws.empty() ? "05" : "02");
      EXPECT_EQ(recorder.unrecorded, std::vector<QByteArray>{});
    }
  }
}

// A batch long enough to record its plan in several pieces names every
// file, files freeing each other's names included, and records each
// rename before it is taken, also where the pieces are written meanwhile.
// A piece that cannot be kept stops the batch before its first rename, and
// the message says whether files were renamed before it.
TEST_F(NameSwapTest, ALongBatchRecordsEveryRenameBeforeTakingIt) {
  constexpr int kFiles = 600;
  settings.placeholders = 4;
  for (const int run : {0, 1, 2, 3, 4}) {
    const int shift = run == 1 || run == 2 ? 1 : 0;  // "f0000" -> "0001"; "0001" -> "0002", each waiting
    recorder.fromAnyThread = run == 2;
    recorder.piecesKept = run >= 3 ? run - 3 : -1;
    view.selected.clear();
    for (int i = 0; i < kFiles; ++i) {
      const QByteArray name = (shift == 0 ? "f" : "") + QByteArray::number(i + shift).rightJustified(4, '0') + ".dat";
      fs.WriteWholeFile(Path(name), name);
      view.selected.push_back(platform::FileName{name});
    }
    session.SelectedFileName = view.selected.front();
    session.SelectedExt = ".dat";
    session.SelectedCount = kFiles;
    session.BatchMode = true;
    view.series = QString::number(1 + shift);
    view.newName = "%SERIES%";
    recorder.Reset();
    port.messages.clear();
    core::BatchRename(context).StartBatchRename();
    const Files after = Folder();
    ASSERT_EQ(after.size(), size_t{kFiles});
    EXPECT_EQ(recorder.unrecorded, std::vector<QByteArray>{});
    // A rename after a refusal would be one `unrecorded`; the text tells
    // whether the files of a piece kept before it were renamed.
    const QString& refused = run == 3 ? core::texts::kPlanNotKept : core::texts::kPlanRestNotKept;
    const QString full = platform::ErrorDescription(platform::kErrnoBase + ENOSPC);
    EXPECT_EQ(port.Texts(), run < 3 ? QStringList() : QStringList{refused.arg(full)});
    for (int i = 0; i < kFiles && run < 3; ++i) {
      const QByteArray name = QByteArray::number(i + 1 + shift).rightJustified(4, '0') + ".dat";
      EXPECT_EQ(after.count(name) != 0 ? after.at(name) : QByteArray(),
                (shift == 0 ? "f" : "") + QByteArray::number(i + shift).rightJustified(4, '0') + ".dat");
    }
    Remake({});
  }
}

}  // namespace
}  // namespace renvale::test

#include <deque>

#include "RenameFixture.h"
#include "core/BatchNaming.h"
#include "core/BatchRename.h"

namespace renvale::test {
namespace {

using platform::MessageAnswer;
using Files = std::map<QByteArray, QByteArray>;

class NameSwapTest : public RenameFixture {};

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
    }
  }
}

}  // namespace
}  // namespace renvale::test

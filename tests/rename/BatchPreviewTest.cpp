#include "core/BatchPreview.h"

#include "RenameFixture.h"

namespace renvale::test {
namespace {

using Files = std::map<QByteArray, QByteArray>;

class BatchPreviewTest : public RenameFixture {};

// Every problem the batch would meet is noted on its row, and working the
// names out changes nothing: no file, no series number, no message.
TEST_F(BatchPreviewTest, NotesEveryProblemAndTouchesNothing) {
  Make({"a.jpg", "b.jpg", "c.jpg", "d.jpg", "e.jpg", "f.jpg", "g.jpg", "h.jpg", "i.jpg", "x.jpg"});
  Select({"a.jpg", "b.jpg", "c.jpg", "d.jpg", "e.jpg", "f.jpg", "g.jpg", "h.jpg", "i.jpg"});
  const QString longName(300, u'n');
  const std::pair<const char*, QString> serials[] = {{"a.jpg", "b"}, {"b.jpg", "a"}, {"c.jpg", "x"},
                                                     {"d.jpg", "d"}, {"e.jpg", "q"}, {"f.jpg", "q"},
                                                     {"g.jpg", "Q"}, {"h.jpg", "x:y"}, {"i.jpg", longName}};
  for (const auto& [file, serial] : serials) tokens.serials.insert(file, serial);
  view.newName = "%SERIAL%";
  view.series = "7";
  const Files before = Folder();
  const core::BatchPreview preview = core::PreviewBatch(context);
  const std::vector<QStringList> expected = {
      {"Renamed after 'b.jpg' has left this name."},
      {"Renamed after 'a.jpg' has left this name."},
      {"A file of this name is already in the folder and keeps it; the batch will ask before replacing it."},
      {"The name does not change."},
      {"Same new name as row 6 ('f.jpg').", "Differs only in letter case from 'Q.jpg'."},
      {"Same new name as row 5 ('e.jpg').", "Differs only in letter case from 'Q.jpg'."},
      {"Differs only in letter case from 'q.jpg'."},
      {"Holds a character that is not allowed: :"},
      {"Longer than the file system allows (304 bytes, at most 255)."},
  };
  ASSERT_EQ(preview.rows.size(), expected.size());
  for (size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(preview.rows[i].current, serials[i].first);
    EXPECT_EQ(preview.rows[i].newName, serials[i].second + ".jpg");
    EXPECT_EQ(preview.rows[i].notes, expected[i]) << i;
  }
  EXPECT_TRUE(preview.stopText.isEmpty());
  EXPECT_TRUE(preview.warnings.isEmpty());
  EXPECT_EQ(Folder(), before);
  EXPECT_EQ(view.series, "7");
  EXPECT_TRUE(port.messages.empty());

  // The batch's own warnings show above the list; a base it refuses shows
  // instead of any row.
  view.newName = "Holiday";
  EXPECT_EQ(core::PreviewBatch(context).warnings.size(), 1);
  view.newName = "a.jpg";
  const core::BatchPreview refused = core::PreviewBatch(context);
  EXPECT_FALSE(refused.stopText.isEmpty());
  EXPECT_TRUE(refused.rows.empty());
  EXPECT_TRUE(port.messages.empty());
}

// A companion selected with its picture shows its own name and goes along.
TEST_F(BatchPreviewTest, ACompanionRowShowsItsOwnNameAndItsPicture) {
  Make({"A.CRW", "A.THM"});
  Select({"A.CRW", "A.THM"});
  tokens.serials.insert("A.CRW", "x");
  view.newName = "%SERIAL%";
  const core::BatchPreview preview = core::PreviewBatch(context);
  ASSERT_EQ(preview.rows.size(), 2u);
  EXPECT_EQ(preview.rows[1].current, "A.THM");
  EXPECT_EQ(preview.rows[1].newName, "x.THM");
  EXPECT_EQ(preview.rows[1].notes, QStringList{"Renamed along with 'A.CRW'."});
}

// A card's worth of rows is worked out on two threads: every row is still
// its own file's, and a note on the last row is kept. Working names out
// reads no file, so only the taken name needs to be on disk.
TEST_F(BatchPreviewTest, ACardsWorthOfRowsStaysInOrder) {
  constexpr int kFiles = 2500;
  Make({"taken.jpg", "f0.jpg"});
  Select({"f0.jpg"});
  for (int i = 0; i < kFiles; ++i) {
    const QByteArray name = "f" + QByteArray::number(i) + ".jpg";
    if (i > 0) view.selected.push_back(platform::FileName{name});
    tokens.serials.insert(name, i + 1 < kFiles ? "s" + QString::number(i) : QStringLiteral("taken"));
  }
  session.SelectedCount = kFiles;
  session.BatchMode = true;
  view.newName = "%SERIAL%";
  const core::BatchPreview preview = core::PreviewBatch(context);
  ASSERT_EQ(preview.rows.size(), size_t{kFiles});
  for (int i = 0; i + 1 < kFiles; ++i) {
    ASSERT_EQ(preview.rows[i].current, "f" + QString::number(i) + ".jpg");
    ASSERT_EQ(preview.rows[i].newName, "s" + QString::number(i) + ".jpg");
    ASSERT_TRUE(preview.rows[i].notes.isEmpty()) << i;
  }
  EXPECT_EQ(preview.rows.back().notes, QStringList{"A file of this name is already in the folder and keeps it; "
                                                   "the batch will ask before replacing it."});
}

}  // namespace
}  // namespace renvale::test

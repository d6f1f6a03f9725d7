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

}  // namespace
}  // namespace renvale::test

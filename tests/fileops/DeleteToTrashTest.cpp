#include "fileops/DeleteToTrash.h"

#include <QFile>
#include <cerrno>

#include "platform/ErrorNumbers.h"
#include "rename/RenameFixture.h"

namespace renvale::test {
namespace {

using platform::MessageAnswer;
using Files = std::map<QByteArray, QByteArray>;

class DeleteToTrashRun : public RenameFixture {
 protected:
  void Delete() { fileops::DeleteToTrash(context).DeleteSelected(); }
};

TEST_F(DeleteToTrashRun, SeveralSelectedGoToTheTrashAfterOneQuestionAndTheListIsReadAgain) {
  Make({"keep.jpg", "del\xff" "1.jpg", "del2.jpg"});
  Select({"del\xff" "1.jpg", "del2.jpg"});
  session.PreviewedPath = Path("del2.jpg");
  fs.FailTrash(Path("del2.jpg"), platform::ErrorNumberFromErrno(EOPNOTSUPP));
  Delete();
  EXPECT_EQ(port.Texts(), (QStringList{"Are you sure you want to move all selected files to the Recycle Bin?",
                                       "Could not move file 'del2.jpg' to Recycle Bin!"}));
  EXPECT_EQ(port.messages[0].title, "Confirm Delete");
  EXPECT_EQ(port.messages[0].defaultButton, MessageAnswer::No);
  EXPECT_EQ(view.tips, std::vector<int>{6});
  QByteArray trashed;
  platform::RealFileSystem().ReadWholeFile(qgetenv("XDG_DATA_HOME") + "/Trash/files/del\xff" "1.jpg", 1 << 20, &trashed);
  EXPECT_EQ(trashed, "del\xff" "1.jpg");
  EXPECT_EQ(Folder(), (Files{{"keep.jpg", "keep.jpg"}, {"del2.jpg", "del2.jpg"}}));
  EXPECT_TRUE(session.PreviewedPath.isEmpty());
  EXPECT_EQ(view.listed, (std::vector<QByteArray>{"del2.jpg", "keep.jpg"}));
  EXPECT_EQ(view.labels.last(), "( No File Selected )");
}

// Yes where the file system has no trash (GIO refuses system mounts such as
// /dev/shm): the file stays, never deleted for good instead.
TEST_F(DeleteToTrashRun, TheCurrentFileIsAskedAboutByNameAndStaysWhereThereIsNoTrash) {
  QTemporaryDir shm(QStringLiteral("/dev/shm/renvale-test-XXXXXX"));
  if (!shm.isValid()) GTEST_SKIP() << "no /dev/shm";
  session.CurrentFolder = QFile::encodeName(shm.path()) + '/';
  Make({"a.jpg"});
  Select({"a.jpg"});
  port.Script(MessageAnswer::No);
  Delete();
  Delete();
  const QString question = "Are you sure you want to move 'a.jpg' to the Recycle Bin?";
  EXPECT_EQ(port.Texts(), (QStringList{question, question, "Could not move file to Recycle Bin!"}));
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "a.jpg"}}));
  EXPECT_EQ(view.refreshes, 1);
  session.SelectedFileName = {};
  Delete();
  EXPECT_EQ(port.Last().text, "No file is selected!");
}

}  // namespace
}  // namespace renvale::test

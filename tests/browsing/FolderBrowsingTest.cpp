#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "platform/ErrorNumbers.h"
#include "platform/FileSystem.h"
#include "shell/FolderBrowsing.h"

namespace renvale::shell {
namespace {

TEST(FolderBrowsing, PickerAnswers) {
  EXPECT_TRUE(ResolvePickedFolder("").folder.isEmpty());
  EXPECT_TRUE(ResolvePickedFolder("").message.isEmpty());
  EXPECT_EQ(ResolvePickedFolder("::trash:///").message,
            "An invalid folder was chosen.  Please choose an actual folder.");
  EXPECT_EQ(ResolvePickedFolder("/media/card").folder, "/media/card/");
  EXPECT_EQ(ResolvePickedFolder("/").folder, "/");
}

class FolderDrops : public ::testing::Test {
 protected:
  void SetUp() override {
    root = QFile::encodeName(dir.path()) + '/';
    ASSERT_EQ(platform::RealFileSystem().WriteWholeFile(root + "a.jpg", "x"), platform::kNoError);
  }
  QUrl Local(const char* relative) { return QUrl::fromLocalFile(QFile::decodeName(root) + relative); }

  QTemporaryDir dir;
  QByteArray root;
};

TEST_F(FolderDrops, AFolderOpensItselfAndAFileOpensItsFolder) {
  EXPECT_EQ(ResolveDrop(platform::RealFileSystem(), {QUrl::fromLocalFile(dir.path())}).folder, root);
  EXPECT_EQ(ResolveDrop(platform::RealFileSystem(), {Local("a.jpg"), QUrl("https://x.org")}).folder, root);
  EXPECT_EQ(ResolveDrop(platform::RealFileSystem(), {QUrl::fromLocalFile("/")}).folder, "/");
}

TEST_F(FolderDrops, EmptyDropsDoNothingAndOtherThingsAreRefused) {
  const FolderChoice none = ResolveDrop(platform::RealFileSystem(), {});
  EXPECT_TRUE(none.folder.isEmpty() && none.message.isEmpty());
  for (const QUrl& url : {QUrl("smb://server/share"), Local("missing.jpg")}) {
    const FolderChoice refused = ResolveDrop(platform::RealFileSystem(), {url});
    EXPECT_TRUE(refused.folder.isEmpty());
    EXPECT_EQ(refused.message, "Only DRIVES or FOLDERS can be dropped here!") << url.toString().toStdString();
  }
}

TEST_F(FolderDrops, NearestExistingFolderWalksUp) {
  EXPECT_EQ(NearestExistingFolder(platform::RealFileSystem(), root + "x/y/z"), root);
  EXPECT_EQ(NearestExistingFolder(platform::RealFileSystem(), root), root);
  EXPECT_EQ(NearestExistingFolder(platform::RealFileSystem(), root + "a.jpg/"), root)
      << "a file is no folder";
  EXPECT_EQ(NearestExistingFolder(platform::RealFileSystem(), "/no-such-root/at/all/"), "/");
}

TEST(FolderRows, AncestorsThenTheCurrentFolderThenItsChildren) {
  const std::vector<FolderRow> rows = FolderRowsFor("/home/ann/", {"Pictures", "caf\xe9"});
  ASSERT_EQ(rows.size(), 5u);
  EXPECT_EQ(rows[0].path, "/");
  EXPECT_EQ(rows[1].path, "/home/");
  EXPECT_EQ(rows[2].path, "/home/ann/");
  EXPECT_TRUE(rows[2].current);
  EXPECT_EQ(rows[2].depth, 2);
  EXPECT_EQ(rows[3].path, "/home/ann/Pictures/");
  EXPECT_EQ(rows[3].depth, 3);
  EXPECT_EQ(rows[4].path, QByteArray("/home/ann/caf\xe9/")) << "raw bytes survive for opening";
  EXPECT_TRUE(rows[0].current == false && rows[1].current == false);
  EXPECT_TRUE(FolderRowsFor("/", {})[0].current);
}

}  // namespace
}  // namespace renvale::shell

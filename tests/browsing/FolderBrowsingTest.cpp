#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "platform/ErrorNumbers.h"
#include "platform/FileSystem.h"
#include "shell/FolderBrowsing.h"

namespace renvale::shell {
namespace {

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

TEST_F(FolderDrops, NearestExistingFolderWalksUp) {
  EXPECT_EQ(NearestExistingFolder(platform::RealFileSystem(), root + "x/y/z"), root);
  EXPECT_EQ(NearestExistingFolder(platform::RealFileSystem(), root), root);
  EXPECT_EQ(NearestExistingFolder(platform::RealFileSystem(), root + "a.jpg/"), root)
      << "a file is no folder";
  EXPECT_EQ(NearestExistingFolder(platform::RealFileSystem(), "/no-such-root/at/all/"), "/");
}

}  // namespace
}  // namespace renvale::shell

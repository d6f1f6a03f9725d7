#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "platform/ErrorNumbers.h"
#include "platform/FileSystem.h"
#include "shell/FolderBrowsing.h"

namespace renvale::shell {
namespace {

TEST(FolderDrops, NearestExistingFolderWalksUp) {
  QTemporaryDir dir;
  const QByteArray root = QFile::encodeName(dir.path()) + '/';
  platform::FileSystem& fs = platform::RealFileSystem();
  ASSERT_EQ(fs.WriteWholeFile(root + "a.jpg", "x"), platform::kNoError);
  EXPECT_EQ(NearestExistingFolder(fs, root + "x/y/z"), root);
  EXPECT_EQ(NearestExistingFolder(fs, root), root);
  EXPECT_EQ(NearestExistingFolder(fs, root + "a.jpg/"), root) << "a file is no folder";
  EXPECT_EQ(NearestExistingFolder(fs, "/no-such-root/at/all/"), "/");
}

}  // namespace
}  // namespace renvale::shell

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "core/FolderListing.h"
#include "platform/ErrorNumbers.h"
#include "platform/RawFiles.h"

namespace renvale::test {
namespace {

std::vector<QByteArray> Listed(const QByteArray& folder, core::FileFilter filter, int expectedError = 0) {
  std::vector<platform::FileName> files{platform::FileName{"stale"}};
  EXPECT_EQ(core::ListFolderFiles(platform::RealFileSystem(), folder, filter, &files), expectedError);
  std::vector<QByteArray> raw;
  for (const platform::FileName& file : files) raw.push_back(file.raw);
  return raw;
}

TEST(FolderListing, FiltersHidesDotFilesAndFoldersAndSortsNaturally) {
  ScratchFolder folder;
  for (const char* name : {"IMG_10.JPG", "img_9.jpg", ".hidden.jpg", "notes.txt", "caf\xe9.jpg", "README"}) {
    ASSERT_TRUE(WriteRaw(folder / name, ""));
  }
  ASSERT_EQ(::mkdir((folder / "album.jpg").constData(), 0755), 0);

  EXPECT_EQ(Listed(folder.path(), core::FileFilter::TypicalImages),
            (std::vector<QByteArray>{"caf\xe9.jpg", "img_9.jpg", "IMG_10.JPG"}));
  EXPECT_EQ(Listed(folder.path(), core::FileFilter::AllFiles),
            (std::vector<QByteArray>{"caf\xe9.jpg", "img_9.jpg", "IMG_10.JPG", "notes.txt", "README"}));
  EXPECT_TRUE(Listed(folder / "gone/", core::FileFilter::AllFiles, platform::kPathNotFound).empty());
}

}  // namespace
}  // namespace renvale::test

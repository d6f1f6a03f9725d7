#include <gtest/gtest.h>
#include <ftw.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

#include "core/FolderListing.h"
#include "platform/ErrorNumbers.h"

namespace renvale::test {
namespace {

int RemoveEntry(const char* path, const struct stat*, int, struct FTW*) {
  ::remove(path);
  return 0;
}

class FolderListingTest : public ::testing::Test {
 protected:
  void SetUp() override {
    QByteArray pattern = "/tmp/renvale-listing-XXXXXX";
    ASSERT_NE(::mkdtemp(pattern.data()), nullptr);
    folder_ = pattern + '/';
  }
  void TearDown() override { ::nftw(folder_.constData(), RemoveEntry, 16, FTW_DEPTH | FTW_PHYS); }

  void Touch(const QByteArray& name) {
    std::FILE* file = std::fopen((folder_ + name).constData(), "wb");
    ASSERT_NE(file, nullptr) << name.constData();
    std::fclose(file);
  }

  std::vector<QByteArray> Listed(core::FileFilter filter) {
    std::vector<platform::FileName> files;
    EXPECT_EQ(core::ListFolderFiles(platform::RealFileSystem(), folder_, filter, &files), 0);
    std::vector<QByteArray> raw;
    for (const platform::FileName& file : files) raw.push_back(file.raw);
    return raw;
  }

  QByteArray folder_;
};

TEST_F(FolderListingTest, FiltersHidesDotFilesAndFoldersAndSortsNaturally) {
  for (const char* name : {"IMG_10.JPG", "img_9.jpg", ".hidden.jpg", "notes.txt", "caf\xe9.jpg", "README"}) Touch(name);
  ASSERT_EQ(::mkdir((folder_ + "album.jpg").constData(), 0755), 0);

  EXPECT_EQ(Listed(core::FileFilter::TypicalImages),
            (std::vector<QByteArray>{"caf\xe9.jpg", "img_9.jpg", "IMG_10.JPG"}));
  EXPECT_EQ(Listed(core::FileFilter::AllFiles),
            (std::vector<QByteArray>{"caf\xe9.jpg", "img_9.jpg", "IMG_10.JPG", "notes.txt", "README"}));
}

TEST_F(FolderListingTest, MissingFolderGivesItsErrorAndNoFiles) {
  std::vector<platform::FileName> files{platform::FileName{"stale"}};
  EXPECT_EQ(core::ListFolderFiles(platform::RealFileSystem(), folder_ + "gone/", core::FileFilter::AllFiles, &files),
            platform::kPathNotFound);
  EXPECT_TRUE(files.empty());
}

}  // namespace
}  // namespace renvale::test

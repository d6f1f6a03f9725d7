#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>

#include "RawFiles.h"
#include "platform/ErrorNumbers.h"
#include "platform/FileSystem.h"
#include "platform/NoReplaceRename.h"

namespace renvale::test {
namespace {

using platform::RealFileSystem;

std::vector<QByteArray> Sorted(std::vector<QByteArray> names) {
  std::sort(names.begin(), names.end());
  return names;
}

std::vector<QByteArray> FilesIn(const ScratchFolder& folder) {
  std::vector<QByteArray> names;
  EXPECT_EQ(RealFileSystem().ListFiles(folder.path(), &names), 0);
  return Sorted(names);
}

using platform::NoReplaceMethod;

// Every rename test runs through each way of refusing to replace, so the
// fallbacks that shares and FAT cards take keep the same promises.
class FileSystemRename : public ::testing::TestWithParam<NoReplaceMethod> {
 protected:
  void SetUp() override { platform::ForceNoReplaceMethod(GetParam()); }
  void TearDown() override { platform::ForceNoReplaceMethod(NoReplaceMethod::Kernel); }
  int Rename(const QByteArray& from, const QByteArray& to) {
    return RealFileSystem().RenameNoReplace(folder / from, folder / to);
  }
  ScratchFolder folder;
};

INSTANTIATE_TEST_SUITE_P(Method, FileSystemRename,
                         ::testing::Values(NoReplaceMethod::Kernel, NoReplaceMethod::HardLink,
                                           NoReplaceMethod::CheckFirst));

// "caf\xe9" is Latin-1; its lossy display form round-tripped through UTF-8
// becomes "caf\xef\xbf\xbd" and must never be the file that gets renamed.
TEST_P(FileSystemRename, NonUtf8NameIsRenamedExactly) {
  ASSERT_TRUE(WriteRaw(folder / "caf\xe9.jpg", "target"));
  ASSERT_TRUE(WriteRaw(folder / "caf\xc3\xa9.jpg", "utf8 neighbour"));
  ASSERT_TRUE(WriteRaw(folder / "caf\xef\xbf\xbd.jpg", "replacement-mark neighbour"));

  EXPECT_EQ(Rename("caf\xe9.jpg", "renamed.jpg"), 0);

  EXPECT_EQ(FilesIn(folder),
            (std::vector<QByteArray>{"caf\xc3\xa9.jpg", "caf\xef\xbf\xbd.jpg", "renamed.jpg"}));
  EXPECT_EQ(ReadRaw(folder / "renamed.jpg"), "target");
  EXPECT_EQ(ReadRaw(folder / "caf\xc3\xa9.jpg"), "utf8 neighbour");
  EXPECT_EQ(ReadRaw(folder / "caf\xef\xbf\xbd.jpg"), "replacement-mark neighbour");
}

// A hard link of the same file is not a letter-case alias on a
// case-sensitive file system, so it is protected like any other name.
TEST_P(FileSystemRename, NeverReplacesAnExistingFile) {
  ASSERT_TRUE(WriteRaw(folder / "old.jpg", "old"));
  ASSERT_TRUE(WriteRaw(folder / "taken.jpg", "keep me"));
  ASSERT_EQ(::symlink("nowhere", (folder / "dangling").constData()), 0);
  ASSERT_EQ(::link((folder / "old.jpg").constData(), (folder / "Old.jpg").constData()), 0);

  EXPECT_EQ(Rename("old.jpg", "taken.jpg"), platform::kFileAlreadyExists);
  EXPECT_EQ(Rename("old.jpg", "dangling"), platform::kFileAlreadyExists);
  EXPECT_FALSE(platform::IsLetterCaseAlias(folder / "old.jpg", folder / "Old.jpg"));
  EXPECT_EQ(Rename("old.jpg", "Old.jpg"), platform::kFileAlreadyExists);
  EXPECT_EQ(FilesIn(folder), (std::vector<QByteArray>{"Old.jpg", "dangling", "old.jpg", "taken.jpg"}));
  EXPECT_EQ(ReadRaw(folder / "taken.jpg"), "keep me");
  EXPECT_EQ(ReadRaw(folder / "old.jpg"), "old");
}

TEST_P(FileSystemRename, ErrorNumbersTellSourceFromDestination) {
  ASSERT_TRUE(WriteRaw(folder / "here.jpg", "x"));
  EXPECT_EQ(Rename("absent.jpg", "b.jpg"), platform::kFileNotFound);
  EXPECT_EQ(Rename("here.jpg", "gone/b.jpg"), platform::kPathNotFound);
  EXPECT_EQ(Rename("here.jpg", "here.jpg"), 0);
  EXPECT_EQ(ReadRaw(folder / "here.jpg"), "x");
}

// The detour a case-folding file system needs, run on this one: it gets
// there, and on failure puts the name back.
TEST_P(FileSystemRename, CaseOnlyRenameDirectAndThroughTheDetour) {
  ASSERT_TRUE(WriteRaw(folder / "photo.jpg", "p"));
  EXPECT_EQ(Rename("photo.jpg", "Photo.jpg"), 0);
  EXPECT_EQ(platform::RenameThroughTemporaryName(folder / "Photo.jpg", folder / "PHOTO.JPG"), 0);
  EXPECT_EQ(FilesIn(folder), std::vector<QByteArray>{"PHOTO.JPG"});
  ASSERT_TRUE(WriteRaw(folder / "Photo.jpg", "other"));
  EXPECT_EQ(platform::RenameThroughTemporaryName(folder / "PHOTO.JPG", folder / "gone/Photo.jpg"),
            platform::kPathNotFound);
  EXPECT_EQ(platform::RenameThroughTemporaryName(folder / "PHOTO.JPG", folder / "Photo.jpg"),
            platform::kFileAlreadyExists);
  EXPECT_EQ(FilesIn(folder), (std::vector<QByteArray>{"PHOTO.JPG", "Photo.jpg"}));
  EXPECT_EQ(ReadRaw(folder / "PHOTO.JPG"), "p");
  EXPECT_EQ(ReadRaw(folder / "Photo.jpg"), "other");
}

}  // namespace
}  // namespace renvale::test

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

TEST(FileSystemListing, SortsEntriesIntoFilesAndFolders) {
  ScratchFolder folder;
  ASSERT_TRUE(WriteRaw(folder / "a.jpg", "a"));
  ASSERT_TRUE(WriteRaw(folder / ".hidden", "h"));
  ASSERT_TRUE(WriteRaw(folder / "caf\xe9.jpg", "latin1"));
  ASSERT_EQ(::mkdir((folder / "sub").constData(), 0755), 0);
  ASSERT_EQ(::symlink("sub", (folder / "to-sub").constData()), 0);
  ASSERT_EQ(::symlink("a.jpg", (folder / "to-a").constData()), 0);
  ASSERT_EQ(::symlink("nowhere", (folder / "dangling").constData()), 0);

  EXPECT_EQ(FilesIn(folder), (std::vector<QByteArray>{".hidden", "a.jpg", "caf\xe9.jpg", "dangling", "to-a"}));
  std::vector<QByteArray> folders;
  ASSERT_EQ(RealFileSystem().ListFolders(folder.path(), &folders), 0);
  EXPECT_EQ(Sorted(folders), (std::vector<QByteArray>{"sub", "to-sub"}));
  std::vector<QByteArray> names{"stale"};
  EXPECT_EQ(RealFileSystem().ListFiles(folder / "gone/", &names), platform::kPathNotFound);
  EXPECT_TRUE(names.empty());
}

// "caf\xe9" is Latin-1; its lossy display form round-tripped through UTF-8
// becomes "caf\xef\xbf\xbd" and must never be the file that gets renamed.
TEST(FileSystemRename, NonUtf8NameIsRenamedExactly) {
  ScratchFolder folder;
  ASSERT_TRUE(WriteRaw(folder / "caf\xe9.jpg", "target"));
  ASSERT_TRUE(WriteRaw(folder / "caf\xc3\xa9.jpg", "utf8 neighbour"));
  ASSERT_TRUE(WriteRaw(folder / "caf\xef\xbf\xbd.jpg", "replacement-mark neighbour"));

  EXPECT_EQ(RealFileSystem().RenameNoReplace(folder / "caf\xe9.jpg", folder / "renamed.jpg"), 0);

  EXPECT_EQ(FilesIn(folder),
            (std::vector<QByteArray>{"caf\xc3\xa9.jpg", "caf\xef\xbf\xbd.jpg", "renamed.jpg"}));
  EXPECT_EQ(ReadRaw(folder / "renamed.jpg"), "target");
  EXPECT_EQ(ReadRaw(folder / "caf\xc3\xa9.jpg"), "utf8 neighbour");
  EXPECT_EQ(ReadRaw(folder / "caf\xef\xbf\xbd.jpg"), "replacement-mark neighbour");
}

TEST(FileSystemRename, NeverReplacesAnExistingFile) {
  ScratchFolder folder;
  ASSERT_TRUE(WriteRaw(folder / "old.jpg", "old"));
  ASSERT_TRUE(WriteRaw(folder / "taken.jpg", "keep me"));
  ASSERT_EQ(::symlink("nowhere", (folder / "dangling").constData()), 0);

  EXPECT_EQ(RealFileSystem().RenameNoReplace(folder / "old.jpg", folder / "taken.jpg"),
            platform::kFileAlreadyExists);
  EXPECT_EQ(RealFileSystem().RenameNoReplace(folder / "old.jpg", folder / "dangling"),
            platform::kFileAlreadyExists);
  EXPECT_EQ(ReadRaw(folder / "taken.jpg"), "keep me");
  EXPECT_EQ(ReadRaw(folder / "old.jpg"), "old");
}

// Two hard links are one file under two names; on a case-sensitive file
// system that is not a letter-case alias, so the second name is protected.
TEST(FileSystemRename, HardLinkOfTheSameFileStillCountsAsExisting) {
  ScratchFolder folder;
  ASSERT_TRUE(WriteRaw(folder / "photo.jpg", "one file"));
  ASSERT_EQ(::link((folder / "photo.jpg").constData(), (folder / "Photo.jpg").constData()), 0);

  EXPECT_FALSE(platform::IsLetterCaseAlias(folder / "photo.jpg", folder / "Photo.jpg"));
  EXPECT_EQ(RealFileSystem().RenameNoReplace(folder / "photo.jpg", folder / "Photo.jpg"),
            platform::kFileAlreadyExists);
  EXPECT_EQ(FilesIn(folder), (std::vector<QByteArray>{"Photo.jpg", "photo.jpg"}));
}

TEST(FileSystemRename, ErrorNumbersTellSourceFromDestination) {
  ScratchFolder folder;
  ASSERT_TRUE(WriteRaw(folder / "here.jpg", "x"));
  EXPECT_EQ(RealFileSystem().RenameNoReplace(folder / "absent.jpg", folder / "b.jpg"),
            platform::kFileNotFound);
  EXPECT_EQ(RealFileSystem().RenameNoReplace(folder / "here.jpg", folder / "gone/b.jpg"),
            platform::kPathNotFound);
  EXPECT_EQ(RealFileSystem().RenameNoReplace(folder / "here.jpg", folder / "here.jpg"), 0);
  EXPECT_EQ(ReadRaw(folder / "here.jpg"), "x");
}

// The detour a case-folding file system needs, exercised on this one.
TEST(FileSystemRename, CaseOnlyRenameDirectAndThroughTheDetour) {
  ScratchFolder folder;
  ASSERT_TRUE(WriteRaw(folder / "photo.jpg", "p"));
  EXPECT_EQ(RealFileSystem().RenameNoReplace(folder / "photo.jpg", folder / "Photo.jpg"), 0);
  EXPECT_EQ(FilesIn(folder), std::vector<QByteArray>{"Photo.jpg"});
  EXPECT_EQ(platform::RenameThroughTemporaryName(folder / "Photo.jpg", folder / "PHOTO.JPG"), 0);
  EXPECT_EQ(FilesIn(folder), std::vector<QByteArray>{"PHOTO.JPG"});
  EXPECT_EQ(ReadRaw(folder / "PHOTO.JPG"), "p");
}

TEST(FileSystemRename, TemporaryNameDetourRestoresTheNameOnFailure) {
  ScratchFolder folder;
  ASSERT_TRUE(WriteRaw(folder / "photo.jpg", "p"));
  ASSERT_TRUE(WriteRaw(folder / "Photo.jpg", "other"));
  EXPECT_EQ(platform::RenameThroughTemporaryName(folder / "photo.jpg", folder / "gone/Photo.jpg"),
            platform::kPathNotFound);
  EXPECT_EQ(platform::RenameThroughTemporaryName(folder / "photo.jpg", folder / "Photo.jpg"),
            platform::kFileAlreadyExists);
  EXPECT_EQ(FilesIn(folder), (std::vector<QByteArray>{"Photo.jpg", "photo.jpg"}));
  EXPECT_EQ(ReadRaw(folder / "photo.jpg"), "p");
  EXPECT_EQ(ReadRaw(folder / "Photo.jpg"), "other");
}

}  // namespace
}  // namespace renvale::test

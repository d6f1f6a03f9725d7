#include <gtest/gtest.h>
#include <fcntl.h>
#include <sys/stat.h>

#include "RawFiles.h"
#include "platform/AttributeLetters.h"
#include "platform/ErrorNumbers.h"
#include "platform/FileSystem.h"

namespace renvale::test {
namespace {

using platform::RealFileSystem;

TEST(FileSystemTrash, MovesTheFileIntoTheUserTrashWithAnEscapedPath) {
  ScratchFolder folder;
  const QByteArray name = "a b%\xe9.jpg";
  ASSERT_TRUE(WriteRaw(folder / name, "trash me"));
  ASSERT_TRUE(WriteRaw(folder / "stay.jpg", "stay"));

  ASSERT_EQ(RealFileSystem().MoveToTrash(folder / name), 0);

  EXPECT_FALSE(RawExists(folder / name));
  EXPECT_EQ(ReadRaw(folder / "stay.jpg"), "stay");
  const QByteArray trash = qgetenv("XDG_DATA_HOME") + "/Trash/";
  EXPECT_EQ(ReadRaw(trash + "files/" + name), "trash me");
  const QByteArray info = ReadRaw(trash + "info/" + name + ".trashinfo");
  const QByteArray escaped = (folder / name).toPercentEncoding("/");
  EXPECT_TRUE(info.contains("\nPath=" + escaped + "\n")) << info.constData();
  EXPECT_TRUE(escaped.endsWith("a%20b%25%E9.jpg"));
  EXPECT_EQ(RealFileSystem().MoveToTrash(folder / "absent.jpg"), platform::kFileNotFound);
}

TEST(FileSystemWholeFiles, WriteReadAndReadAt) {
  ScratchFolder folder;
  ASSERT_EQ(RealFileSystem().WriteWholeFile(folder / "t.rnt", "0123456789"), 0);
  ASSERT_EQ(RealFileSystem().WriteWholeFile(folder / "t.rnt", "abcdef"), 0);  // truncates
  QByteArray contents;
  EXPECT_EQ(RealFileSystem().ReadWholeFile(folder / "t.rnt", 6, &contents), 0);
  EXPECT_EQ(contents, "abcdef");
  EXPECT_EQ(RealFileSystem().ReadWholeFile(folder / "t.rnt", 5, &contents), platform::kErrnoBase + EFBIG);
  EXPECT_TRUE(contents.isEmpty());
  EXPECT_EQ(RealFileSystem().WriteWholeFile(folder / "gone/t.rnt", "x"), platform::kPathNotFound);

  std::unique_ptr<platform::ReadableFile> file;
  ASSERT_EQ(RealFileSystem().OpenForRead(folder / "t.rnt", &file), 0);
  ASSERT_EQ(file->Size(), 6);
  char buffer[8] = {};
  EXPECT_EQ(file->ReadAt(4, buffer, 8), 2);
  EXPECT_EQ(QByteArray(buffer, 2), "ef");
  EXPECT_EQ(file->ReadAt(6, buffer, 8), 0);
  // Once taken, the size is the end even if the file grows.
  ASSERT_EQ(RealFileSystem().WriteWholeFile(folder / "t.rnt", "abcdefgh"), 0);
  EXPECT_EQ(file->ReadAt(4, buffer, 8), 2);
  EXPECT_EQ(RealFileSystem().OpenForRead(folder / "absent", &file), platform::kFileNotFound);
  EXPECT_EQ(file, nullptr);
  EXPECT_EQ(RealFileSystem().OpenForRead(folder.path(), &file), platform::kErrnoBase + EISDIR);
  // Opening a pipe must not wait for its writer; neither it nor a device has contents.
  ASSERT_EQ(::mkfifo((folder / "pipe").constData(), 0644), 0);
  for (const QByteArray& path : {folder / "pipe", QByteArray("/dev/zero")}) {
    EXPECT_EQ(RealFileSystem().OpenForRead(path, &file), platform::kNoContents) << path.constData();
    EXPECT_EQ(RealFileSystem().ReadWholeFile(path, 8, &contents), platform::kNoContents) << path.constData();
  }
}

TEST(AttributeLetters, LettersInTheirOrderFromTheFilesState) {
  platform::FileInfo info;
  EXPECT_EQ(platform::AttributeLettersOf(info), "");
  info.isWritable = false;
  EXPECT_EQ(platform::AttributeLettersOf(info), "R");
  info.isDir = info.isHidden = true;
  EXPECT_EQ(platform::AttributeLettersOf(info), "DHR");

  ScratchFolder folder;
  ASSERT_TRUE(WriteRaw(folder / ".hidden.jpg", "h"));
  EXPECT_EQ(platform::AttributeLetters(RealFileSystem(), folder / ".hidden.jpg"), "H");
  EXPECT_EQ(platform::AttributeLetters(RealFileSystem(), folder.path()), "D");
  EXPECT_EQ(platform::AttributeLetters(RealFileSystem(), folder / "absent.jpg"), "");
}

}  // namespace
}  // namespace renvale::test

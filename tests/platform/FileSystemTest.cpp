#include <gtest/gtest.h>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstring>

#include "RawFiles.h"
#include "platform/AttributeLetters.h"
#include "platform/ErrorNumbers.h"
#include "platform/FileCopy.h"
#include "platform/FileSystem.h"
#include "platform/NoReplaceRename.h"
#include "platform/UniqueFd.h"

namespace renvale::test {
namespace {

using platform::RealFileSystem;

std::vector<QByteArray> FilesIn(const ScratchFolder& folder) {
  std::vector<QByteArray> names;
  EXPECT_EQ(RealFileSystem().ListFiles(folder.path(), &names), 0);
  std::sort(names.begin(), names.end());
  return names;
}

using platform::NoReplaceMethod;

// Every rename test runs through each way of refusing to replace, so the
// fallbacks that shares and FAT cards take keep the same promises, and by
// paths as well as by names in a held folder, as a batch renames.
class FileSystemRename : public ::testing::TestWithParam<std::tuple<NoReplaceMethod, bool>> {
 protected:
  void SetUp() override { platform::ForceNoReplaceMethod(std::get<0>(GetParam())); }
  void TearDown() override { platform::ForceNoReplaceMethod(NoReplaceMethod::Kernel); }
  int Rename(const QByteArray& from, const QByteArray& to) {
    if (std::get<1>(GetParam())) return RealFileSystem().HoldFolder(folder.path())->RenameNoReplace(from, to);
    return RealFileSystem().RenameNoReplace(folder / from, folder / to);
  }
  ScratchFolder folder;
};

INSTANTIATE_TEST_SUITE_P(Method, FileSystemRename,
                         ::testing::Combine(::testing::Values(NoReplaceMethod::Kernel, NoReplaceMethod::HardLink,
                                                              NoReplaceMethod::CheckFirst),
                                            ::testing::Bool()));

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
  EXPECT_EQ(RealFileSystem().MoveToTrash(folder / "absent.jpg"), platform::kFileNotFound);
}

TEST(FileSystemWholeFiles, WriteReadAndReadAt) {
  ScratchFolder folder;
  platform::FileSystem& fs = RealFileSystem();
  ASSERT_EQ(fs.WriteWholeFile(folder / "t.rnt", "0123456789"), 0);
  ASSERT_EQ(fs.WriteWholeFile(folder / "t.rnt", "abcdef"), 0);  // truncates
  QByteArray contents;
  EXPECT_EQ(fs.ReadWholeFile(folder / "t.rnt", 6, &contents), 0);
  EXPECT_EQ(contents, "abcdef");
  EXPECT_EQ(fs.ReadWholeFile(folder / "t.rnt", 5, &contents), platform::kErrnoBase + EFBIG);
  EXPECT_TRUE(contents.isEmpty());
  EXPECT_EQ(fs.WriteWholeFile(folder / "gone/t.rnt", "x"), platform::kPathNotFound);

  std::unique_ptr<platform::ReadableFile> file;
  ASSERT_EQ(fs.OpenForRead(folder / "t.rnt", &file), 0);
  ASSERT_EQ(file->Size(), 6);
  char buffer[8] = {};
  EXPECT_EQ(file->ReadAt(4, buffer, 8), 2);
  EXPECT_EQ(QByteArray(buffer, 2), "ef");
  EXPECT_EQ(file->ReadAt(6, buffer, 8), 0);
  // Once taken, the size is the end even if the file grows.
  ASSERT_EQ(fs.WriteWholeFile(folder / "t.rnt", "abcdefgh"), 0);
  EXPECT_EQ(file->ReadAt(4, buffer, 8), 2);
  EXPECT_EQ(fs.OpenForRead(folder / "absent", &file), platform::kFileNotFound);
  EXPECT_EQ(file, nullptr);
  EXPECT_EQ(fs.OpenForRead(folder.path(), &file), platform::kErrnoBase + EISDIR);
  // Opening a pipe must not wait for its writer; neither it nor a socket
  // nor a device has contents.
  ASSERT_EQ(::mkfifo((folder / "pipe").constData(), 0644), 0);
  const platform::UniqueFd socket(::socket(AF_UNIX, SOCK_STREAM, 0));
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  std::strncpy(address.sun_path, (folder / "sock").constData(), sizeof address.sun_path - 1);
  ASSERT_EQ(::bind(socket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
  for (const QByteArray& path : {folder / "pipe", folder / "sock", QByteArray("/dev/zero")}) {
    EXPECT_EQ(fs.OpenForRead(path, &file), platform::kNoContents) << path.constData();
    EXPECT_EQ(fs.ReadWholeFile(path, 8, &contents), platform::kNoContents) << path.constData();
  }
  // Opened for its contents alone, the pipe says so at its first read.
  const std::unique_ptr<platform::ReadableFolder> held = fs.HoldFolder(folder.path());
  EXPECT_EQ(held->OpenContents("sock", &file), platform::kNoContents);
  ASSERT_EQ(held->OpenContents("pipe", &file), 0);
  platform::FileInfo identity;
  EXPECT_FALSE(file->Identity(&identity));
  EXPECT_EQ(file->ReadAt(0, buffer, 8), -1);
  EXPECT_EQ(platform::ErrorNumberFromErrno(errno), platform::kNoContents);
}

// An access time older than the contents is one a plain read brings up to
// date (relatime); reading a file for its date must leave it. A file of
// another owner may not be read that way, and is then read plainly.
TEST(FileSystemWholeFiles, ReadingLeavesTheAccessTime) {
  ScratchFolder folder;
  const QByteArray path = folder / "p.jpg";
  ASSERT_EQ(RealFileSystem().WriteWholeFile(path, "picture"), 0);
  const auto accessed = [&] {
    struct stat st {};
    EXPECT_EQ(::stat(path.constData(), &st), 0);
    return st.st_atim.tv_sec;
  };
  const timespec old[2] = {{1000000000, 0}, {UTIME_OMIT, 0}};
  ASSERT_EQ(::utimensat(AT_FDCWD, path.constData(), old, 0), 0);
  char byte = 0;
  const int plain = ::open(path.constData(), O_RDONLY);
  ASSERT_EQ(::read(plain, &byte, 1), 1);
  ::close(plain);
  if (accessed() == old[0].tv_sec) GTEST_SKIP() << "this file system keeps no access times";
  ASSERT_EQ(::utimensat(AT_FDCWD, path.constData(), old, 0), 0);

  std::unique_ptr<platform::ReadableFile> file;
  ASSERT_EQ(RealFileSystem().HoldFolder(folder.path())->OpenForRead("p.jpg", &file), 0);
  EXPECT_EQ(file->ReadAt(0, &byte, 1), 1);
  QByteArray contents;
  EXPECT_EQ(RealFileSystem().ReadWholeFile(path, 16, &contents), 0);
  EXPECT_EQ(accessed(), old[0].tv_sec);

  if (::geteuid() != 0) return;
  const pid_t child = ::fork();
  if (child == 0) {
    // Nobody owns none of the system's files and may still read them.
    const bool read = ::setgid(65534) == 0 && ::setuid(65534) == 0 &&
                      RealFileSystem().ReadWholeFile("/etc/passwd", 1 << 20, &contents) == 0 && !contents.isEmpty();
    ::_exit(read ? 0 : 1);
  }
  int status = -1;
  ASSERT_EQ(::waitpid(child, &status, 0), child);
  EXPECT_EQ(status, 0) << "a file of another owner could not be read";
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

QByteArray Pattern(qsizetype size) {
  QByteArray bytes(size, Qt::Uninitialized);
  for (qsizetype i = 0; i < size; ++i) bytes[i] = static_cast<char>((i * 131 + i / 7) & 0xff);
  return bytes;
}

// Each copy test runs with copy_file_range and with the read/write loop that
// takes over where the kernel refuses it.
class FileSystemCopy : public ::testing::TestWithParam<bool> {
 protected:
  void SetUp() override { platform::ForceReadWriteCopy(GetParam()); }
  void TearDown() override { platform::ForceReadWriteCopy(false); }
  int Copy(const QByteArray& from, const QByteArray& to, bool replace) {
    return RealFileSystem().CopyFile(folder / from, folder / to, replace);
  }
  ScratchFolder folder;
};

INSTANTIATE_TEST_SUITE_P(ReadWrite, FileSystemCopy, ::testing::Bool());

TEST_P(FileSystemCopy, KeepsContentsModificationTimeAndPermissions) {
  const QByteArray contents = Pattern(300 * 1024 + 17);
  ASSERT_TRUE(WriteRaw(folder / "src.jpg", contents));
  ASSERT_EQ(::chmod((folder / "src.jpg").constData(), 0640), 0);
  const struct timespec times[2] = {{981173106, 0}, {981173106, 789000000}};
  ASSERT_EQ(::utimensat(AT_FDCWD, (folder / "src.jpg").constData(), times, 0), 0);

  ASSERT_EQ(Copy("src.jpg", "dst.jpg", false), 0);
  EXPECT_EQ(ReadRaw(folder / "dst.jpg"), contents);
  struct stat copy {};
  ASSERT_EQ(::stat((folder / "dst.jpg").constData(), &copy), 0);
  EXPECT_EQ(copy.st_mode & 07777, 0640u);
  EXPECT_EQ(copy.st_mtim.tv_sec, 981173106);
  EXPECT_EQ(copy.st_mtim.tv_nsec, 789000000);
}

TEST_P(FileSystemCopy, ReplacesOnlyWhenAllowedAndFailsWithoutSourceFolderOrOnItself) {
  ASSERT_TRUE(WriteRaw(folder / "src.jpg", "new"));
  ASSERT_TRUE(WriteRaw(folder / "dst.jpg", "old"));
  EXPECT_EQ(Copy("src.jpg", "dst.jpg", false), platform::kFileAlreadyExists);
  EXPECT_EQ(ReadRaw(folder / "dst.jpg"), "old");
  EXPECT_NE(Copy("src.jpg", "src.jpg", true), 0);
  EXPECT_EQ(ReadRaw(folder / "src.jpg"), "new");
  EXPECT_EQ(Copy("absent.jpg", "new.jpg", false), platform::kFileNotFound);
  EXPECT_EQ(Copy("src.jpg", "gone/dst.jpg", false), platform::kPathNotFound);
  EXPECT_EQ(Copy("src.jpg", "gone/dst.jpg", true), platform::kPathNotFound);
  EXPECT_EQ(Copy("src.jpg", "dst.jpg", true), 0);
  EXPECT_EQ(ReadRaw(folder / "dst.jpg"), "new");
  EXPECT_EQ(FilesIn(folder), (std::vector<QByteArray>{"dst.jpg", "src.jpg"}));
}

// A file-size limit makes the kernel refuse writes past it (EFBIG), so the
// copy really fails half-way, as on a full card, without root or a mount.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) {
    previousHandler_ = std::signal(SIGXFSZ, SIG_IGN);
    ::getrlimit(RLIMIT_FSIZE, &previous_);
    struct rlimit lowered = previous_;
    lowered.rlim_cur = bytes;
    ::setrlimit(RLIMIT_FSIZE, &lowered);
  }
  ~FileSizeLimit() {
    ::setrlimit(RLIMIT_FSIZE, &previous_);
    std::signal(SIGXFSZ, previousHandler_);
  }

 private:
  struct rlimit previous_ {};
  void (*previousHandler_)(int);
};

TEST_P(FileSystemCopy, FailureHalfWayLeavesNoPartialTarget) {
  ASSERT_TRUE(WriteRaw(folder / "big.jpg", Pattern(1024 * 1024)));
  ASSERT_TRUE(WriteRaw(folder / "kept.jpg", "old target"));
  QByteArray temporary = "stale";
  std::vector<int> errors;
  {
    FileSizeLimit limit(256 * 1024);
    errors = {Copy("big.jpg", "new.jpg", false), Copy("big.jpg", "kept.jpg", true),
              RealFileSystem().CopyToTemporary(folder / "big.jpg", folder.path(), &temporary)};
  }
  EXPECT_EQ(errors, std::vector<int>(3, platform::kErrnoBase + EFBIG));
  EXPECT_TRUE(temporary.isEmpty());
  EXPECT_EQ(FilesIn(folder), (std::vector<QByteArray>{"big.jpg", "kept.jpg"}));
  EXPECT_EQ(ReadRaw(folder / "kept.jpg"), "old target");
}

}  // namespace
}  // namespace renvale::test

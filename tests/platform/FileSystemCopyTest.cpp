#include <gtest/gtest.h>
#include <sys/resource.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <csignal>

#include "RawFiles.h"
#include "platform/ErrorNumbers.h"
#include "platform/FileCopy.h"
#include "platform/FileSystem.h"

namespace renvale::test {
namespace {

using platform::RealFileSystem;

QByteArray Pattern(qsizetype size) {
  QByteArray bytes(size, Qt::Uninitialized);
  for (qsizetype i = 0; i < size; ++i) bytes[i] = static_cast<char>((i * 131 + i / 7) & 0xff);
  return bytes;
}

struct stat StatOf(const QByteArray& path) {
  struct stat st {};
  EXPECT_EQ(::stat(path.constData(), &st), 0) << path.constData();
  return st;
}

std::vector<QByteArray> Entries(const ScratchFolder& folder) {
  std::vector<QByteArray> names;
  EXPECT_EQ(RealFileSystem().ListFiles(folder.path(), &names), 0);
  std::sort(names.begin(), names.end());
  return names;
}

// Each copy test runs with copy_file_range and with the read/write loop that
// takes over where the kernel refuses it.
class FileSystemCopy : public ::testing::TestWithParam<bool> {
 protected:
  void SetUp() override { platform::ForceReadWriteCopy(GetParam()); }
  void TearDown() override { platform::ForceReadWriteCopy(false); }
  ScratchFolder folder;
};

INSTANTIATE_TEST_SUITE_P(ReadWrite, FileSystemCopy, ::testing::Bool());

TEST_P(FileSystemCopy, KeepsContentsModificationTimeAndPermissions) {
  const QByteArray contents = Pattern(300 * 1024 + 17);
  ASSERT_TRUE(WriteRaw(folder / "src.jpg", contents));
  ASSERT_EQ(::chmod((folder / "src.jpg").constData(), 0640), 0);
  const struct timespec times[2] = {{981173106, 0}, {981173106, 789000000}};
  ASSERT_EQ(::utimensat(AT_FDCWD, (folder / "src.jpg").constData(), times, 0), 0);

  ASSERT_EQ(RealFileSystem().CopyFile(folder / "src.jpg", folder / "dst.jpg", false), 0);

  EXPECT_EQ(ReadRaw(folder / "dst.jpg"), contents);
  const struct stat copy = StatOf(folder / "dst.jpg");
  EXPECT_EQ(copy.st_mode & 07777, 0640u);
  EXPECT_EQ(copy.st_mtim.tv_sec, 981173106);
  EXPECT_EQ(copy.st_mtim.tv_nsec, 789000000);
}

TEST_P(FileSystemCopy, ExistingTargetIsReplacedOnlyWhenAllowed) {
  ASSERT_TRUE(WriteRaw(folder / "src.jpg", "new"));
  ASSERT_TRUE(WriteRaw(folder / "dst.jpg", "old"));

  EXPECT_EQ(RealFileSystem().CopyFile(folder / "src.jpg", folder / "dst.jpg", false),
            platform::kFileAlreadyExists);
  EXPECT_EQ(ReadRaw(folder / "dst.jpg"), "old");

  EXPECT_EQ(RealFileSystem().CopyFile(folder / "src.jpg", folder / "dst.jpg", true), 0);
  EXPECT_EQ(ReadRaw(folder / "dst.jpg"), "new");
  EXPECT_EQ(Entries(folder), (std::vector<QByteArray>{"dst.jpg", "src.jpg"}));
}

TEST_P(FileSystemCopy, MissingSourceMissingFolderAndSelfCopyFail) {
  ASSERT_TRUE(WriteRaw(folder / "src.jpg", "x"));
  EXPECT_NE(RealFileSystem().CopyFile(folder / "src.jpg", folder / "src.jpg", true), 0);
  EXPECT_EQ(ReadRaw(folder / "src.jpg"), "x");
  EXPECT_EQ(RealFileSystem().CopyFile(folder / "absent.jpg", folder / "dst.jpg", false),
            platform::kFileNotFound);
  EXPECT_EQ(RealFileSystem().CopyFile(folder / "src.jpg", folder / "gone/dst.jpg", false),
            platform::kPathNotFound);
  EXPECT_EQ(RealFileSystem().CopyFile(folder / "src.jpg", folder / "gone/dst.jpg", true),
            platform::kPathNotFound);
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
  int fresh;
  int replacing;
  int hidden;
  QByteArray temporary = "stale";
  {
    FileSizeLimit limit(256 * 1024);
    fresh = RealFileSystem().CopyFile(folder / "big.jpg", folder / "new.jpg", false);
    replacing = RealFileSystem().CopyFile(folder / "big.jpg", folder / "kept.jpg", true);
    hidden = RealFileSystem().CopyToTemporary(folder / "big.jpg", folder.path(), &temporary);
  }
  EXPECT_EQ(fresh, platform::kErrnoBase + EFBIG);
  EXPECT_EQ(replacing, platform::kErrnoBase + EFBIG);
  EXPECT_EQ(hidden, platform::kErrnoBase + EFBIG);
  EXPECT_TRUE(temporary.isEmpty());
  EXPECT_EQ(Entries(folder), (std::vector<QByteArray>{"big.jpg", "kept.jpg"}));
  EXPECT_EQ(ReadRaw(folder / "kept.jpg"), "old target");
}

}  // namespace
}  // namespace renvale::test

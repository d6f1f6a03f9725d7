#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>

#include "platform/ErrorNumbers.h"

namespace renvale::test {
namespace {

using platform::ErrnoContext;

struct ErrnoCase {
  int errnum;
  ErrnoContext context;
  int expected;
};

TEST(ErrorNumbers, ErrnoTable) {
  const ErrnoCase cases[] = {
      {0, ErrnoContext::File, 0},
      {EACCES, ErrnoContext::File, 70},
      {EPERM, ErrnoContext::Folder, 70},
      {EROFS, ErrnoContext::File, 75},
      {ETXTBSY, ErrnoContext::File, 75},
      {EBUSY, ErrnoContext::Folder, 75},
      {ENOENT, ErrnoContext::Folder, 76},
      {ENOTDIR, ErrnoContext::Folder, 76},
      {ENOTDIR, ErrnoContext::File, 76},
      {ENOENT, ErrnoContext::File, 53},
      {EEXIST, ErrnoContext::File, 58},
      {ENOSPC, ErrnoContext::File, 1000 + ENOSPC},
      {EXDEV, ErrnoContext::Folder, 1000 + EXDEV},
      {EIO, ErrnoContext::File, 1000 + EIO},
  };
  for (const ErrnoCase& c : cases) {
    EXPECT_EQ(platform::ErrorNumberFromErrno(c.errnum, c.context), c.expected)
        << "errno " << c.errnum << " context " << static_cast<int>(c.context);
  }
}

TEST(ErrorNumbers, DescriptionIsTheSystemTextOfTheErrnoBehind) {
  const struct {
    int number;
    int errnum;
  } cases[] = {
      {53, ENOENT}, {76, ENOENT}, {58, EEXIST}, {70, EACCES},
      {75, EROFS},  {1000 + ENOSPC, ENOSPC}, {1000 + EXDEV, EXDEV},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(platform::ErrorDescription(c.number), QString::fromLocal8Bit(std::strerror(c.errnum)))
        << c.number;
  }
  EXPECT_TRUE(platform::ErrorDescription(5).isEmpty());
}

}  // namespace
}  // namespace renvale::test

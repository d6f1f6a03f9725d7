// GIO's headers use `signals` as a plain name, which Qt's headers turn into a
// keyword macro; so GIO comes first.
#include <gio/gio.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>

#include "platform/ErrorNumbers.h"
#include "platform/FileName.h"
#include "platform/GioErrorCodes.h"

namespace renvale::test {
namespace {

using platform::FileName;

// Every name must come back byte for byte from its text, whatever a camera
// or an old tool wrote; valid UTF-8 must read as the characters it spells.
TEST(FileNameText, EveryByteStringComesBackExactly) {
  struct Row { QByteArray name; QString shown; };
  const QString e = QString(QChar(0xE9));
  const std::vector<Row> rows = {
      {"IMG_0001.JPG", "IMG_0001.JPG"}, {"caf\xc3\xa9.jpg", "caf" + e + ".jpg"}, {"", ""},
      {"caf\xe9.jpg", "caf" + QString(QChar(0xF7E9)) + ".jpg"},
      {"\xff", QString(QChar(0xF7FF))}, {"\x80", QString(QChar(0xF780))},
      {"\xc3", QString(QChar(0xF7C3))},                                       // cut short
      {"\xc0\xaf", QString(QChar(0xF7C0)) + QChar(0xF7AF)},                   // overlong
      {"\xed\xa0\x80", QString(QChar(0xF7ED)) + QChar(0xF7A0) + QChar(0xF780)},  // surrogate
      {"\xef\x9f\xa9", QString(QChar(0xF7EF)) + QChar(0xF79F) + QChar(0xF7A9)},  // U+F7E9 itself
      {"\xef\x9c\x80", QString(QChar(0xF700))},                               // just below the escapes
      {"\xf0\x9f\x93\xb7.jpg", QString::fromUtf8("\xf0\x9f\x93\xb7.jpg")}};
  for (const Row& row : rows) {
    const QString shown = FileName::NameToText(row.name);
    EXPECT_EQ(shown, row.shown) << row.name.toHex().constData();
    EXPECT_EQ(FileName::TextToName(shown), row.name) << row.name.toHex().constData();
  }
  QByteArray everyByte;
  for (int b = 1; b < 256; ++b) everyByte += static_cast<char>(b);
  EXPECT_EQ(FileName::FromDisplay(FileName{everyByte}.Display()).raw, everyByte);
}

using platform::ErrnoContext;

// Each number describes itself with the system's text of the errno it
// stands for (`describedBy`), not always the errno it came from.
TEST(ErrorNumbers, FromErrnoAndDescribedByTheSystemText) {
  const struct { int errnum; ErrnoContext context; int expected; int describedBy; } cases[] = {
      {0, ErrnoContext::File, 0, 0}, {EACCES, ErrnoContext::File, 70, EACCES},
      {EPERM, ErrnoContext::Folder, 70, EACCES}, {EROFS, ErrnoContext::File, 75, EROFS},
      {ETXTBSY, ErrnoContext::File, 75, EROFS}, {EBUSY, ErrnoContext::Folder, 75, EROFS},
      {ENOENT, ErrnoContext::Folder, 76, ENOENT}, {ENOTDIR, ErrnoContext::Folder, 76, ENOENT},
      {ENOTDIR, ErrnoContext::File, 76, ENOENT}, {ENOENT, ErrnoContext::File, 53, ENOENT},
      {EEXIST, ErrnoContext::File, 58, EEXIST}, {ENOSPC, ErrnoContext::File, 1000 + ENOSPC, ENOSPC},
      {EXDEV, ErrnoContext::Folder, 1000 + EXDEV, EXDEV}, {EIO, ErrnoContext::File, 1000 + EIO, EIO}};
  for (const auto& c : cases) {
    SCOPED_TRACE(testing::Message() << "errno " << c.errnum << " context " << int(c.context));
    EXPECT_EQ(platform::ErrorNumberFromErrno(c.errnum, c.context), c.expected);
    if (c.describedBy != 0) {
      EXPECT_EQ(platform::ErrorDescription(c.expected), QString::fromLocal8Bit(std::strerror(c.describedBy)));
    }
  }
  EXPECT_TRUE(platform::ErrorDescription(5).isEmpty());
  // GIO reports its own codes (the trash does), each told by its errno's number.
  EXPECT_EQ(platform::ErrorNumberFromGioCode(G_IO_ERROR_NO_SPACE), platform::ErrorNumberFromErrno(ENOSPC));
  EXPECT_EQ(platform::ErrorNumberFromGioCode(G_IO_ERROR_FAILED), platform::ErrorNumberFromErrno(EIO));
}

}  // namespace
}  // namespace renvale::test

#include <gtest/gtest.h>

#include "QStringPrinter.h"

#include "metadata/mdlID3.h"
#include "platform/ErrorNumbers.h"
#include "support/MemoryFileSystem.h"
#include "support/SampleAudio.h"

namespace renvale::test {
namespace {

using metadata::Id3Tag;
using metadata::Id3Values;

Id3v1Fields FullFields() {
  Id3v1Fields f;
  f.title = "  Silence  ";
  f.artist = "piman";
  f.album = "Quod Libet Test Data";
  f.year = "2004";
  f.comment = "a comment";
  f.track = 2;
  f.genre = 50;
  return f;
}

Id3Tag Read(MemoryFileSystem& fs, const QByteArray& bytes, bool* found) {
  fs.Add("/m/a.mp3", bytes);
  Id3Tag tag;
  *found = metadata::ReadId3Tag(fs, "/m/a.mp3", &tag);
  return tag;
}

TEST(Id3Tag, FindsNoTagWhereThereIsNone) {
  MemoryFileSystem fs;
  bool found = true;
  const Id3v1Fields fields = FullFields();
  Read(fs, MakeMp3(nullptr), &found);
  EXPECT_FALSE(found);
  Read(fs, MakeId3v1Tag(fields).left(127), &found);  // too short
  EXPECT_FALSE(found);
  Read(fs, QByteArray(), &found);
  EXPECT_FALSE(found);
  Read(fs, MakeId3v1Tag(fields).replace(2, 1, "X"), &found);
  EXPECT_FALSE(found);
  // Exactly 128 bytes that begin "TAG" are a tag.
  const Id3Tag tag = Read(fs, MakeId3v1Tag(fields), &found);
  EXPECT_TRUE(found);
  EXPECT_EQ(tag.artist, "piman");
  fs.FailOpen("/m/a.mp3", platform::kAccessViolation);
  Id3Tag emptied;
  emptied.title = "left over";
  EXPECT_FALSE(metadata::ReadId3Tag(fs, "/m/a.mp3", &emptied));
  EXPECT_EQ(emptied.title, "");
  EXPECT_FALSE(metadata::ReadId3Tag(fs, "/m/missing.mp3", &emptied));
}

TEST(Id3FixedText, ConvertsBytesByItsRules) {
  struct Case {
    QByteArray bytes;
    int mode;
    bool stopAtZero;
    QString expected;
  } cases[] = {
      {QByteArray("ab\0cd", 5), 0, true, "ab"},
      {QByteArray("ab\0cd", 5), 0, false, QString::fromUtf16(u"ab\u0000cd", 5)},
      {"a\rb\nc", 0, true, "ab\r\nc"},
      {"\x80\x93\xE9\x9F\x81", 0, true, QString::fromUtf16(u"\u20AC\u201C\u00E9\u0178\u0081")},
      {QByteArray("a\0b\0\0\0c\0", 8), 1, true, "ab"},  // low bytes of little-endian text
      {QByteArray("\0a\0b", 4), 2, true, "ab"},         // and of big-endian text
  };
  for (const auto& c : cases) {
    EXPECT_EQ(metadata::Id3FixedText(c.bytes.constData(), c.bytes.size(), c.mode, c.stopAtZero),
              c.expected)
        << c.bytes.toHex().constData();
  }
}

}  // namespace
}  // namespace renvale::test

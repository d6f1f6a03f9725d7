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

TEST(Id3Tag, ReadsEveryFieldOfAVersion11Tag) {
  MemoryFileSystem fs;
  const Id3v1Fields fields = FullFields();
  bool found = false;
  const Id3Tag tag = Read(fs, MakeMp3(&fields), &found);
  ASSERT_TRUE(found);
  EXPECT_EQ(QStringList({tag.title, tag.artist, tag.album, tag.year, tag.comment, tag.track, tag.genre}),
            QStringList({"Silence", "piman", "Quod Libet Test Data", "2004", "a comment", "2", "Darkwave"}));
}

TEST(Id3Tag, Version10TagHasAThirtyByteCommentAndNoTrack) {
  Id3v1Fields fields = FullFields();
  fields.track = 0;
  fields.comment = QByteArray(29, 'c') + 'd';  // byte 126 is 'd': no track marker
  bool found = false;
  MemoryFileSystem fs;
  Id3Tag tag = Read(fs, MakeMp3(&fields), &found);
  EXPECT_EQ(tag.comment, QString(29, 'c') + "d");
  EXPECT_EQ(tag.track, "");
  // Bytes 125 and 126 both zero: still version 1.0.
  fields.comment = "short";
  tag = Read(fs, MakeMp3(&fields), &found);
  EXPECT_EQ(tag.comment, "short");
  EXPECT_EQ(tag.track, "");
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

TEST(Id3Tag, GenreNamesKeepTheirSpellingsAndEndAt147) {
  const std::pair<int, const char*> cases[] = {
      {0, "Blues"},  {40, "Alt. Rock"},          {67, "Psychadelic"},     {85, "Bebob"},
      {136, "Christian Gangsta"}, {140, "Contemporary C"}, {147, "SynthPop"},
      {148, ""},     {255, ""},                  {-1, ""}};
  for (const auto& [number, name] : cases) EXPECT_EQ(metadata::Id3GenreName(number), name) << number;
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

TEST(Id3Values, CleanValuesAndPlaceholders) {
  MemoryFileSystem fs;
  Id3v1Fields fields = FullFields();
  fields.title = "Line\nbreak";
  fields.album = "   ";
  fields.track = 7;
  fs.Add("/m/t.mp3", MakeMp3(&fields));
  Id3Values v = metadata::LoadId3Values(fs, "/m/t.mp3");
  EXPECT_EQ(v.title, "Linebreak");
  EXPECT_EQ(v.artist, "piman");
  EXPECT_EQ(v.album, "Album");
  EXPECT_EQ(v.track, "07");

  fs.Add("/m/none.mp3", MakeMp3(nullptr));
  v = metadata::LoadId3Values(fs, "/m/none.mp3");
  EXPECT_EQ(QStringList({v.title, v.artist, v.album, v.track}),
            QStringList({"Title", "Artist", "Album", "Track"}));
  fields.track = 0;
  fs.Add("/m/v10.mp3", MakeMp3(&fields));
  EXPECT_EQ(metadata::LoadId3Values(fs, "/m/v10.mp3").track, "Track");
  fields.track = 123;
  fs.Add("/m/big.mp3", MakeMp3(&fields));
  EXPECT_EQ(metadata::LoadId3Values(fs, "/m/big.mp3").track, "123");
}

}  // namespace
}  // namespace renvale::test

// The ID3v1 and ID3v2 readers on generated tags of each version and text
// encoding, and the place of ID3v2 behind ID3v1 in names and the report.

#include <gtest/gtest.h>

#include "QStringPrinter.h"

#include "metadata/FileReport.h"
#include "metadata/Id3v2Reader.h"
#include "metadata/MemoryByteSource.h"
#include "metadata/mdlID3.h"
#include "platform/ErrorNumbers.h"
#include "support/MemoryFileSystem.h"
#include "support/SampleAudio.h"
#include "support/SampleMedia.h"

namespace renvale::test {
namespace {

using metadata::Id3Tag;

TEST(Id3Tag, OnlyTheLast128BytesStartingTagAreATag) {
  Id3v1Fields fields{"  Silence  ", "piman", "Quod Libet Test Data", "2004", "a comment", 2, 50};
  const QByteArray tag = MakeId3v1Tag(fields);
  const struct { const char* what; QByteArray bytes; bool found; } cases[] = {
      {"no tag", MakeMp3(nullptr), false}, {"too short", tag.left(127), false}, {"empty file", QByteArray(), false},
      {"TAX", QByteArray(tag).replace(2, 1, "X"), false}, {"exactly a tag", tag, true}};
  for (const auto& c : cases) {
    MemoryFileSystem fs;
    fs.Add("/m/a.mp3", c.bytes);
    Id3Tag read;
    EXPECT_EQ(metadata::ReadId3Tag(fs, "/m/a.mp3", &read), c.found) << c.what;
    EXPECT_EQ(read.artist, c.found ? "piman" : "") << c.what;
  }
  MemoryFileSystem fs;
  fs.Add("/m/a.mp3", tag);
  fs.FailOpen("/m/a.mp3", platform::kAccessViolation);
  Id3Tag emptied;
  emptied.title = "left over";
  EXPECT_FALSE(metadata::ReadId3Tag(fs, "/m/a.mp3", &emptied));
  EXPECT_EQ(emptied.title, "");
  EXPECT_FALSE(metadata::ReadId3Tag(fs, "/m/missing.mp3", &emptied));
}

TEST(Id3FixedText, ConvertsBytesByItsRules) {
  struct Case { QByteArray bytes; int mode; bool stopAtZero; QString expected; } cases[] = {
      {QByteArray("ab\0cd", 5), 0, true, "ab"}, {"a\rb\nc", 0, true, "ab\r\nc"},
      {QByteArray("ab\0cd", 5), 0, false, QString::fromUtf16(u"ab\u0000cd", 5)},
      {"\x80\x93\xE9\x9F\x81", 0, true, QString::fromUtf16(u"\u20AC\u201C\u00E9\u0178\u0081")},
      {QByteArray("a\0b\0\0\0c\0", 8), 1, true, "ab"},  // low bytes of little-endian text
      {QByteArray("\0a\0b", 4), 2, true, "ab"},         // and of big-endian text
  };
  for (const auto& c : cases) {
    EXPECT_EQ(metadata::Id3FixedText(c.bytes.constData(), c.bytes.size(), c.mode, c.stopAtZero), c.expected)
        << c.bytes.toHex().constData();
  }
}

using metadata::Id3v2Reader;

Id3Tag Parse(const QByteArray& bytes, int* version) {
  metadata::MemoryByteSource source(bytes.constData(), bytes.size());
  Id3Tag tag;
  Id3v2Reader::Read(source, &tag, version);
  return tag;
}

QByteArray Frame(int major, const char* v3id, const QByteArray& content, quint16 flags = 0) {
  static const QHash<QByteArray, QByteArray> kV2 = {{"TIT2", "TT2"}, {"TPE1", "TP1"}, {"TALB", "TAL"},
                                                    {"TRCK", "TRK"}, {"TYER", "TYE"}, {"TCON", "TCO"},
                                                    {"COMM", "COM"}, {"APIC", "PIC"}};
  return Id3v2Frame(major, major == 2 ? kV2.value(v3id) : QByteArray(v3id), content, flags);
}

TEST(Id3v2, EveryVersionAndTextEncoding) {
  const QByteArray utf16le("\xFF\xFE" "C\0a\0f\0\xE9\0", 10);
  const QByteArray utf16be("\xFE\xFF\0C\0a\0f\0\xE9", 10);
  const std::pair<quint8, QByteArray> titles[] = {
      {0, "Caf\xE9"}, {1, utf16le}, {1, utf16be}, {1, utf16be.mid(2)}, {2, utf16be.mid(2)}, {3, "Caf\xC3\xA9"}};
  for (const int major : {2, 3, 4}) {
    for (const auto& [encoding, title] : titles) {
      const QByteArray body =
          Frame(major, "APIC", QByteArray(300, '\xFF')) + Frame(major, "TIT2", Id3v2TextContent(encoding, title, true)) +
          Frame(major, "TPE1", Id3v2TextContent(0, " piman ")) + Frame(major, "TALB", Id3v2TextContent(3, "Quod")) +
          Frame(major, "TRCK", Id3v2TextContent(0, "3/11")) + Frame(major, "TYER", Id3v2TextContent(0, "2004")) +
          Frame(major, "TCON", Id3v2TextContent(0, "(13)")) +
          Frame(major, "COMM", Id3v2TextContent(0, QByteArray("engiTunNORM\0 0001", 17))) +
          Frame(major, "COMM", Id3v2TextContent(0, QByteArray("eng\0Nice", 8)));
      int version = 0;
      const Id3Tag tag = Parse(MakeId3v2Tag(major, 0, body), &version);
      SCOPED_TRACE(testing::Message() << "2." << major << " encoding " << int(encoding));
      EXPECT_EQ(version, major);
      EXPECT_EQ(QStringList({tag.title, tag.artist, tag.album, tag.track, tag.year, tag.genre, tag.comment}),
                QStringList({QString::fromUtf8("Caf\xC3\xA9"), "piman", "Quod", "3/11", "2004", "Pop", "Nice"}));
    }
  }
}

TEST(Id3v2, UnsynchronisationExtendedHeadersAndPlainSizes) {
  const QByteArray title("\xFF\xE0\xFF", 3);  // ÿàÿ in ISO-8859-1
  const QByteArray titleFrame3 = Frame(3, "TIT2", Id3v2TextContent(0, title));
  // 256 bytes: a plain size whose bytes would also pass for a sync-safe 128.
  const QByteArray long4 = Id3v2TextContent(0, QByteArray(255, 'a'));
  // A version of 0: no tag at all.
  struct Case { const char* what; QByteArray tag; QString title; int version; } cases[] = {
      {"2.3 unsynchronised", MakeId3v2Tag(3, 0x80, Unsynchronised(titleFrame3)), QString::fromLatin1(title), 3},
      {"2.4 frame unsynchronised, data length",
       MakeId3v2Tag(4, 0, Frame(4, "TIT2", QByteArray("\0\0\0\x04", 4) + Unsynchronised(QByteArray(1, '\0') + title), 0x0003)),
       QString::fromLatin1(title), 4},
      {"2.3 extended header", MakeId3v2Tag(3, 0x40, QByteArray("\0\0\0\x06", 4) + QByteArray(6, '\0') + titleFrame3),
       QString::fromLatin1(title), 3},
      {"2.4 extended header", MakeId3v2Tag(4, 0x40, QByteArray("\0\0\0\x06\x01\0", 6) + Frame(4, "TIT2", long4)),
       QString(255, u'a'), 4},
      {"2.4 with iTunes' plain sizes",
       MakeId3v2Tag(4, 0, Id3v2Frame(4, "TIT2", long4, 0, true) + Id3v2Frame(4, "TPE1", long4, 0, true)),
       QString(255, u'a'), 4},
      {"size beyond the file", MakeId3v2Tag(3, 0, titleFrame3, 0, 1 << 27), QString::fromLatin1(title), 3},
      {"frames beyond the size", MakeId3v2Tag(3, 0, titleFrame3, 0, 5), "", 3},
      {"compressed 2.3 frame", MakeId3v2Tag(3, 0, Frame(3, "TIT2", "\0\0\0\x10xyz", 0x0080)), "", 3},
      {"no tag: version 2.5", MakeId3v2Tag(5, 0, titleFrame3), "", 0},
      {"no tag: size not sync-safe", QByteArray("ID3\x03\0\0\0\0\x80\x10", 10) + titleFrame3, "", 0},
      {"no tag: cut header", QByteArray("ID3\x03\0\0", 6), "", 0},
  };
  for (const Case& c : cases) {
    int version = -1;
    EXPECT_EQ(Parse(c.tag, &version).title, c.title) << c.what;
    EXPECT_EQ(version, c.version) << c.what;
  }
}

TEST(Id3v2, GenreWords) {
  const std::pair<const char*, const char*> cases[] = {{"(13)", "Pop"},     {"13", "Pop"},         {"(13)Britpop", "Britpop"},
                                                       {"(RX)", "Remix"},   {"(CR)", "Cover"},     {"(200)", "(200)"}};
  for (const auto& [text, words] : cases) EXPECT_EQ(Id3v2Reader::GenreText(text), words) << text;
}

TEST(Id3v2, UsedOnlyWhenTheFileHasNoId3v1Tag) {
  MemoryFileSystem fs;
  const QByteArray v2 = MakeId3v2Tag(3, 0, Frame(3, "TIT2", Id3v2TextContent(0, "Two")) +
                                               Frame(3, "TRCK", Id3v2TextContent(0, "3/11")));
  Id3v1Fields v1{"One", "A", "B", "1999", "", 5, 1};
  fs.Add("/m/both.mp3", v2 + MakeMp3(&v1, 2));
  fs.Add("/m/v2.mp3", v2 + MakeMp3(nullptr, 2));
  EXPECT_EQ(metadata::LoadId3Values(fs, "/m/both.mp3").title, "One");
  const metadata::Id3Values values = metadata::LoadId3Values(fs, "/m/v2.mp3");
  EXPECT_EQ(values.title, "Two");
  EXPECT_EQ(values.track, "03");  // of 11: the slash cannot go into a name
  EXPECT_EQ(values.artist, "Artist");
  EXPECT_TRUE(metadata::BuildGeneralInfo(fs, "/m/v2.mp3")
                  .endsWith("---Tag: ID3v2.3\r\n---Title: Two\r\n---Artist: \r\n---Album: \r\n---Track #: "
                            "3/11\r\n---Year: \r\n---Comment: \r\n"));
}

}  // namespace
}  // namespace renvale::test

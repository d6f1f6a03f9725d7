// Hostile and broken EXIF blocks: the reader must end, stay inside the
// bytes it was given and never hand out a cut value.

#include <gtest/gtest.h>

#include <random>

#include "ExifTestBytes.h"
#include "metadata/ByteReader.h"
#include "metadata/ExifReader.h"
#include "metadata/MemoryByteSource.h"
#include "support/SampleImages.h"
#include "support/SampleRawFiles.h"

namespace renvale::test {
namespace {

using metadata::ExifReader;

// Loads from a heap copy of exactly the given size, so a read past the end
// is a read past an allocation (which the sanitizer builds catch).
void Load(ExifReader* reader, const QByteArray& bytes) {
  const std::unique_ptr<char[]> copy(new char[size_t(qMax<qsizetype>(bytes.size(), 1))]);
  std::copy(bytes.begin(), bytes.end(), copy.get());
  reader->LoadBytes(copy.get(), bytes.size());
}

// Loops between directories end; counts, offsets and types no value fits
// are skipped while the entries around them still count.
TEST(ExifHostile, LoopsAndImpossibleEntries) {
  const QByteArray text = QByteArray("Canon", 6);
  const quint32 textAt = 8 + 2 + 6 * 12 + 4;
  using Tags = std::vector<std::pair<const char*, const char*>>;
  const struct { const char* name; QByteArray bytes; Tags tags; } cases[] = {
      // IFD0 at 8: Make inline "Abc", Exif pointer to 8 (itself); next IFD 8.
      {"Exif pointer back to IFD0",
       Header() + Le16(2) + Entry(0x010F, 2, 4, 0x00636241) + Entry(0x8769, 4, 1, 8) + Le32(8), {{"Make", "Abc"}}},
      // Exif IFD at 26 pointing to itself as Exif IFD and as next IFD.
      {"Exif IFD pointing to itself",
       Header() + Le16(1) + Entry(0x8769, 4, 1, 26) + Le32(8) + Le16(2) + Entry(0x8769, 4, 1, 26) +
           Entry(0x8827, 3, 1, 100) + Le32(26),
       {{"ISOSpeedRatings", "100"}}},
      {"huge counts and offsets",
       Header() + Le16(6) +
           Entry(0x010F, 2, 0xFFFFFFFF, textAt) +  // Make: count far past the end
           Entry(0x0110, 2, 6, 0xFFFFFFF0) +       // Model: offset + size overflows 32 bits
           Entry(0x0112, 3, 0x80000000, 1) +       // Orientation: 2^31 SHORTs
           Entry(0x829D, 5, 1, textAt + 2) +       // Fnumber: odd but in range
           Entry(0x8769, 4, 1, 0xFFFFFFFF) +       // Exif IFD nowhere
           Entry(0x9003, 99, 20, textAt) +         // unknown type
           Le32(0) + text + QByteArray(200, '\0'),
       // the head of an over-long value is there
       {{"Make", "Canon"}, {"Model", ""}, {"Orientation", ""}, {"DateTimeOriginal", ""}}},
      {"65535 entries claimed, one present", Header() + Le16(0xFFFF) + Entry(0x010F, 2, 4, 0x00636241) + Le32(0),
       {{"Make", "Abc"}}},
  };
  for (const auto& c : cases) {
    ExifReader reader;
    Load(&reader, c.bytes);
    EXPECT_EQ(reader.Status(), "") << c.name;
    for (const auto& [tag, expected] : c.tags) EXPECT_EQ(reader.Tag(tag), expected) << c.name << ", " << tag;
  }
}

TEST(ExifHostile, BoxAndSegmentSizesThatLie) {
  const struct { const char* name; QByteArray bytes; } cases[] = {
      {"BMFF box of size 0 and 1", QByteArray("\0\0\0\x10" "ftypheic\0\0\0\0" "\0\0\0\0meta" "\0\0\0\x01iinf"
                                               "\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF", 40)},
      {"BMFF 64-bit size smaller than its header",
       QByteArray("\0\0\0\x10" "ftypcrx \0\0\0\0" "\0\0\0\x01moov\0\0\0\0\0\0\0\x04", 32)},
      {"JPEG segment of length 0", QByteArray("\xFF\xD8\xFF\xE1\0\0Exif\0\0", 12)},
      {"JPEG segment of length 1", QByteArray("\xFF\xD8\xFF\xE0\0\x01\xFF\xE1", 8)},
      {"RAF pointing past the end", QByteArray("FUJIFILMCCD-RAW ", 16) + QByteArray(68, '\0') + QByteArray(8, '\xFF')},
      {"MRW block past the end", QByteArray("\0MRM\xFF\xFF\xFF\xFF\0TTW\xFF\xFF\xFF\xF0II*\0", 20)},
      {"X3F directory offset past the end", QByteArray("FOVb", 4) + QByteArray(40, '\0') + QByteArray(4, '\xFF')},
      {"X3F directory count huge", QByteArray("FOVb\0\0\0\0SECd\0\0\0\0\xFF\xFF\xFF\xFF", 20) +
                                       QByteArray(12, '\xFF') + QByteArray("\x08\0\0\0", 4)},
  };
  for (const auto& c : cases) {
    ExifReader reader;
    Load(&reader, c.bytes);
    EXPECT_FALSE(reader.Status().isEmpty()) << c.name;
    EXPECT_EQ(reader.Tag("DateTimeOriginal"), "") << c.name;
  }
}

// A read may end on the last byte of its view, and not one further.
TEST(ExifHostile, ReadsReachTheLastByteOfTheViewOnly) {
  metadata::MemoryByteSource source("abcdef", 6);
  metadata::ByteReader view(source, 2, 100);  // clipped to "cdef"
  EXPECT_TRUE(view.Matches(2, "ef", 2));
  EXPECT_FALSE(view.Matches(3, "f", 2));
  EXPECT_TRUE(view.Ok());
}

struct Sample { const char* name; QByteArray bytes; };

std::vector<Sample> Samples() {
  const ExifFields fields = TypicalExifFields();
  return {
      {"JPEG", MakeExifJpeg(&fields, 16, 16, false)},
      {"TIFF big-endian", MakeExifTiff(fields, true)},
      {"CR3", MakeCr3File(fields)},
      {"HEIF", MakeHeifFile(MakeExifTiff(fields, false), 1)},
      {"RAF", MakeRafFile(MakeExifJpeg(&fields, 16, 16, true))},
      {"MRW", MakeMrwFile(MakeExifTiff(fields, true))},
      {"X3F", MakeX3fFile(MakeExifJpeg(&fields, 16, 16, false))},
  };
}

// Cut at every length, a file gives each tag either whole or not at all.
TEST(ExifHostile, EveryTruncationGivesWholeValuesOrNone) {
  for (const Sample& sample : Samples()) {
    ExifReader full;
    Load(&full, sample.bytes);
    ASSERT_EQ(full.Status(), "") << sample.name;
    for (qsizetype length = 0; length < sample.bytes.size(); ++length) {
      ExifReader cut;
      Load(&cut, sample.bytes.left(length));
      ForEveryTag(cut, [&](const char* tag, const QString& value) {
        if (value.isEmpty()) return;
        EXPECT_EQ(value, full.Tag(tag)) << sample.name << " cut at " << length << ", " << tag;
      });
    }
  }
}

// Random byte changes: no crash, no hang, and the reader stays usable.
TEST(ExifHostile, RandomDamageIsSurvived) {
  std::mt19937 random(20260121);
  for (const Sample& sample : Samples()) {
    for (int round = 0; round < 300; ++round) {
      QByteArray bytes = sample.bytes;
      const int changes = 1 + int(random() % 8);
      for (int i = 0; i < changes; ++i) bytes[qsizetype(random() % bytes.size())] = char(random());
      ExifReader reader;
      Load(&reader, bytes);
      ForEveryTag(reader, [](const char*, const QString&) {});
    }
    ExifReader reader;
    Load(&reader, sample.bytes);
    EXPECT_EQ(reader.Status(), "") << sample.name;
  }
}

}  // namespace
}  // namespace renvale::test

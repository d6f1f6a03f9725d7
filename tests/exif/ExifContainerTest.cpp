// Every container the reader knows gives the same tags for the same EXIF,
// in both byte orders; files without EXIF and damaged EXIF give the right
// kind of status. Loading through the file system: failures become status
// texts, and only the bytes needed are read, however big the file.

#include <gtest/gtest.h>

#include <cerrno>

#include "ExifTestBytes.h"
#include "metadata/ExifReader.h"
#include "metadata/ExifTexts.h"
#include "platform/ErrorNumbers.h"
#include "support/MemoryFileSystem.h"
#include "support/SampleImages.h"
#include "support/SampleRawFiles.h"

namespace renvale::test {
namespace {
using metadata::ExifReader;
using metadata::ExifTexts;

QByteArray Segment(quint8 marker, const QByteArray& payload) {
  return QByteArray("\xFF", 1) + char(marker) + Be16(quint16(payload.size() + 2)) + payload;
}

QByteArray ExifSegment(const ExifFields& fields, bool bigEndian) {
  return Segment(0xE1, QByteArray("Exif\0\0", 6) + MakeExifTiff(fields, bigEndian));
}

// A plain JPEG with `segments` put in right after its JFIF APP0.
QByteArray JpegAfterApp0(const QByteArray& segments) {
  QByteArray jpeg = MakeExifJpeg(nullptr);
  const int app0Length = (quint8(jpeg[4]) << 8) | quint8(jpeg[5]);
  return jpeg.insert(4 + app0Length, segments);
}

QByteArray PatchMagic(QByteArray tiff, const char* magic) { return tiff.replace(0, 4, QByteArray(magic, 4)); }

struct Container { const char* name; QByteArray (*make)(const ExifFields&, bool bigEndian); };

const Container kContainers[] = {
    {"JPEG, APP1 first", [](const ExifFields& f, bool be) { return MakeExifJpeg(&f, 32, 24, be); }},
    {"JPEG, APP1 after JFIF", [](const ExifFields& f, bool be) { return JpegAfterApp0(ExifSegment(f, be)); }},
    {"JPEG, after XMP and ICC",
     [](const ExifFields& f, bool be) {
       const QByteArray xmp = Segment(0xE1, "http://ns.adobe.com/xap/1.0/\0<x:xmpmeta/>");
       const QByteArray icc = Segment(0xE2, QByteArray("ICC_PROFILE\0", 12) + QByteArray(300, 'i'));
       return JpegAfterApp0(xmp + icc + ExifSegment(f, be));
     }},
    {"JPEG, fill bytes before the marker",
     [](const ExifFields& f, bool be) { return JpegAfterApp0(QByteArray("\xFF\xFF\xFF", 3) + ExifSegment(f, be)); }},
    {"JPEG, restart markers before the segment",
     [](const ExifFields& f, bool be) { return JpegAfterApp0(QByteArray("\xFF\xD0\xFF\xD7", 4) + ExifSegment(f, be)); }},
    {"TIFF", [](const ExifFields& f, bool be) { return MakeExifTiff(f, be); }},
    {"ORF", [](const ExifFields& f, bool be) { return PatchMagic(MakeExifTiff(f, be), be ? "MMOR" : "IIRO"); }},
    {"RAF", [](const ExifFields& f, bool be) { return MakeRafFile(MakeExifJpeg(&f, 32, 24, be)); }},
    {"MRW", [](const ExifFields& f, bool be) { return MakeMrwFile(MakeExifTiff(f, be)); }},
    {"X3F", [](const ExifFields& f, bool be) { return MakeX3fFile(MakeExifJpeg(&f, 32, 24, be)); }},
    {"CR3", [](const ExifFields& f, bool be) { return MakeCr3File(f, be); }},
    {"HEIF, iloc 0", [](const ExifFields& f, bool be) { return MakeHeifFile(MakeExifTiff(f, be), 0); }},
    {"HEIF, iloc 1", [](const ExifFields& f, bool be) { return MakeHeifFile(MakeExifTiff(f, be), 1); }},
    {"HEIF, iloc 2", [](const ExifFields& f, bool be) { return MakeHeifFile(MakeExifTiff(f, be), 2); }},
};

TEST(ExifContainers, EveryContainerGivesTheSameTagsInBothByteOrders) {
  const ExifFields fields = TypicalExifFields();
  for (const Container& container : kContainers) {
    for (const bool bigEndian : {false, true}) {
      const QByteArray file = container.make(fields, bigEndian);
      ExifReader reader;
      reader.LoadBytes(file.constData(), file.size());
      const std::string where = std::string(container.name) + (bigEndian ? ", big-endian" : ", little-endian");
      EXPECT_EQ(reader.Status().toStdString(), "") << where;
      const std::pair<const char*, QString> tags[] = {
          {"DateTimeOriginal", fields.dateTimeOriginal}, {"Make", fields.make}, {"Model", fields.model},
          {"ImageNumber", QString::number(fields.imageNumber)}, {"ExifVersion", "0221"},
          {"ExifImagelength", "2048"}, {"Fnumber", "f/5.6"}, {"ExposureBiasValue", "-0.67 EV"}};
      for (const auto& [tag, value] : tags) EXPECT_EQ(reader.Tag(tag), value) << where << ", " << tag;
    }
  }
}

TEST(ExifStatus, DamagedExifSaysSoWithoutEndingInNotFound) {
  const QByteArray badIfd0 = MakeExifTiff(TypicalExifFields(), false).replace(4, 4, Le32(0xFFFFFFF0));
  const QByteArray ifd0InHeader = MakeExifTiff(TypicalExifFields(), false).replace(4, 4, Le32(2));
  const struct { const char* name; QByteArray bytes; const char* status; } cases[] = {
      {"APP1 Exif with a bad TIFF header",
       JpegAfterApp0(Segment(0xE1, QByteArray("Exif\0\0XX*\0\x08\0\0\0", 14) + QByteArray(20, '\0'))),
       ExifTexts::kDamagedHeader},
      {"APP1 Exif too short for a header", JpegAfterApp0(Segment(0xE1, QByteArray("Exif\0\0II", 8))),
       ExifTexts::kDamagedHeader},
      {"APP1 with the signature only", JpegAfterApp0(Segment(0xE1, QByteArray("Exif\0\0", 6))),
       ExifTexts::kDamagedHeader},
      {"IFD0 past the end", badIfd0, ExifTexts::kDamagedIfd0},
      {"IFD0 inside the header", ifd0InHeader, ExifTexts::kDamagedIfd0},
      {"IFD0 past the end, in a JPEG", JpegAfterApp0(Segment(0xE1, QByteArray("Exif\0\0", 6) + badIfd0)),
       ExifTexts::kDamagedIfd0},
  };
  for (const auto& c : cases) {
    ExifReader reader;
    reader.LoadBytes(c.bytes.constData(), c.bytes.size());
    EXPECT_EQ(reader.Status().toStdString(), c.status) << c.name;
  }
}

constexpr qint64 kGiB = qint64(1) << 30;
// What a load may read at most: the head of the file and a few windows.
constexpr qint64 kReadBudget = 64 * 1024 + 4 * 8 * 1024;

// 1 GiB files: a TIFF-based raw whose Exif IFD lies 768 MiB in, and a JPEG.
// The EXIF is found, and only a few KiB read.
TEST(ExifFileLoad, HugeFilesAreNotReadWhole) {
  const quint32 exifAt = 768u << 20;
  const ExifFields fields = TypicalExifFields();
  const struct { const char* name; QByteArray head, atExif; QString make, date; } cases[] = {
      {"raw",
       Header() + Le16(2) + Entry(0x010F, 2, 4, 0x00636241) + Entry(0x8769, 4, 1, exifAt) + Le32(0),
       Le16(1) + Entry(0x9003, 2, 20, exifAt + 18) + Le32(0) + QByteArray("2010:01:02 03:04:05", 20), "Abc",
       "2010:01:02 03:04:05"},
      {"JPEG", MakeExifJpeg(&fields), {}, fields.make, fields.dateTimeOriginal},
  };
  for (const auto& c : cases) {
    MemoryFileSystem fs;
    fs.Add("/big", c.head, kGiB);
    if (!c.atExif.isEmpty()) fs.Put("/big", exifAt, c.atExif);
    ExifReader reader;
    reader.Load(fs, "/big");
    EXPECT_EQ(reader.Status(), "") << c.name;
    EXPECT_EQ(reader.Tag("Make"), c.make) << c.name;
    EXPECT_EQ(reader.Tag("DateTimeOriginal"), c.date) << c.name;
    EXPECT_LE(fs.bytesRead, kReadBudget) << c.name;
  }
}

// Failures are errors, never "no EXIF": a file that cannot be read must not
// silently get a date from elsewhere.
TEST(ExifFileLoad, OpenAndReadFailuresAreErrors) {
  const ExifFields fields = TypicalExifFields();
  const QByteArray head = Header() + Le16(1) + Entry(0x8769, 4, 1, 1u << 20) + Le32(0);
  const struct { const char* name; QByteArray path; int openError, readFailsAt; const char* statusStart; } cases[] = {
      {"missing file", "/missing.jpg", 0, -1, ExifTexts::kCannotOpen},
      {"access denied", "/a.jpg", platform::kAccessViolation, -1, ExifTexts::kCannotOpen},
      {"first read fails", "/a.jpg", 0, 0, ExifTexts::kCannotRead},
      {"later read fails", "/raw.tif", 0, 1, ExifTexts::kCannotRead},
  };
  for (const auto& c : cases) {
    MemoryFileSystem fs;
    fs.Add("/a.jpg", MakeExifJpeg(&fields));
    fs.Add("/raw.tif", head, 2 << 20);
    if (c.openError != 0) fs.FailOpen(c.path, c.openError);
    fs.readFailsAt = c.readFailsAt;
    ExifReader reader;
    reader.Load(fs, c.path);
    const QString status = reader.Status();
    EXPECT_TRUE(status.startsWith(c.statusStart)) << c.name << ": " << status.toStdString();
    EXPECT_GT(status.size(), qsizetype(strlen(c.statusStart))) << c.name << ": the system's reason is missing";
    EXPECT_FALSE(status.endsWith("not found.", Qt::CaseInsensitive)) << c.name;
    EXPECT_EQ(reader.Tag("Make"), "") << c.name;
  }
}

}  // namespace
}  // namespace renvale::test

// Every container the reader knows gives the same tags for the same EXIF,
// in both byte orders; files without EXIF and damaged EXIF give the right
// kind of status.

#include <gtest/gtest.h>

#include "metadata/ExifReader.h"
#include "metadata/ExifTexts.h"
#include "support/SampleImages.h"
#include "support/SampleRawFiles.h"

namespace renvale::test {
namespace {

using metadata::ExifReader;
using metadata::ExifTexts;

QByteArray Segment(quint8 marker, const QByteArray& payload) {
  const int length = int(payload.size()) + 2;
  return QByteArray("\xFF", 1) + char(marker) + char(length >> 8) + char(length & 0xFF) + payload;
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

struct Container {
  const char* name;
  QByteArray (*make)(const ExifFields&, bool bigEndian);
};

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
      EXPECT_EQ(reader.Tag("DateTimeOriginal"), fields.dateTimeOriginal) << where;
      EXPECT_EQ(reader.Tag("Make"), fields.make) << where;
      EXPECT_EQ(reader.Tag("Model"), fields.model) << where;
      EXPECT_EQ(reader.Tag("ImageNumber"), QString::number(fields.imageNumber)) << where;
      EXPECT_EQ(reader.Tag("ExifVersion"), "0221") << where;
      EXPECT_EQ(reader.Tag("ExifImagelength"), "2048") << where;
      EXPECT_EQ(reader.Tag("Fnumber"), "f/5.6") << where;
      EXPECT_EQ(reader.Tag("ExposureBiasValue"), "-0.67 EV") << where;
    }
  }
}

// Panasonic keeps the ISO speed in its own IFD0 tag; the standard tag in
// the Exif IFD still wins when both are there.
TEST(ExifContainers, Rw2IsoFromPanasonicTag) {
  ExifFields fields = TypicalExifFields();
  fields.iso = -1;
  TiffBuilder tiff = ExifTiffBuilder(fields, false);
  tiff.Short(TiffBuilder::Ifd::Zero, 0x0017, 80);
  const QByteArray rw2 = PatchMagic(tiff.Build(), "IIU\0");
  ExifReader reader;
  reader.LoadBytes(rw2.constData(), rw2.size());
  EXPECT_EQ(reader.Tag("DateTimeOriginal"), fields.dateTimeOriginal);
  EXPECT_EQ(reader.Tag("ISOSpeedRatings"), "80");

  tiff.Short(TiffBuilder::Ifd::Exif, 0x8827, 200);
  const QByteArray both = PatchMagic(tiff.Build(), "IIU\0");
  reader.LoadBytes(both.constData(), both.size());
  EXPECT_EQ(reader.Tag("ISOSpeedRatings"), "200");

  // In any other TIFF, 0x0017 is not ISO.
  tiff = ExifTiffBuilder(fields, false);
  tiff.Short(TiffBuilder::Ifd::Zero, 0x0017, 80);
  const QByteArray notRw2 = tiff.Build();
  reader.LoadBytes(notRw2.constData(), notRw2.size());
  EXPECT_EQ(reader.Tag("ISOSpeedRatings"), "");
}

TEST(ExifStatus, FilesWithoutExifEndInNotFound) {
  const QByteArray xmpOnly = JpegAfterApp0(Segment(0xE1, "http://ns.adobe.com/xap/1.0/\0<x/>"));
  const QByteArray exifAfterScan = MakeExifJpeg(nullptr) + ExifSegment(TypicalExifFields(), false);
  const struct {
    const char* name;
    QByteArray bytes;
  } cases[] = {
      {"empty file", QByteArray()},
      {"one byte", QByteArray("\xFF", 1)},
      {"JPEG without EXIF", MakeExifJpeg(nullptr)},
      {"JPEG with only XMP", xmpOnly},
      {"APP1 after the image data", exifAfterScan},
      {"JPEG cut after SOI", QByteArray("\xFF\xD8", 2)},
      {"CRW", QByteArray("II\x1A\0\0\0HEAPCCDR", 14) + QByteArray(200, '\0')},
      {"MP3", QByteArray("ID3\x03\0\0\0\0\0\0", 10) + QByteArray(200, '\0')},
      {"PNG", QByteArray("\x89PNG\r\n\x1A\n", 8) + QByteArray(100, '\0')},
      {"HEIF without an Exif item", QByteArray("\0\0\0\x10" "ftypheic\0\0\0\0", 16)},
      {"text", QByteArray("2004:07:15 18:03:09 is a date but not EXIF")},
  };
  for (const auto& c : cases) {
    ExifReader reader;
    reader.LoadBytes(c.bytes.constData(), c.bytes.size());
    EXPECT_TRUE(reader.Status().endsWith("not found.")) << c.name << ": " << reader.Status().toStdString();
    EXPECT_EQ(reader.Tag("DateTimeOriginal"), "") << c.name;
  }
}

TEST(ExifStatus, DamagedExifSaysSoWithoutEndingInNotFound) {
  const QByteArray good = MakeExifTiff(TypicalExifFields(), false);
  QByteArray badIfd0 = good;
  badIfd0.replace(4, 4, QByteArray("\xF0\xFF\xFF\xFF", 4));
  QByteArray ifd0InHeader = good;
  ifd0InHeader.replace(4, 4, QByteArray("\x02\0\0\0", 4));
  const struct {
    const char* name;
    QByteArray bytes;
    const char* status;
  } cases[] = {
      {"APP1 Exif with a bad TIFF header",
       JpegAfterApp0(Segment(0xE1, QByteArray("Exif\0\0XX*\0\x08\0\0\0", 14) + QByteArray(20, '\0'))),
       ExifTexts::kDamagedHeader},
      {"APP1 Exif too short for a header", JpegAfterApp0(Segment(0xE1, QByteArray("Exif\0\0II", 8))),
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
    EXPECT_FALSE(reader.Status().endsWith("not found.", Qt::CaseInsensitive)) << c.name;
  }
}

// A damaged Exif IFD is not a damaged file: IFD0's tags still count.
TEST(ExifStatus, BadExifPointerKeepsIfd0) {
  TiffBuilder tiff(true);
  tiff.Ascii(TiffBuilder::Ifd::Zero, 0x010F, "Canon");
  tiff.Long(TiffBuilder::Ifd::Zero, 0x8769, 0x7FFFFFF0);
  const QByteArray bytes = tiff.Build();
  ExifReader reader;
  reader.LoadBytes(bytes.constData(), bytes.size());
  EXPECT_EQ(reader.Status(), "");
  EXPECT_EQ(reader.Tag("Make"), "Canon");
  EXPECT_EQ(reader.Tag("DateTimeOriginal"), "");
}

TEST(ExifStatus, ALoadForgetsTheFileBefore) {
  const ExifFields fields = TypicalExifFields();
  const QByteArray withExif = MakeExifJpeg(&fields);
  const QByteArray without = MakeExifJpeg(nullptr);
  const QByteArray damaged = JpegAfterApp0(Segment(0xE1, QByteArray("Exif\0\0XXXXXXXX", 14)));
  ExifReader reader;
  reader.LoadBytes(damaged.constData(), damaged.size());
  reader.LoadBytes(withExif.constData(), withExif.size());
  EXPECT_EQ(reader.Status(), "");
  reader.LoadBytes(without.constData(), without.size());
  EXPECT_TRUE(reader.Status().endsWith("not found."));
  EXPECT_EQ(reader.Tag("Make"), "");
}

}  // namespace
}  // namespace renvale::test

// The texts the reader answers for each kind of value, read back from
// generated EXIF blocks in both byte orders.

#include <gtest/gtest.h>

#include <functional>

#include "metadata/ExifReader.h"
#include "metadata/ExifTagTable.h"
#include "support/TiffBuilder.h"

namespace renvale::test {
namespace {

using metadata::ExifReader;
using Ifd = TiffBuilder::Ifd;

struct Case {
  const char* tag;
  std::function<void(TiffBuilder&)> store;
  const char* expected;
};

void RunCases(const std::vector<Case>& cases) {
  for (const bool bigEndian : {false, true}) {
    for (const Case& c : cases) {
      TiffBuilder tiff(bigEndian);
      tiff.Ascii(Ifd::Zero, 0x010F, "Maker");  // keeps IFD0 non-empty
      c.store(tiff);
      const QByteArray bytes = tiff.Build();
      ExifReader reader;
      reader.LoadBytes(bytes.constData(), bytes.size());
      EXPECT_EQ(reader.Status(), "");
      EXPECT_EQ(reader.Tag(c.tag).toStdString(), c.expected)
          << c.tag << " expecting \"" << c.expected << "\"" << (bigEndian ? " (big-endian)" : "");
    }
  }
}

Case Rational(const char* tag, quint16 number, quint32 num, quint32 den, const char* expected) {
  return {tag, [=](TiffBuilder& t) { t.Rational(Ifd::Exif, number, num, den); }, expected};
}

Case SRational(const char* tag, quint16 number, qint32 num, qint32 den, const char* expected) {
  return {tag, [=](TiffBuilder& t) { t.SRational(Ifd::Exif, number, num, den); }, expected};
}

Case Short(const char* tag, Ifd ifd, quint16 number, quint16 value, const char* expected) {
  return {tag, [=](TiffBuilder& t) { t.Short(ifd, number, value); }, expected};
}

Case Text(const char* tag, Ifd ifd, quint16 number, const QByteArray& value, const char* expected) {
  return {tag, [=](TiffBuilder& t) { t.Ascii(ifd, number, value); }, expected};
}

TEST(ExifValueText, EachKindOfValueInItsOwnNotation) {
  RunCases({
      // photographic values in the usual notation
      Rational("Fnumber", 0x829D, 56, 10, "f/5.6"),
      Rational("Fnumber", 0x829D, 14, 1, "f/14"),
      Rational("Fnumber", 0x829D, 168, 100, "f/1.7"),
      Rational("Fnumber", 0x829D, 0, 0, ""),  // "unknown" in EXIF
      Rational("ApertureValue", 0x9202, 6, 1, "f/8"),
      Rational("ApertureValue", 0x9202, 497, 100, "f/5.6"),
      SRational("ShutterSpeedValue", 0x9201, 8, 1, "1/256 s"),
      SRational("ShutterSpeedValue", 0x9201, 7965784, 1000000, "1/250 s"),
      SRational("ShutterSpeedValue", 0x9201, 2, 1, "1/4 s"),
      SRational("ShutterSpeedValue", 0x9201, 1, 1, "0.5 s"),
      SRational("ShutterSpeedValue", 0x9201, 0, 1, "1 s"),
      SRational("ShutterSpeedValue", 0x9201, -5, 1, "32 s"),
      SRational("ShutterSpeedValue", 0x9201, 1000, 1, ""),  // no camera is that fast
      SRational("ShutterSpeedValue", 0x9201, INT32_MIN, -1, ""),
      SRational("ExposureBiasValue", 0x9204, -2, 3, "-0.67 EV"),
      SRational("ExposureBiasValue", 0x9204, 1, 3, "+0.33 EV"),
      SRational("ExposureBiasValue", 0x9204, 7, 10, "+0.7 EV"),
      SRational("ExposureBiasValue", 0x9204, 0, 1, "0 EV"),
      SRational("ExposureBiasValue", 0x9204, -1, 1000, "0 EV"),  // no "-0"
      SRational("ExposureBiasValue", 0x9204, 1, 0, ""),
      Rational("FocalLength", 0x920A, 50, 1, "50 mm"),
      Rational("FocalLength", 0x920A, 74, 10, "7.4 mm"),
      Rational("FocalLength", 0x920A, 0, 1, ""),
      // coded values in words
      Short("Flash", Ifd::Exif, 0x9209, 0, "No flash"),
      Short("Flash", Ifd::Exif, 0x9209, 1, "Fired"),
      Short("Flash", Ifd::Exif, 0x9209, 5, "Fired, return not detected"),
      Short("Flash", Ifd::Exif, 0x9209, 7, "Fired, return detected"),
      Short("Flash", Ifd::Exif, 0x9209, 16, "Off, did not fire"),
      Short("Flash", Ifd::Exif, 0x9209, 24, "Auto, did not fire"),
      Short("Flash", Ifd::Exif, 0x9209, 32, "No flash function"),
      Short("Flash", Ifd::Exif, 0x9209, 73, "On, fired, red-eye reduction"),
      Short("Flash", Ifd::Exif, 0x9209, 0x5F, "Auto, fired, return detected, red-eye reduction"),
      Short("Flash", Ifd::Exif, 0x9209, 0x80, "Unknown"),  // undefined bits set
      Short("Flash", Ifd::Exif, 0x9209, 0xFF41, "Unknown"),
      Short("ExposureProgram", Ifd::Exif, 0x8822, 1, "Manual"),
      Short("ExposureProgram", Ifd::Exif, 0x8822, 8, "Landscape mode"),
      Short("ExposureProgram", Ifd::Exif, 0x8822, 9, "Unknown (9)"),
      // numbers and texts
      {"ImageNumber", [](TiffBuilder& t) { t.Long(Ifd::Exif, 0x9211, 0xFFFFFFFFu); }, "4294967295"},
      {"ImageNumber", [](TiffBuilder& t) { t.Long(Ifd::Zero, 0x9211, 1170123); }, "1170123"},  // TIFF/EP place
      Short("ExifImageWidth", Ifd::Exif, 0xA002, 640, "640"),
      {"ExifImagelength", [](TiffBuilder& t) { t.Long(Ifd::Exif, 0xA003, 4000); }, "4000"},
      Short("ISOSpeedRatings", Ifd::Exif, 0x8827, 12800, "12800"),
      {"ExifVersion", [](TiffBuilder& t) { t.Undefined(Ifd::Exif, 0x9000, "0232"); }, "0232"},
      {"ExifVersion", [](TiffBuilder& t) { t.Undefined(Ifd::Exif, 0x9000, QByteArray("02\0\0", 4)); }, ""},
      Text("Model", Ifd::Zero, 0x0110, "EOS 10D   ", "EOS 10D"),
      Text("Model", Ifd::Zero, 0x0110, QByteArray("EOS\0junk", 8), "EOS"),
      Text("Model", Ifd::Zero, 0x0110, "Tab\there", "Tabhere"),
      Text("Model", Ifd::Zero, 0x0110, "\xC3\x91ikon", "Ñikon"),     // UTF-8
      Text("Model", Ifd::Zero, 0x0110, "\xD1ikon", "Ñikon"),         // Latin-1
      Text("DateTimeOriginal", Ifd::Exif, 0x9003, "2004:07:15 18:03:09", "2004:07:15 18:03:09"),
      // Unknown dates are written as blanks and colons; no digit, no date.
      Text("DateTimeOriginal", Ifd::Exif, 0x9003, "    :  :     :  :  ", ""),
      Text("DateTimeOriginal", Ifd::Exif, 0x9003, "0000:00:00 00:00:00", "0000:00:00 00:00:00"),
      Text("DateTimeOriginal", Ifd::Zero, 0x9003, "2001:02:03 04:05:06", "2001:02:03 04:05:06"),
      // Phones and editors that write other separators, and blanks around.
      Text("DateTimeOriginal", Ifd::Exif, 0x9003, "2020-04-24 17:44:15 ", "2020:04:24 17:44:15"),
      Text("DateTimeOriginal", Ifd::Exif, 0x9003, " 2020/04/24  17:44:15", "2020:04:24 17:44:15"),
      Text("DateTimeOriginal", Ifd::Exif, 0x9003, "2020.04.24 17:44:15", "2020:04:24 17:44:15"),
      // Still no date: left as written, for the date source to pass over.
      Text("DateTimeOriginal", Ifd::Exif, 0x9003, "2020-02-30 17:44:15", "2020-02-30 17:44:15"),
      Text("DateTimeOriginal", Ifd::Exif, 0x9003, "2020-04-24 17.44.15", "2020-04-24 17.44.15"),
      Text("DateTimeOriginal", Ifd::Exif, 0x9003, "2020-04-24 17:44:15 x", "2020-04-24 17:44:15 x"),
      // A number where text belongs is not taken for text.
      Short("Model", Ifd::Zero, 0x0110, 7, ""),
      // Only the sixteen names answer, spelled exactly.
      Rational("FNumber", 0x829D, 28, 10, ""),
      {"ExifImageLength", [](TiffBuilder& t) { t.Long(Ifd::Exif, 0xA003, 480); }, ""},
      Text("Software", Ifd::Zero, 0x0131, "Software is not one of ours", ""),
      Text("", Ifd::Zero, 0x0131, "Software is not one of ours", ""),
  });
}

// The number lookup is written out for speed; it must agree with the table.
TEST(ExifTagTable, NumberAndNameLookupsAgreeWithTheTable) {
  using metadata::ExifTag;
  using metadata::ExifTagTable;
  for (int i = 0; i < ExifTagTable::kCount; ++i) {
    const auto tag = ExifTag(i);
    ExifTag found = ExifTag(0);
    EXPECT_TRUE(ExifTagTable::FromNumber(ExifTagTable::Number(tag), &found)) << ExifTagTable::Name(tag);
    EXPECT_EQ(found, tag) << ExifTagTable::Name(tag);
    EXPECT_TRUE(ExifTagTable::FromName(QString::fromLatin1(ExifTagTable::Name(tag)), &found));
    EXPECT_EQ(found, tag) << ExifTagTable::Name(tag);
  }
  ExifTag unused;
  EXPECT_FALSE(ExifTagTable::FromNumber(ExifTagTable::kExifIfdPointer, &unused));
  EXPECT_FALSE(ExifTagTable::FromNumber(0x0132, &unused));  // DateTime, not DateTimeOriginal
}

}  // namespace
}  // namespace renvale::test

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

struct Case { const char* tag; std::function<void(TiffBuilder&)> store; const char* expected; };

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
  const auto fNumber = [](quint32 num, quint32 den, const char* text) {
    return Rational("Fnumber", 0x829D, num, den, text);
  };
  const auto shutter = [](qint32 num, qint32 den, const char* text) {
    return SRational("ShutterSpeedValue", 0x9201, num, den, text);
  };
  const auto bias = [](qint32 num, qint32 den, const char* text) {
    return SRational("ExposureBiasValue", 0x9204, num, den, text);
  };
  const auto flash = [](quint16 value, const char* words) { return Short("Flash", Ifd::Exif, 0x9209, value, words); };
  const auto model = [](const QByteArray& written, const char* text) {
    return Text("Model", Ifd::Zero, 0x0110, written, text);
  };
  const auto date = [](const QByteArray& written, const char* text) {
    return Text("DateTimeOriginal", Ifd::Exif, 0x9003, written, text);
  };
  RunCases({
      // photographic values in the usual notation
      fNumber(56, 10, "f/5.6"), fNumber(14, 1, "f/14"), fNumber(168, 100, "f/1.7"),
      fNumber(0, 0, ""),  // "unknown" in EXIF
      Rational("ApertureValue", 0x9202, 6, 1, "f/8"), Rational("ApertureValue", 0x9202, 497, 100, "f/5.6"),
      shutter(8, 1, "1/256 s"), shutter(7965784, 1000000, "1/250 s"), shutter(2, 1, "1/4 s"), shutter(1, 1, "0.5 s"),
      shutter(0, 1, "1 s"), shutter(-5, 1, "32 s"), shutter(INT32_MIN, -1, ""),
      shutter(1000, 1, ""),  // no camera is that fast
      bias(-2, 3, "-0.67 EV"), bias(1, 3, "+0.33 EV"), bias(7, 10, "+0.7 EV"), bias(0, 1, "0 EV"), bias(1, 0, ""),
      bias(-1, 1000, "0 EV"),  // no "-0"
      Rational("FocalLength", 0x920A, 50, 1, "50 mm"), Rational("FocalLength", 0x920A, 74, 10, "7.4 mm"),
      Rational("FocalLength", 0x920A, 0, 1, ""),
      // coded values in words
      flash(0, "No flash"), flash(1, "Fired"), flash(5, "Fired, return not detected"),
      flash(7, "Fired, return detected"), flash(16, "Off, did not fire"), flash(24, "Auto, did not fire"),
      flash(32, "No flash function"), flash(73, "On, fired, red-eye reduction"),
      flash(0x5F, "Auto, fired, return detected, red-eye reduction"),
      flash(0x80, "Unknown"), flash(0xFF41, "Unknown"),  // undefined bits set
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
      model("EOS 10D   ", "EOS 10D"), model(QByteArray("EOS\0junk", 8), "EOS"), model("Tab\there", "Tabhere"),
      model("\xC3\x91ikon", "Ñikon"), model("\xD1ikon", "Ñikon"),  // UTF-8, Latin-1
      date("2004:07:15 18:03:09", "2004:07:15 18:03:09"), date("0000:00:00 00:00:00", "0000:00:00 00:00:00"),
      Text("DateTimeOriginal", Ifd::Zero, 0x9003, "2001:02:03 04:05:06", "2001:02:03 04:05:06"),
      // Unknown dates are written as blanks and colons; no digit, no date.
      date("    :  :     :  :  ", ""),
      // Phones and editors that write other separators, and blanks around.
      date("2020-04-24 17:44:15 ", "2020:04:24 17:44:15"), date(" 2020/04/24  17:44:15", "2020:04:24 17:44:15"),
      date("2020.04.24 17:44:15", "2020:04:24 17:44:15"), date("2020-04:24 17:44:15", "2020:04:24 17:44:15"),
      // Still no date: left as written, for the date source to pass over.
      date("2020-02-30 17:44:15", "2020-02-30 17:44:15"), date("2020-04-24 17.44.15", "2020-04-24 17.44.15"),
      date("2020-04-24 17:44:15 x", "2020-04-24 17:44:15 x"),
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

// A reader that needs a few tags, as a batch does, leaves the others absent.
TEST(ExifReader, TakesOnlyTheTagsAskedFor) {
  TiffBuilder tiff(false);
  tiff.Ascii(Ifd::Zero, 0x010F, "Maker");
  tiff.Ascii(Ifd::Zero, 0x0110, "Model X");
  tiff.Ascii(Ifd::Exif, 0x9003, "2004:07:01 10:11:12");
  const QByteArray bytes = tiff.Build();
  ExifReader reader;
  reader.TakeOnly({metadata::ExifTag::Model, metadata::ExifTag::DateTimeOriginal});
  reader.LoadBytes(bytes.constData(), bytes.size());
  EXPECT_EQ(reader.Status(), "");
  EXPECT_EQ(reader.Tag("Make"), "");
  EXPECT_EQ(reader.Tag("Model"), "Model X");
  EXPECT_EQ(reader.Tag("DateTimeOriginal"), "2004:07:01 10:11:12");
}

}  // namespace
}  // namespace renvale::test

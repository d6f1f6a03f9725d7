#include <gtest/gtest.h>

#include "QStringPrinter.h"

#include "metadata/DateSource.h"
#include "metadata/FileDates.h"
#include "metadata/HeadScan.h"
#include "support/MemoryFileSystem.h"
#include "support/SampleImages.h"
#include "support/SampleRaw.h"

namespace renvale::test {
namespace {

using metadata::FindDateShapes;
using metadata::ScanDateInHead;

const char kOne[] = "2003:01:02 03:04:05";
const char kTwo[] = "2004:07:15 18:03:09";
const char kThree[] = "2005:12:31 23:59:59";

QString Scan(const QByteArray& head) { return ScanDateInHead(head.constData(), head.size()); }

TEST(HeadScan, TakesTheSecondDateShapedText) {
  struct Case {
    QByteArray head;
    QString expected;
  } cases[] = {
      {"", ""},
      {"no dates here: 12:34", ""},
      {QByteArray("x") + kOne + "y", kOne},
      {QByteArray(kOne) + kTwo, kTwo},                             // back to back
      {QByteArray(kOne) + "\0" + kTwo + "\0" + kThree, kTwo},      // three: the second
      {QByteArray("2004:07:15 18:03:0") + "x " + kThree, kThree},  // near miss, then one
      {QByteArray("2004:07:15 18:03:") , ""},                      // cut at the end
      {QByteArray(":") + kOne, kOne},                              // colon before the start
      {QByteArray("2004-07-15 18:03:09"), ""},                     // hyphens are not the shape
      {QByteArray("1234:56:78 90:12:34"), "1234:56:78 90:12:34"},  // any digits match
  };
  for (const auto& c : cases) EXPECT_EQ(Scan(c.head), c.expected) << c.head.constData();
}

TEST(HeadScan, ASecondShapeMayShareTheFirstOnesLastDigits) {
  // The search goes on at the first one's last digit, so a shape that
  // begins there is still found.
  const QByteArray shared = "2004:07:15 18:03:0912:01:02 03:04:05";
  const auto shapes = FindDateShapes(shared.constData(), shared.size());
  EXPECT_EQ(shapes.first, "2004:07:15 18:03:09");
  EXPECT_EQ(shapes.second, "0912:01:02 03:04:05");
}

TEST(HeadScan, NeverLooksPastTheLengthGiven) {
  const QByteArray bytes = QByteArray(kOne) + kTwo;
  EXPECT_EQ(ScanDateInHead(bytes.constData(), 19 + 18), kOne);
  EXPECT_EQ(ScanDateInHead(bytes.constData(), 0), "");
  EXPECT_EQ(ScanDateInHead(nullptr, 10), "");
}

TEST(ThmCompanion, FoundBesideACrwFileOnly) {
  MemoryFileSystem fs;
  fs.Add("/p/IMG_1.CRW", MakeCrw());
  fs.Add("/p/IMG_1.thm", "x");
  fs.Add("/p/IMG_2.crw", MakeCrw());
  fs.Add("/p/IMG_3.jpg", "x");
  const std::pair<const char*, const char*> cases[] = {
      {"IMG_1.CRW", "IMG_1.thm"}, {"IMG_2.crw", "IMG_2.crw"}, {"IMG_3.jpg", "IMG_3.jpg"}, {"crw", "crw"},
      {".crw", ".crw"}};
  for (const auto& [name, partner] : cases) EXPECT_EQ(metadata::ThmCompanionName(fs, "/p/", name), partner) << name;
}

TEST(ThmCompanion, UpperCasePartnerDependsOnTheFileSystem) {
  for (const bool foldCase : {false, true}) {
    MemoryFileSystem fs(foldCase);
    fs.Add("/p/IMG_1.CRW", MakeCrw());
    fs.Add("/p/IMG_1.THM", MakeThm(kTwo, kOne));
    EXPECT_EQ(metadata::ThmCompanionName(fs, "/p", "IMG_1.CRW"),
              foldCase ? "IMG_1.thm" : "IMG_1.CRW");
    EXPECT_EQ(metadata::ScanExifDateInHead(fs, "/p", "IMG_1.CRW"), foldCase ? kTwo : "");
  }
}

TEST(DateSource, CrwIsScannedThroughItsThmPartner) {
  MemoryFileSystem fs;
  fs.Add("/p/a.crw", MakeCrw({kThree}));
  fs.Add("/p/a.thm", MakeThm(kTwo, kOne));
  fs.Add("/p/b.crw", MakeCrw({kThree}));
  EXPECT_EQ(metadata::ScanExifDateInHead(fs, "/p/", "a.crw"), kTwo);
  EXPECT_EQ(metadata::ScanExifDateInHead(fs, "/p/", "b.crw"), kThree);  // a lone CRW itself
  EXPECT_EQ(metadata::ScanExifDateInHead(fs, "/p/", "missing.crw"), "");
}

TEST(DateSource, OnlyTheFirst2000BytesAreScanned) {
  MemoryFileSystem fs;
  fs.Add("/p/late.bin", QByteArray(1982, 'x') + kOne);  // ends at byte 2001
  fs.Add("/p/edge.bin", QByteArray(1981, 'x') + kOne);  // ends at byte 2000
  EXPECT_EQ(metadata::ScanExifDateInHead(fs, "/p/", "late.bin"), "");
  EXPECT_EQ(metadata::ScanExifDateInHead(fs, "/p/", "edge.bin"), kOne);
  EXPECT_EQ(metadata::ReadFileHead(fs, "/p/late.bin", 2000).size(), 2000);
  EXPECT_EQ(metadata::ReadFileHead(fs, "/p/late.bin").size(), 2001);
  EXPECT_EQ(metadata::ReadFileHead(fs, "/p/nothing.bin", 2000), QByteArray());
}

TEST(FileDates, UtcMovesByWholeHours) {
  const QDateTime utc(QDate(2004, 12, 31), QTime(23, 30, 0), Qt::UTC);
  EXPECT_EQ(metadata::FileTimeText(utc, 0), "2004:12:31 23:30:00");
  EXPECT_EQ(metadata::FileTimeText(utc, 2), "2005:01:01 01:30:00");
  EXPECT_EQ(metadata::FileTimeText(utc, -5), "2004:12:31 18:30:00");
  EXPECT_EQ(metadata::FileTimeText(QDateTime(), 0), "");
  const int offset = QDateTime::currentDateTime().offsetFromUtc();
  EXPECT_EQ(metadata::LocalClockOffsetHours(), offset / 3600);
}

TEST(FileDates, OldestOfCreatedAndModified) {
  EXPECT_EQ(metadata::OlderDateTimeText(kOne, kTwo), kOne);
  EXPECT_EQ(metadata::OlderDateTimeText(kTwo, kOne), kOne);
  EXPECT_EQ(metadata::OlderDateTimeText("2004:07:15 18:03:09", "2004:07:15 18:03:09 "),
            "2004:07:15 18:03:09");  // a tie goes to Created
  EXPECT_EQ(metadata::OlderDateTimeText("", kTwo), kTwo);
  EXPECT_EQ(metadata::OlderDateTimeText(kTwo, ""), kTwo);

  MemoryFileSystem fs;
  fs.Add("/p/f", "x");
  const QDateTime created(QDate(2004, 7, 15), QTime(18, 3, 9), Qt::UTC);
  fs.SetTimes("/p/f", created, created.addSecs(-3600));
  const int h = metadata::LocalClockOffsetHours();
  EXPECT_EQ(metadata::FileCreatedText(fs, "/p/f"), metadata::FileTimeText(created, h));
  EXPECT_EQ(metadata::OldestFileDateTime(fs, "/p/f"),
            metadata::FileTimeText(created.addSecs(-3600), h));
  EXPECT_EQ(metadata::OldestFileDateTime(fs, "/p/missing"), "");
}

TEST(DateSource, FallsBackFromExifToScanToFileDates) {
  MemoryFileSystem fs;
  fs.Add("/p/scan.jpg", QByteArray("head ") + kOne + " " + kThree);
  fs.Add("/p/plain.jpg", "no dates");
  const QDateTime modified(QDate(2001, 2, 3), QTime(4, 5, 6), Qt::UTC);
  fs.SetTimes("/p/plain.jpg", modified.addDays(1), modified);
  const QString own = metadata::FileTimeText(modified, metadata::LocalClockOffsetHours());
  EXPECT_EQ(metadata::ExposureDateTime(fs, "/p/", "scan.jpg", kTwo), kTwo);
  EXPECT_EQ(metadata::ExposureDateTime(fs, "/p/", "scan.jpg", ""), kThree);
  EXPECT_EQ(metadata::ExposureDateTime(fs, "/p/", "plain.jpg", ""), own);
  // A camera whose clock was never set writes zeros: not a date.
  EXPECT_EQ(metadata::ExposureDateTime(fs, "/p/", "plain.jpg", "0000:00:00 00:00:00"), own);
  fs.Add("/p/zeros.jpg", "0000:00:00 00:00:00");
  fs.SetTimes("/p/zeros.jpg", modified, modified);
  EXPECT_EQ(metadata::ExposureDateTime(fs, "/p/", "zeros.jpg", ""), own);
  EXPECT_EQ(metadata::ExposureDateTime(fs, "/p/", "gone.jpg", ""), "");
}

}  // namespace
}  // namespace renvale::test

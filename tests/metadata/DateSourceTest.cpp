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

TEST(HeadScan, NeverLooksPastTheLengthGiven) {
  const QByteArray bytes = QByteArray(kOne) + kTwo;
  EXPECT_EQ(ScanDateInHead(bytes.constData(), 19 + 18), kOne);
  EXPECT_EQ(ScanDateInHead(bytes.constData(), 0), "");
  EXPECT_EQ(ScanDateInHead(nullptr, 10), "");
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

// Each row also says where the date came from, which the preview and the
// report show: a wrong origin would tell a photographer the wrong story.
TEST(DateSource, FallsBackFromExifToScanToFileDatesAndSaysWhichWasUsed) {
  using metadata::DateOrigin;
  MemoryFileSystem fs;
  fs.Add("/p/scan.jpg", QByteArray("head ") + kOne + " " + kThree);
  fs.Add("/p/plain.jpg", "no dates");
  fs.Add("/p/old.jpg", "no dates");
  fs.Add("/p/zeros.jpg", "0000:00:00 00:00:00");
  fs.Add("/p/IMG_1.CRW", MakeCrw());
  fs.Add("/p/IMG_1.thm", MakeThm(kTwo, kOne));
  const QDateTime modified(QDate(2001, 2, 3), QTime(4, 5, 6), Qt::UTC);
  fs.SetTimes("/p/plain.jpg", modified.addDays(1), modified);
  fs.SetTimes("/p/old.jpg", modified.addDays(-1), modified);
  fs.SetTimes("/p/zeros.jpg", modified, modified);  // a tie goes to the creation time
  const int offset = metadata::LocalClockOffsetHours();
  const QString own = metadata::FileTimeText(modified, offset);
  const QString older = metadata::FileTimeText(modified.addDays(-1), offset);
  const struct {
    const char* name;
    const char* original;
    QString when;
    DateOrigin origin;
  } rows[] = {
      {"scan.jpg", kTwo, kTwo, DateOrigin::ExifOriginal},
      {"scan.jpg", "", kThree, DateOrigin::FileHead},
      {"IMG_1.CRW", "", kTwo, DateOrigin::ThmPartner},
      {"plain.jpg", "", own, DateOrigin::Modified},
      // A camera whose clock was never set writes zeros: not a date.
      {"plain.jpg", "0000:00:00 00:00:00", own, DateOrigin::Modified},
      {"old.jpg", "", older, DateOrigin::Created},
      {"zeros.jpg", "", own, DateOrigin::Created},
      {"gone.jpg", "", "", DateOrigin::None},
  };
  for (const auto& row : rows) {
    const metadata::DatedExposure dated = metadata::DatedExposureTime(fs, "/p/", row.name, row.original);
    EXPECT_EQ(dated.when, row.when) << row.name;
    EXPECT_EQ(dated.origin, row.origin) << row.name;
    EXPECT_EQ(metadata::ExposureDateTime(fs, "/p/", row.name, row.original), row.when) << row.name;
  }
  EXPECT_EQ(metadata::DateOriginText(DateOrigin::ThmPartner), "the THM partner's date");
}

}  // namespace
}  // namespace renvale::test

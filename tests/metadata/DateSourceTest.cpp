// Where a date comes from: the file-head scan, the THM partner, the
// recorded dates of generated QuickTime and AVI files, and the file times.

#include <gtest/gtest.h>

#include "QStringPrinter.h"

#include <QDateTime>
#include <ctime>

#include "metadata/DateSource.h"
#include "metadata/FileDates.h"
#include "metadata/HeadScan.h"
#include "metadata/MemoryByteSource.h"
#include "metadata/VideoDateReader.h"
#include "support/Bytes.h"
#include "support/MemoryFileSystem.h"
#include "support/SampleMedia.h"
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
  struct Case { QByteArray head; QString expected; } cases[] = {
      {"", ""}, {"no dates here: 12:34", ""}, {QByteArray("x") + kOne + "y", kOne},
      {QByteArray(kOne) + kTwo, kTwo},                             // back to back
      {QByteArray(kOne) + "\0" + kTwo + "\0" + kThree, kTwo},      // three: the second
      {QByteArray("2004:07:15 18:03:0") + "x " + kThree, kThree},  // near miss, then one
      {QByteArray("2004:07:15 18:03:") , ""},                      // cut at the end
      {QByteArray(":") + kOne, kOne},                              // colon before the start
      {QByteArray("2004-07-15 18:03:09"), ""},                     // hyphens are not the shape
      {QByteArray("1234:56:78 90:12:34"), "1234:56:78 90:12:34"},  // any digits match
  };
  for (const auto& c : cases) EXPECT_EQ(Scan(c.head), c.expected) << c.head.constData();
  // It never looks past the length given.
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
    EXPECT_EQ(metadata::ThmCompanionName(fs, "/p", "IMG_1.CRW"), foldCase ? "IMG_1.thm" : "IMG_1.CRW");
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
  const struct { const char* name; const char* original; QString when; DateOrigin origin; } rows[] = {
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

constexpr quint64 kUnixIn1904 = 2082844800;
constexpr quint64 k2005 = 3206613834;  // 2005-08-11 14:03:54 UTC
const QString kLocal2005 = "2005:08:11 19:03:54";

// Five hours east of UTC all year, so that a time left in UTC shows.
struct FixedZone {
  FixedZone() { qputenv("TZ", "UTC-5"); tzset(); }
  ~FixedZone() { qunsetenv("TZ"); tzset(); }
};

QString DateOf(const QByteArray& bytes) {
  metadata::MemoryByteSource source(bytes.constData(), bytes.size());
  return metadata::VideoDateReader::Read(source);
}

TEST(VideoDate, QuickTimeKeyThenMovieHeader) {
  const FixedZone zone;
  const std::pair<MovieFields, QString> cases[] = {
      {{.created = k2005}, kLocal2005},
      {{.created = k2005, .longTimes = true}, kLocal2005},
      {{.created = k2005, .ftyp = false}, kLocal2005},  // an old MOV: "moov" first
      {{.created = k2005, .mdatFirst = true}, kLocal2005},
      {{.created = 0}, ""},            // clock never set
      {{.created = kUnixIn1904}, ""},  // a 1970 time stored as a 1904 one
      {{.created = ~0ull, .longTimes = true}, ""},
      {{.created = k2005, .keyDate = "2019-03-10T14:22:05+0100"}, "2019:03:10 14:22:05"},  // its own local time
      {{.keyDate = "2019-03-10T14:22:05-0800", .isoMeta = true}, "2019:03:10 14:22:05"},
      {{.created = k2005, .keyDate = "2019-13-10T14:22:05+0100"}, kLocal2005},  // impossible: falls through
  };
  for (const auto& [movie, expected] : cases) EXPECT_EQ(DateOf(MakeQuickTimeMovie(movie)), expected) << movie.created;
}

TEST(VideoDate, AviIditChunk) {
  const std::pair<QByteArray, QString> cases[] = {
      {QByteArray("Mon Mar 10 15:04:43 2003\n\0", 26), "2003:03:10 15:04:43"},
      {QByteArray("2009/10/27 12:14:34\0", 20), "2009:10:27 12:14:34"},
      {"2009:10:27 12:14:34", "2009:10:27 12:14:34"},
      {"Mon Foo 10 15:04:43 2003", ""}, {"Mon Feb 30 15:04:43 2003", ""}, {"", ""}};
  for (const auto& [idit, expected] : cases) {
    EXPECT_EQ(DateOf(MakeAvi(idit)), expected) << idit.constData();
    EXPECT_EQ(DateOf(MakeAvi(idit, true)), expected) << idit.constData();
  }
}

TEST(DateSource, VideoFilesTakeTheirRecordedDateFirst) {
  const FixedZone zone;
  MemoryFileSystem fs;
  const QByteArray movie = MakeQuickTimeMovie({.created = k2005});
  fs.Add("/p/clip.MOV", movie);
  fs.Add("/p/clip.jpg", movie);  // not a video name: never looked at as one
  fs.Add("/p/unset.mp4", MakeQuickTimeMovie({.created = 0}));
  fs.Add("/p/phone.avi", MakeAvi("2009/10/27 12:14:34"));
  // A 3 GB recording before its "moov": only the boxes on the way are read.
  const qint64 mdat = qint64(3) << 30;
  fs.Add("/p/big.mov", QByteArray("\0\0\0\x01mdat", 8), mdat + movie.size());
  fs.Put("/p/big.mov", 8, Bytes(quint64(mdat), true));
  fs.Put("/p/big.mov", mdat, movie);
  const QDateTime modified(QDate(2001, 2, 3), QTime(4, 5, 6), Qt::UTC);
  for (const char* path : {"/p/clip.jpg", "/p/unset.mp4"}) fs.SetTimes(path, modified, modified);
  const QString own = metadata::FileTimeText(modified, metadata::LocalClockOffsetHours());
  EXPECT_EQ(metadata::ExposureDateTime(fs, "/p/", "clip.MOV", ""), kLocal2005);
  EXPECT_EQ(metadata::ExposureDateTime(fs, "/p/", "phone.avi", ""), "2009:10:27 12:14:34");
  fs.bytesRead = 0;
  EXPECT_EQ(metadata::VideoDateReader::ReadFile(fs, "/p/big.mov"), kLocal2005);
  EXPECT_LT(fs.bytesRead, 64 * 1024);
  EXPECT_EQ(metadata::ExposureDateTime(fs, "/p/", "clip.jpg", ""), own);
  EXPECT_EQ(metadata::ExposureDateTime(fs, "/p/", "unset.mp4", ""), own);
}

}  // namespace
}  // namespace renvale::test

// The recorded dates of generated QuickTime and AVI files, and their place
// at the head of the date source.

#include <gtest/gtest.h>

#include "QStringPrinter.h"

#include <QDateTime>
#include <ctime>

#include "metadata/AviDateReader.h"
#include "metadata/DateSource.h"
#include "metadata/FileDates.h"
#include "metadata/MemoryByteSource.h"
#include "metadata/VideoDateReader.h"
#include "support/MemoryFileSystem.h"
#include "support/SampleMedia.h"

namespace renvale::test {
namespace {

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
  QByteArray largeSize(8, '\0');
  for (int i = 0; i < 8; ++i) largeSize[i] = char(mdat >> (56 - 8 * i));
  fs.Put("/p/big.mov", 8, largeSize);
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

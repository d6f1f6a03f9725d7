// Compares the ID3v2 and video date readers with ExifTool's reading of real
// files ($RENVALE_TESTDATA: id3v2-oracle.csv over mp3/, video-oracle.csv over
// video/). Where we read differently on purpose, the row says why.

#include <gtest/gtest.h>

#include "QStringPrinter.h"

#include <QDateTime>
#include <QFile>
#include <memory>

#include "metadata/FileByteSource.h"
#include "metadata/Id3v2Reader.h"
#include "metadata/VideoDateReader.h"
#include "platform/FileSystem.h"
#include "support/OracleCsv.h"

namespace renvale::test {
namespace {

// Where we read a file differently from ExifTool, and why. The test holds
// us to our own reading there, so a change in either shows up.
struct Difference {
  const char *file, *column, *ours, *why;
} constexpr kDifferences[] = {
    {"mutagen__id3v1v2-combined.mp3", "year", "2004",
     "the 2.4 tag holds a 2.3 year frame (TYER); ExifTool reads only 2.4's TDRC there, we take the year "
     "whatever version's frame holds it"},
    {"exiftool__Pentax.avi", "riff_original", "2009:10:27 12:14:34",
     "the camera wrote \"2009/10/27 12:14:34\"; ExifTool reads that layout as hours and minutes only and "
     "shows 12:14:00, we keep the seconds the camera wrote"},
};

QString Expected(const OracleRow& row, const QString& column) {
  for (const Difference& d : kDifferences) {
    if (row["file"] == QLatin1String(d.file) && column == QLatin1String(d.column)) return d.ours;
  }
  return row[column];
}

// The rows of `csv` with each file's path (in `subfolder`) under "path".
std::vector<OracleRow> Rows(const QString& csv, const QString& subfolder) {
  const QString folder = TestDataFolder();
  std::vector<OracleRow> rows = folder.isEmpty() ? std::vector<OracleRow>{} : ReadOracle(folder, csv);
  for (OracleRow& row : rows) row["path"] = folder + u'/' + subfolder + u'/' + row["file"];
  return rows;
}

TEST(MediaOracleTest, Id3v2TagsMatch) {
  const std::vector<OracleRow> rows = Rows("id3v2-oracle.csv", "mp3");
  if (rows.empty()) GTEST_SKIP() << "no test data (RENVALE_TESTDATA)";
  int tags = 0;
  for (const OracleRow& row : rows) {
    SCOPED_TRACE(row["file"].toStdString());
    std::unique_ptr<platform::ReadableFile> file;
    ASSERT_EQ(platform::RealFileSystem().OpenForRead(QFile::encodeName(row["path"]), &file), 0);
    metadata::FileByteSource source(*file);
    metadata::Id3Tag tag;
    int version = 0;
    const bool found = metadata::Id3v2Reader::Read(source, &tag, &version);
    EXPECT_EQ(found ? QString::number(version) : QString(), row["id3v2_version"]);
    tags += found ? 1 : 0;
    const std::pair<QString, QString> fields[] = {{"title", tag.title}, {"artist", tag.artist}, {"album", tag.album},
                                                  {"track", tag.track}, {"year", tag.year},     {"genre", tag.genre}};
    for (const auto& [column, value] : fields) EXPECT_EQ(value, Expected(row, column)) << column.toStdString();
  }
  EXPECT_GT(tags, 5);
}

// ExifTool shows the movie header's time in UTC ("...+00:00"); we show it
// in local time, as a file's own dates are shown.
TEST(MediaOracleTest, VideoDatesMatch) {
  const std::vector<OracleRow> rows = Rows("video-oracle.csv", "video");
  if (rows.empty()) GTEST_SKIP() << "no test data (RENVALE_TESTDATA)";
  int dates = 0;
  for (const OracleRow& row : rows) {
    SCOPED_TRACE(row["file"].toStdString());
    QString expected = row["creationdate_key"].left(19);
    if (expected.isEmpty() && !row["quicktime_create_utc"].isEmpty()) {
      QDateTime utc = QDateTime::fromString(row["quicktime_create_utc"].left(19), "yyyy:MM:dd HH:mm:ss");
      utc.setTimeSpec(Qt::UTC);
      expected = utc.toLocalTime().toString("yyyy:MM:dd HH:mm:ss");
    }
    if (expected.isEmpty()) expected = Expected(row, "riff_original");
    const QString date = metadata::VideoDateReader::ReadFile(platform::RealFileSystem(), QFile::encodeName(row["path"]));
    EXPECT_EQ(date, expected);
    dates += date.isEmpty() ? 0 : 1;
  }
  EXPECT_GT(dates, 2);
}

}  // namespace
}  // namespace renvale::test

// Compares the ID3v2 and video date readers with ExifTool's reading of real
// files ($RENVALE_TESTDATA: id3v2-oracle.csv over mp3/, video-oracle.csv over
// video/). Where we read differently on purpose, the row says why.

#include <gtest/gtest.h>

#include "QStringPrinter.h"

#include <QDateTime>
#include <QFileInfo>
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
  const char* file;
  const char* column;
  const char* ours;
  const char* why;
};
constexpr Difference kDifferences[] = {
    {"mutagen__id3v1v2-combined.mp3", "year", "2004",
     "the 2.4 tag holds a 2.3 year frame (TYER); ExifTool reads only 2.4's TDRC there, we take the year "
     "whatever version's frame holds it"},
    {"exiftool__Pentax.avi", "riff_original", "2009:10:27 12:14:34",
     "the camera wrote \"2009/10/27 12:14:34\"; ExifTool reads that layout as hours and minutes only and "
     "shows 12:14:00, we keep the seconds the camera wrote"},
};

QString Expected(const OracleRow& row, const QString& column, const QString& oracle) {
  for (const Difference& d : kDifferences) {
    if (row["file"] == QLatin1String(d.file) && column == QLatin1String(d.column)) return d.ours;
  }
  return oracle;
}

class MediaOracleTest : public ::testing::Test {
 protected:
  void Load(const QString& csv, const QString& subfolder) {
    const QString folder = TestDataFolder();
    if (folder.isEmpty() || !QFileInfo::exists(folder + u'/' + csv)) {
      GTEST_SKIP() << "no test data folder (RENVALE_TESTDATA)";
    }
    rows_ = ReadOracle(folder, csv);
    files_ = folder + u'/' + subfolder + u'/';
    ASSERT_FALSE(rows_.empty());
  }
  QByteArray PathOf(const OracleRow& row) const { return (files_ + row["file"]).toUtf8(); }

  std::vector<OracleRow> rows_;
  QString files_;
};

TEST_F(MediaOracleTest, Id3v2TagsMatch) {
  Load("id3v2-oracle.csv", "mp3");
  int tags = 0;
  for (const OracleRow& row : rows_) {
    SCOPED_TRACE(row["file"].toStdString());
    std::unique_ptr<platform::ReadableFile> file;
    ASSERT_EQ(platform::RealFileSystem().OpenForRead(PathOf(row), &file), 0);
    metadata::FileByteSource source(*file);
    metadata::Id3Tag tag;
    int version = 0;
    const bool found = metadata::Id3v2Reader::Read(source, &tag, &version);
    EXPECT_EQ(found ? QString::number(version) : QString(), row["id3v2_version"]);
    if (!found) continue;
    ++tags;
    const std::pair<QString, const QString*> fields[] = {{"title", &tag.title}, {"artist", &tag.artist},
                                                         {"album", &tag.album}, {"track", &tag.track},
                                                         {"year", &tag.year},   {"genre", &tag.genre}};
    for (const auto& [column, value] : fields) EXPECT_EQ(*value, Expected(row, column, row[column])) << column.toStdString();
  }
  EXPECT_GT(tags, 5);
}

// ExifTool shows the movie header's time as UTC ("...+00:00"); we show it
// in local time, as a file's own dates are shown.
QString LocalFromUtc(const QString& cell) {
  QDateTime utc = QDateTime::fromString(cell.left(19), "yyyy:MM:dd HH:mm:ss");
  utc.setTimeSpec(Qt::UTC);
  return utc.toLocalTime().toString("yyyy:MM:dd HH:mm:ss");
}

TEST_F(MediaOracleTest, VideoDatesMatch) {
  Load("video-oracle.csv", "video");
  int dates = 0;
  for (const OracleRow& row : rows_) {
    SCOPED_TRACE(row["file"].toStdString());
    QString expected = row["creationdate_key"].left(19);
    if (expected.isEmpty() && !row["quicktime_create_utc"].isEmpty()) {
      expected = LocalFromUtc(row["quicktime_create_utc"]);
    }
    if (expected.isEmpty()) expected = Expected(row, "riff_original", row["riff_original"]);
    const QString date = metadata::VideoDateReader::ReadFile(platform::RealFileSystem(), PathOf(row));
    EXPECT_EQ(date, expected);
    dates += date.isEmpty() ? 0 : 1;
  }
  EXPECT_GT(dates, 2);
}

}  // namespace
}  // namespace renvale::test

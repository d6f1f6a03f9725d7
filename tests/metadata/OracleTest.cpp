// Compares the readers with ExifTool's reading of real files in
// $RENVALE_TESTDATA: oracle.csv (the id3v1_* columns, and scan2000, the first
// date-shaped text of the first 2000 bytes), id3v2-oracle.csv over mp3/ and
// video-oracle.csv over video/. Where we read differently on purpose, the
// row says why.

#include <gtest/gtest.h>

#include "QStringPrinter.h"

#include <QDateTime>
#include <QFile>
#include <memory>

#include "metadata/DateSource.h"
#include "metadata/FileByteSource.h"
#include "metadata/HeadScan.h"
#include "metadata/Id3v2Reader.h"
#include "metadata/VideoDateReader.h"
#include "metadata/mdlID3.h"
#include "platform/FileSystem.h"
#include "support/OracleCsv.h"

namespace renvale::test {
namespace {

// ExifTool's text of a field: the bytes up to the first NUL. Trailing
// whitespace it has already removed; we remove blanks at both ends (the
// classic Trim), so leading blanks go here too.
QString OracleText(const QString& cell, bool trimLeading) {
  const QByteArray bytes = OracleBytes(cell);
  QString text = metadata::Id3FixedText(bytes.constData(), bytes.size(), 0, true);
  while (trimLeading && text.startsWith(u' ')) text.remove(0, 1);
  return text;
}

QString WithoutTrailingBlanks(QString text) {
  while (text.endsWith(u' ')) text.chop(1);
  return text;
}

// The rows of `csv` with each file's path (in `subfolder`) under "path".
std::vector<OracleRow> Rows(const QString& csv, const QString& subfolder) {
  const QString folder = TestDataFolder();
  std::vector<OracleRow> rows = folder.isEmpty() ? std::vector<OracleRow>{} : ReadOracle(folder, csv);
  for (OracleRow& row : rows) row["path"] = folder + u'/' + subfolder + u'/' + row["file"];
  return rows;
}

TEST(OracleTest, Id3v1FieldsMatch) {
  const std::vector<OracleRow> rows = Rows("oracle.csv", "");
  if (rows.empty()) GTEST_SKIP() << "no test data (RENVALE_TESTDATA)";
  int tags = 0;
  for (const OracleRow& row : rows) {
    SCOPED_TRACE(row["file"].toStdString());
    metadata::Id3Tag tag;
    const bool found = metadata::ReadId3Tag(platform::RealFileSystem(), QFile::encodeName(row["path"]), &tag);
    // The genre byte is always there in a tag, so ExifTool's genre cell
    // tells whether it found one.
    ASSERT_EQ(found, !row["id3v1_genre"].isEmpty());
    if (!found) continue;
    ++tags;
    EXPECT_EQ(tag.title, OracleText(row["id3v1_title"], true));
    EXPECT_EQ(tag.artist, OracleText(row["id3v1_artist"], true));
    EXPECT_EQ(tag.album, OracleText(row["id3v1_album"], true));
    EXPECT_EQ(tag.year, OracleText(row["id3v1_year"], true));
    // The comment keeps its blanks (only the report shows it); ExifTool
    // drops trailing ones.
    EXPECT_EQ(WithoutTrailingBlanks(tag.comment), OracleText(row["id3v1_comment"], false));
    EXPECT_EQ(tag.track, row["id3v1_track"]);
    EXPECT_EQ(tag.genre, metadata::Id3GenreName(row["id3v1_genre"].toInt()));
  }
  EXPECT_GT(tags, 0);
}

TEST(OracleTest, HeadScanFindsTheSameFirstDate) {
  const std::vector<OracleRow> rows = Rows("oracle.csv", "");
  if (rows.empty()) GTEST_SKIP() << "no test data (RENVALE_TESTDATA)";
  for (const OracleRow& row : rows) {
    const QByteArray head =
        metadata::ReadFileHead(platform::RealFileSystem(), QFile::encodeName(row["path"]), metadata::kFileHeadLength);
    EXPECT_LE(head.size(), metadata::kFileHeadLength);
    EXPECT_EQ(metadata::FindDateShapes(head.constData(), head.size()).first, row["scan2000"])
        << row["file"].toStdString();
  }
}

// Where we read a file differently from ExifTool, and why. The test holds
// us to our own reading there, so a change in either shows up.
struct Difference { const char *file, *column, *ours, *why; } constexpr kDifferences[] = {
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

// Compares the ID3v1 reader and the file-head scan with ExifTool's reading
// of real files ($RENVALE_TESTDATA/oracle.csv: the id3v1_* columns and
// scan2000, the first date-shaped text of the first 2000 bytes).

#include <gtest/gtest.h>

#include "QStringPrinter.h"

#include <QFileInfo>

#include "metadata/DateSource.h"
#include "metadata/HeadScan.h"
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

class OracleTest : public ::testing::Test {
 protected:
  void SetUp() override {
    folder_ = TestDataFolder();
    if (folder_.isEmpty() || !QFileInfo::exists(folder_ + "/oracle.csv")) {
      GTEST_SKIP() << "no test data folder (RENVALE_TESTDATA)";
    }
    rows_ = ReadOracle(folder_);
    ASSERT_FALSE(rows_.empty());
  }
  // Runs `check` on every row whose file is present; fails when none is.
  template <typename Check>
  void ForEachFile(Check check) {
    int checked = 0;
    for (const OracleRow& row : rows_) {
      const QByteArray path = (folder_ + u'/' + row["file"]).toUtf8();
      if (!platform::RealFileSystem().Exists(path)) continue;
      SCOPED_TRACE(row["file"].toStdString());
      check(row, path);
      ++checked;
    }
    EXPECT_GT(checked, 0);
  }

  QString folder_;
  std::vector<OracleRow> rows_;
};

TEST_F(OracleTest, Id3v1FieldsMatch) {
  int tags = 0;
  ForEachFile([&tags](const OracleRow& row, const QByteArray& path) {
    metadata::Id3Tag tag;
    const bool found = metadata::ReadId3Tag(platform::RealFileSystem(), path, &tag);
    // The genre byte is always there in a tag, so ExifTool's genre cell
    // tells whether it found one.
    ASSERT_EQ(found, !row["id3v1_genre"].isEmpty());
    if (!found) return;
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
  });
  EXPECT_GT(tags, 0);
}

TEST_F(OracleTest, HeadScanFindsTheSameFirstDate) {
  ForEachFile([](const OracleRow& row, const QByteArray& path) {
    const QByteArray head =
        metadata::ReadFileHead(platform::RealFileSystem(), path, metadata::kFileHeadLength);
    EXPECT_LE(head.size(), metadata::kFileHeadLength);
    EXPECT_EQ(metadata::FindDateShapes(head.constData(), head.size()).first, row["scan2000"]);
  });
}

}  // namespace
}  // namespace renvale::test

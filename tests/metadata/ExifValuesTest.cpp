#include <gtest/gtest.h>

#include "QStringPrinter.h"

#include "metadata/DateTimePicture.h"
#include "metadata/ExifDateTime.h"
#include "metadata/ExifReadAhead.h"
#include "metadata/ExifReader.h"
#include "metadata/ExifStatusCheck.h"
#include "metadata/ExifValues.h"
#include "metadata/FileDates.h"
#include "metadata/PreviewOrientation.h"
#include "platform/ErrorNumbers.h"
#include "support/MemoryFileSystem.h"
#include "support/SampleImages.h"
#include "support/ScriptedMessagePort.h"

namespace renvale::test {
namespace {

using metadata::ExifDateFormats;
using metadata::ExifFile;
using metadata::PreviewTurn;

const ExifDateFormats kFormats{"yyyy-mm-dd", "hh.mm.ss"};
const QString kMissingSingle =
    "A Serial Number was not found in this file.  Do not rely on Serial Numbers to keep "
    "filenames unique unless you are sure that ALL files to be renamed contain a unique serial "
    "number.  It is recommended that you use a Series # instead when renaming this file.";
const QString kMissingBatch =
    "A Serial Number was not found in the last-selected file.  Do not rely on Serial Numbers to "
    "keep filenames unique unless you are sure that ALL files to be renamed contain a unique "
    "serial number.  It is recommended that you use Series #s instead when batch renaming the "
    "selected files.";

class ExifValuesTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ExifFields exif = TypicalExifFields();  // taken 2004:07:15 18:03:09, image 1234567
    fs.Add("/p/exif.jpg", MakeExifJpeg(&exif));
    exif.imageNumber = -1;
    fs.Add("/p/noserial.jpg", MakeExifJpeg(&exif));
    fs.Add("/p/plain.jpg", MakeExifJpeg(nullptr));
    fs.SetTimes("/p/plain.jpg", QDateTime(QDate(2001, 2, 3), QTime(4, 5, 6), Qt::UTC),
                QDateTime(QDate(2002, 2, 3), QTime(4, 5, 6), Qt::UTC));
    fs.Add("/p/locked.jpg", MakeExifJpeg(&exif));
    fs.FailOpen("/p/locked.jpg", platform::kAccessViolation);
  }
  ExifFile File(const char* name) { return ExifFile{fs, messages, "/p/", name}; }
  QString Token(const char* name, const char* token) {
    return metadata::ExifTokenValue(File(name), token, kFormats);
  }
  QString Insert(const char* name, int form, bool batch) {
    return metadata::ExifInsertValue(File(name), form, batch, kFormats);
  }

  MemoryFileSystem fs;
  ScriptedMessagePort messages;
};

TEST_F(ExifValuesTest, TokenValuesOfAPictureWithExif) {
  EXPECT_EQ(Token("exif.jpg", "%DATE%"), "2004-07-15");
  EXPECT_EQ(Token("exif.jpg", "%TIME%"), "18.03.09");
  EXPECT_EQ(Token("exif.jpg", "%DATE TIME%"), "2004-07-15 18.03.09");
  EXPECT_EQ(Token("exif.jpg", "%SERIAL%"), "1234567");
  EXPECT_EQ(Token("exif.jpg", "%ORIGFN%"), "");
  EXPECT_EQ(Token("exif.jpg", "%date%"), "");
  EXPECT_EQ(Token("noserial.jpg", "%SERIAL%"), "");
  EXPECT_TRUE(messages.messages.empty());
}

TEST_F(ExifValuesTest, MissingSerialIsWarnedWithTheMessageOfTheMode) {
  EXPECT_EQ(Insert("noserial.jpg", 4, true), "%SERIAL%");
  EXPECT_EQ(Insert("plain.jpg", 4, false), "");
  EXPECT_EQ(Insert("noserial.jpg", 1, false), "2004-07-15");  // only the serial form warns
  EXPECT_EQ(messages.Texts(), QStringList({kMissingBatch, kMissingSingle}));
  EXPECT_EQ(messages.Last().buttons, platform::MessageButtons::Ok);
}

TEST_F(ExifValuesTest, ReaderErrorIsShownAndGivesNothing) {
  metadata::ExifReader reader;
  reader.Load(fs, "/p/locked.jpg");
  ASSERT_FALSE(reader.Status().isEmpty());
  EXPECT_EQ(Token("locked.jpg", "%DATE%"), "");
  EXPECT_EQ(Insert("locked.jpg", 1, true), "");
  EXPECT_EQ(Insert("locked.jpg", 4, false), "");
  ASSERT_EQ(messages.messages.size(), 3u);
  EXPECT_EQ(messages.Last().text, "EXIF Error: " + reader.Status());
  EXPECT_EQ(messages.Last().buttons, platform::MessageButtons::Ok);
  EXPECT_EQ(messages.Last().title, platform::kProgramTitle);
}

TEST(PreviewTurn, FirstThreeLettersOfTheWordDecide) {
  const struct {
    const char* word;
    PreviewTurn turn;
  } cases[] = {
      {"", PreviewTurn::None},
      {"Normal", PreviewTurn::None},
      {"Nor", PreviewTurn::None},
      {"Counter-clockwise quarter turn", PreviewTurn::QuarterCounterClockwise},
      {"Clockwise quarter turn", PreviewTurn::QuarterClockwise},
      {"normal", PreviewTurn::Half},  // case matters
      {"No", PreviewTurn::Half},
      {"Mirrored left to right", PreviewTurn::Half},
      {"Upside down", PreviewTurn::Half},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(metadata::PreviewTurnForOrientation(c.word), c.turn) << c.word;
  }
}

using metadata::ExifDateTimeText;
using metadata::FormatDateTimePicture;

// 2004-07-15 is a Thursday, day 197 of a leap year; July (07) and the
// minute (03) differ, so a month/minute mix-up shows.
const QDate kDate(2004, 7, 15);
const QTime kTime(18, 3, 9);

TEST(DateTimePicture, PicturesComeOutExactly) {
  const struct {
    const char* picture;
    const char* expected;
    QDate date = kDate;
    QTime time = kTime;
  } cases[] = {
      // the patterns of the option lists
      {"yyyy-mm-dd", "2004-07-15"}, {"yyyy.mm.dd", "2004.07.15"}, {"yyyymmdd", "20040715"},
      {"yy-mm-dd", "04-07-15"},     {"yy.mm.dd", "04.07.15"},     {"yymmdd", "040715"},
      {"mm-dd-yyyy", "07-15-2004"}, {"mm.dd.yyyy", "07.15.2004"}, {"mmddyyyy", "07152004"},
      {"mm-dd-yy", "07-15-04"},     {"mm.dd.yy", "07.15.04"},     {"mmddyy", "071504"},
      {"hh-mm-ss", "18-03-09"},     {"hh.mm.ss", "18.03.09"},     {"hhmmss", "180309"},
      {"hh-mm", "18-03"},           {"hh.mm", "18.03"},           {"hhmm", "1803"},
      // users' own pictures follow the same rules
      {"mm-ss", "03-09"},                 // minute before a second
      {"h:m:s", "18:3:9"},                // minute after an hour, no zeros
      {"mm hh mm", "07 18 03"},           // only the one after the hour is a minute
      {"yyyy-mm-dd hh-nn", "2004-07-15 18-03"},
      {"d-m-y", "15-7-197"},              // y alone is the day of the year
      {"yyy", "04197"},                   // runs split greedily
      {"ddd dddd mmm mmmm", "Thu Thursday Jul July"},
      {"w ww q", "5 29 3"},
      {"hh AM/PM h a/p", "06 PM 6 p"},
      {"YYYY-MM-DD", "2004-07-15"},       // codes in either case
      {"\\y\\y \"dd mm\" yyyy", "yy dd mm 2004"},
      {"x_yyyy#", "x_2004#"},             // other characters stay
      {"ttttt", "18:03:09"},
      {"c", "7/15/2004 18:03:09"},
      {"dddddd", "Thursday, July 15, 2004"},
      {"", ""},
      // week one holds the first of January and starts on Sunday
      {"ww", "1", QDate(2004, 1, 3)},  // Saturday
      {"ww", "2", QDate(2004, 1, 4)},  // Sunday
      {"ww", "1", QDate(2006, 1, 1)},  // a Sunday itself
      // the twelve-hour clock around midnight and noon
      {"h AM/PM", "12 AM", kDate, QTime(0, 5)},
      {"h AM/PM", "12 PM", kDate, QTime(12, 5)},
      {"hh:nn AMPM", "09:05 AM", kDate, QTime(9, 5)},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(FormatDateTimePicture(c.picture, c.date, c.time), QString(c.expected))
        << c.picture << " " << c.date.toString(Qt::ISODate).toStdString();
  }
}

TEST(ExifDateTimeText, FormsCarryOnlyTheirOwnHalf) {
  const struct {
    int form;
    const char* dateFormat;
    const char* timeFormat;
    const char* expected;
  } cases[] = {
      {1, "yyyy-mm-dd", "hh.mm.ss", "2004-07-15"},
      {2, "yyyy-mm-dd", "hh.mm.ss", "18.03.09"},
      {3, "yyyy-mm-dd", "hh.mm.ss", "2004-07-15 18.03.09"},
      {4, "yyyy-mm-dd", "hh.mm.ss", ""},
      {1, "yyyy hh-nn", "hh", "2004 00-00"},
      {2, "yyyy", "yyyy-mm-dd hh", "1899-12-30 18"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(ExifDateTimeText("2004:07:15 18:03:09", c.form, c.dateFormat, c.timeFormat), c.expected)
        << c.form << " " << c.dateFormat << " / " << c.timeFormat;
  }
}

}  // namespace
}  // namespace renvale::test

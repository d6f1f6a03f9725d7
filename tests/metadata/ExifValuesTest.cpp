#include <gtest/gtest.h>

#include "QStringPrinter.h"

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

TEST_F(ExifValuesTest, ReadAheadGivesWhatReadingAtTheTurnGivesAndLeavesMessagesToTheCaller) {
  // Read directly first: the fake file system is not for two threads at once.
  const QString plainDateTime = metadata::ReadExifTokenValues(File("plain.jpg"), kFormats).dateTime;
  QString lockedMessage;
  metadata::ReadExifTokenValuesQuietly(fs, "/p/", "locked.jpg", kFormats, &lockedMessage);
  ASSERT_TRUE(lockedMessage.startsWith("EXIF Error: "));

  metadata::ExifReadAhead ahead(fs, "/p/", {"exif.jpg", "locked.jpg", "plain.jpg"}, kFormats);
  metadata::ExifReadAhead::Result result;
  ASSERT_TRUE(ahead.Take("/p/", "plain.jpg", kFormats, &result));  // the batch passed over two
  EXPECT_EQ(result.values.dateTime, plainDateTime);
  ASSERT_TRUE(ahead.Take("/p/", "locked.jpg", kFormats, &result));
  EXPECT_FALSE(result.values.ok);
  EXPECT_EQ(result.errorMessage, lockedMessage);
  EXPECT_FALSE(ahead.Take("/p/", "locked.jpg", kFormats, &result)) << "each file's values go out once";
  EXPECT_FALSE(ahead.Take("/q/", "exif.jpg", kFormats, &result));
  EXPECT_FALSE(ahead.Take("/p/", "exif.jpg", {"yyyy", "hh"}, &result));
  EXPECT_FALSE(ahead.Take("/p/", "other.jpg", kFormats, &result));
  ASSERT_TRUE(ahead.Take("/p/", "exif.jpg", kFormats, &result));
  EXPECT_EQ(result.values.dateTime, "2004-07-15 18.03.09");
  EXPECT_EQ(result.values.serial, "1234567");
  EXPECT_TRUE(messages.messages.empty());

  metadata::ExifReadAhead dropped(fs, "/p/", {"exif.jpg"}, kFormats);
  dropped.Drop();
  EXPECT_FALSE(dropped.Take("/p/", "exif.jpg", kFormats, &result));
}

TEST_F(ExifValuesTest, ReadAheadGoesOnToAFileFarBeyondItsLead) {
  std::vector<QByteArray> names;
  for (int i = 0; i < 1000; ++i) names.push_back("absent" + QByteArray::number(i) + ".jpg");
  names.back() = "exif.jpg";  // the files before it travel with others, say
  metadata::ExifReadAhead ahead(fs, "/p/", names, kFormats);
  metadata::ExifReadAhead::Result result;
  ASSERT_TRUE(ahead.Take("/p/", "exif.jpg", kFormats, &result));
  EXPECT_EQ(result.values.date, "2004-07-15");
}

TEST_F(ExifValuesTest, PictureWithoutExifFallsBackSilently) {
  const QString oldest = metadata::FileTimeText(
      QDateTime(QDate(2001, 2, 3), QTime(4, 5, 6), Qt::UTC), metadata::LocalClockOffsetHours());
  EXPECT_EQ(Token("plain.jpg", "%DATE TIME%"),
            metadata::ExifDateTimeText(oldest, 3, kFormats.date, kFormats.time));
  EXPECT_EQ(Token("plain.jpg", "%SERIAL%"), "");
  EXPECT_TRUE(messages.messages.empty());
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

TEST_F(ExifValuesTest, InsertGivesTokensInBatchModeAndValuesOtherwise) {
  const char* tokens[] = {"%DATE%", "%TIME%", "%DATE TIME%", "%SERIAL%"};
  for (int form = 1; form <= 4; ++form) {
    EXPECT_EQ(Insert("exif.jpg", form, true), tokens[form - 1]);
    EXPECT_EQ(Insert("exif.jpg", form, false), Token("exif.jpg", tokens[form - 1]));
  }
  EXPECT_EQ(Insert("exif.jpg", 0, false), "");
  EXPECT_EQ(Insert("exif.jpg", 5, true), "");
  EXPECT_TRUE(messages.messages.empty());
}

TEST_F(ExifValuesTest, MissingSerialIsWarnedWithTheMessageOfTheMode) {
  EXPECT_EQ(Insert("noserial.jpg", 4, true), "%SERIAL%");
  EXPECT_EQ(Insert("plain.jpg", 4, false), "");
  EXPECT_EQ(Insert("noserial.jpg", 1, false), "2004-07-15");  // only the serial form warns
  EXPECT_EQ(messages.Texts(), QStringList({kMissingBatch, kMissingSingle}));
  EXPECT_EQ(messages.Last().buttons, platform::MessageButtons::Ok);
}

TEST(ExifStatus, OnlyTheEndingTellsThatThereIsNoExif) {
  const std::pair<const char*, bool> cases[] = {
      {"EXIF data not found.", true}, {"NOT FOUND.", true},   {"The file itself was Not Found.", true},
      {"not found", false},           {"not found. ", false}, {"ot found.", false}};
  for (const auto& [status, noExif] : cases) EXPECT_EQ(metadata::IsNoExifStatus(status), noExif) << status;
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

TEST_F(ExifValuesTest, PreviewTurnIsReadFromTheFile) {
  ExifFields exif = TypicalExifFields();
  exif.orientation = 6;
  fs.Add("/p/turned.jpg", MakeExifJpeg(&exif));
  EXPECT_EQ(metadata::ExifOrientationForPreview(fs, messages, "/p/", "turned.jpg"),
            PreviewTurn::QuarterClockwise);
  EXPECT_EQ(metadata::ExifOrientationForPreview(fs, messages, "/p/", "plain.jpg"),
            PreviewTurn::None);
  EXPECT_EQ(metadata::ExifOrientationForPreview(fs, messages, "/p/", "locked.jpg"),
            PreviewTurn::None);
  EXPECT_EQ(messages.messages.size(), 1u);
}

}  // namespace
}  // namespace renvale::test

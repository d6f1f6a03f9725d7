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

}  // namespace
}  // namespace renvale::test

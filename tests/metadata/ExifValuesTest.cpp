#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "QStringPrinter.h"

#include "metadata/DateTimePicture.h"
#include "metadata/ExifDateTime.h"
#include "metadata/ExifReadAhead.h"
#include "metadata/ExifReader.h"
#include "metadata/ExifValues.h"
#include "metadata/FileDates.h"
#include "metadata/FileReport.h"
#include "metadata/PreviewOrientation.h"
#include "metadata/ReportFormat.h"
#include "platform/ErrorNumbers.h"
#include "platform/FileSystem.h"
#include "support/MemoryFileSystem.h"
#include "support/SampleAudio.h"
#include "support/SampleImages.h"
#include "support/SampleRaw.h"
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
  // With no date anywhere, not even a file time, the joined date and time stay empty too.
  fs.SetTimes("/p/plain.jpg", {}, {});
  QString error;
  EXPECT_EQ(metadata::ReadExifTokenValuesQuietly(fs, "/p/", "plain.jpg", kFormats, &error).DateTime(), "");
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

// A taker that asks out of list order still gets each file's own values,
// once, and the file's identity only where it was asked for. Real files:
// both threads read, as in a batch.
TEST(ExifReadAhead, HandsEachFileItsOwnValuesInAnyOrder) {
  QTemporaryDir dir;
  const QByteArray folder = QFile::encodeName(dir.path()) + '/';
  platform::FileSystem& fs = platform::RealFileSystem();
  ExifFields exif = TypicalExifFields();
  fs.WriteWholeFile(folder + "exif.jpg", MakeExifJpeg(&exif));
  exif.imageNumber = -1;
  fs.WriteWholeFile(folder + "noserial.jpg", MakeExifJpeg(&exif));
  fs.WriteWholeFile(folder + "plain.jpg", MakeExifJpeg(nullptr));
  metadata::ExifReadAhead ahead(fs, folder, {"plain.jpg", "exif.jpg", "noserial.jpg"}, kFormats,
                                metadata::ExifReader::Identity::Wanted);
  metadata::ExifReadAhead::Result got;
  ASSERT_TRUE(ahead.Take(folder, "exif.jpg", kFormats, &got));
  EXPECT_EQ(got.values.serial, "1234567");
  platform::FileInfo exifFile;
  ASSERT_EQ(fs.StatIdentity(folder + "exif.jpg", &exifFile), 0);
  EXPECT_TRUE(got.identityKnown && got.identity.inode == exifFile.inode);
  ASSERT_TRUE(ahead.Take(folder, "plain.jpg", kFormats, &got));
  EXPECT_NE(got.values.dateOrigin, metadata::DateOrigin::ExifOriginal);
  ASSERT_TRUE(ahead.Take(folder, "noserial.jpg", kFormats, &got));
  EXPECT_EQ(got.values.date + got.values.serial, "2004-07-15");
  EXPECT_FALSE(ahead.Take(folder, "exif.jpg", kFormats, &got));

  metadata::ExifReadAhead contentsOnly(fs, folder, {"exif.jpg"}, kFormats, metadata::ExifReader::Identity::NotWanted);
  ASSERT_TRUE(contentsOnly.Take(folder, "exif.jpg", kFormats, &got));
  EXPECT_EQ(got.values.serial, "1234567");
  EXPECT_FALSE(got.identityKnown);
}

// Results are filled again once taken: a damaged file's message must not
// reach a later file's.
TEST(ExifReadAhead, EachResultTellsOnlyOfItsOwnFile) {
  QTemporaryDir dir;
  const QByteArray folder = QFile::encodeName(dir.path()) + '/';
  platform::FileSystem& fs = platform::RealFileSystem();
  ExifFields exif = TypicalExifFields();
  const QByteArray good = MakeExifJpeg(&exif);
  QByteArray damaged = good;
  damaged[12] = 'X';  // the TIFF header after "Exif\0\0"
  std::vector<QByteArray> names;
  for (int i = 0; i < 600; ++i) {
    names.push_back(QByteArray::number(i) + ".jpg");
    fs.WriteWholeFile(folder + names.back(), i % 2 == 0 ? damaged : good);
  }
  metadata::ExifReadAhead ahead(fs, folder, names, kFormats, metadata::ExifReader::Identity::NotWanted);
  for (int i = 0; i < 600; ++i) {
    metadata::ExifReadAhead::Result got;
    ASSERT_TRUE(ahead.Take(folder, names[i], kFormats, &got));
    EXPECT_EQ(got.errorMessage.isEmpty(), i % 2 == 1) << i;
    EXPECT_EQ(got.values.serial, i % 2 == 1 ? "1234567" : "") << i;
  }
}

TEST(PreviewTurn, FirstThreeLettersOfTheWordDecide) {
  using T = PreviewTurn;
  const std::pair<const char*, PreviewTurn> cases[] = {
      {"", T::None}, {"Normal", T::None}, {"Nor", T::None}, {"No", T::Half}, {"Upside down", T::Half},
      {"normal", T::Half},  // case matters
      {"Counter-clockwise quarter turn", T::QuarterCounterClockwise},
      {"Clockwise quarter turn", T::QuarterClockwise}, {"Mirrored left to right", T::Half}};
  for (const auto& [word, turn] : cases) EXPECT_EQ(metadata::PreviewTurnForOrientation(word), turn) << word;
}

using metadata::ExifDateTimeText;
using metadata::FormatDateTimePicture;

// 2004-07-15 is a Thursday, day 197 of a leap year; July (07) and the
// minute (03) differ, so a month/minute mix-up shows.
const QDate kDate(2004, 7, 15);
const QTime kTime(18, 3, 9);

TEST(DateTimePicture, PicturesComeOutExactly) {
  const struct { const char *picture, *expected; QDate date = kDate; QTime time = kTime; } cases[] = {
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
      {"d-m-y", "15-7-197"},              // y alone is the day of the year
      {"yyy", "04197"},                   // runs split greedily
      {"YYYY-MM-DD", "2004-07-15"},       // codes in either case
      {"x_yyyy#", "x_2004#"},             // other characters stay
      {"yyyy-mm-dd hh-nn", "2004-07-15 18-03"}, {"ddd dddd mmm mmmm", "Thu Thursday Jul July"},
      {"w ww q", "5 29 3"}, {"hh AM/PM h a/p", "06 PM 6 p"}, {"\\y\\y \"dd mm\" yyyy", "yy dd mm 2004"},
      {"ttttt", "18:03:09"}, {"c", "7/15/2004 18:03:09"}, {"dddddd", "Thursday, July 15, 2004"}, {"", ""},
      // a text longer than most, put together past its first sixty-four characters
      {"dddddd\" - the long way home from the coast \"yyyy-mm-dd",
       "Thursday, July 15, 2004 - the long way home from the coast 2004-07-15"},
      // week one holds the first of January and starts on Sunday
      {"ww", "1", QDate(2004, 1, 3)},  // Saturday
      {"ww", "2", QDate(2004, 1, 4)},  // Sunday
      {"ww", "1", QDate(2006, 1, 1)},  // a Sunday itself
      // the twelve-hour clock around midnight and noon
      {"h AM/PM", "12 AM", kDate, QTime(0, 5)}, {"h AM/PM", "12 PM", kDate, QTime(12, 5)},
      {"hh:nn AMPM", "09:05 AM", kDate, QTime(9, 5)},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(FormatDateTimePicture(c.picture, c.date, c.time), QString(c.expected))
        << c.picture << " " << c.date.toString(Qt::ISODate).toStdString();
  }
}

TEST(ExifDateTimeText, FormsCarryOnlyTheirOwnHalf) {
  const struct { int form; const char* dateFormat; const char* timeFormat; const char* expected; } cases[] = {
      {1, "yyyy-mm-dd", "hh.mm.ss", "2004-07-15"}, {2, "yyyy-mm-dd", "hh.mm.ss", "18.03.09"},
      {3, "yyyy-mm-dd", "hh.mm.ss", "2004-07-15 18.03.09"}, {4, "yyyy-mm-dd", "hh.mm.ss", ""},
      {1, "yyyy hh-nn", "hh", "2004 00-00"}, {2, "yyyy", "yyyy-mm-dd hh", "1899-12-30 18"}};
  for (const auto& c : cases) {
    EXPECT_EQ(ExifDateTimeText("2004:07:15 18:03:09", c.form, c.dateFormat, c.timeFormat), c.expected)
        << c.form << " " << c.dateFormat << " / " << c.timeFormat;
  }
}

using metadata::MissingExifFacts;

TEST(ReportFormat, SizesInKilobytesAndMegabytes) {
  const struct { qint64 bytes; const char* kb; const char* mb; } cases[] = {
      {0, "0", "."},           {1535, "1", "."},          {1536, "2", "."},
      {2560, "2", "."},        {3584, "4", "."},          {5242, "5", "."},
      {5243, "5", ".01"},      {524288, "512", ".5"},     {1258291, "1229", "1.2"},
      {1310720, "1280", "1.25"}, {12582912, "12288", "12."},
      {Q_INT64_C(123456789012), "120563271", "117737.57"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(metadata::KilobytesText(c.bytes), c.kb) << c.bytes;
    EXPECT_EQ(metadata::MegabytesText(c.bytes), c.mb) << c.bytes;
  }
}

TEST(ReportFormat, ExifVersionAndDimensions) {
  const std::pair<const char*, const char*> versions[] = {
      {"0220", "2.2"}, {"0210", "2.1"}, {"0221", "2.21"}, {"0100", "1.0"},
      {"1000", "10.0"}, {"0232", "2.32"}, {"022", "022"}, {"", ""}};
  for (const auto& [in, out] : versions) EXPECT_EQ(metadata::ShortExifVersion(in), out) << in;
  EXPECT_EQ(metadata::DimensionsText("3072", "2048"), "3072w X 2048h");
  EXPECT_EQ(metadata::DimensionsText("640", ""), "640w X h");
  EXPECT_EQ(metadata::DimensionsText("", ""), "");
}

const QString kFileSetNotes =
    "NOTE: When renaming CRW or THM files, Renvale will rename BOTH files using the SAME filename, so long "
    "as they are both selected and they have the same filename to begin with.\nNOTE: Batch-renaming using "
    "RANDOM series #s does not work correctly with file sets, and is therefore not recommended.\n";
const QString kCrwLines =
    " is a Canon 10D RAW File.  This file does not contain any EXIF data, but the camera produces THM files "
    "for each CRW file.  The THM file contains EXIF data, as well as a JPG thumbnail of the CRW image.\nIf a "
    "Canon 10D THM file with the same filename is in this same folder, the EXIF Date and/or Time will be "
    "extracted from that file and used when renaming this file.  If there is no THM file in the same folder "
    "with the same filename, this file's Created or Modified Date/Time (whichever is oldest) will be used "
    "instead of the actual EXIF Date/Time.\n";
const QString kDateOnly =
    "Renvale can extract the EXIF Exposure Date & Time from this file, but currently cannot "
    "provide any other EXIF data.\nEXIF Exposure Date & Time: 2004:07:15 18:03:09\n";

TEST(FileReport, ExplanationByScanResultAndExtension) {
  const QString scan = "2004:07:15 18:03:09";
  const QString noExif =
      " does not contain any EXIF data, or this filetype is unsupported.\nIf EXIF Date and/or Time "
      "from this file is inserted into the new filename, the file's Created or Modified Date/Time "
      "(whichever is oldest) will be used instead.\nCreated Date & Time: C\nModified Date & Time: M\n";
  const struct { const char* name; QString scan; QString expected; } cases[] = {
      {"a.jpg", "", "a.jpg" + noExif}, {"a.THM", "", "a.THM" + noExif},
      {"a.CRW", "",
       "a.CRW" + kCrwLines + "> A THM file by the same name as this file was NOT found in this folder. <\n" +
           kFileSetNotes},
      {"a.crw", scan,
       "a.crw" + kCrwLines + "A THM file by the same name as this file WAS found in this folder.\n"
       "EXIF Exposure Date & Time: 2004:07:15 18:03:09\n" + kFileSetNotes},
      {"a.thm", scan,
       "a.thm is a Canon 10D Thumbnail File.  This file contains EXIF data and a JPG thumbnail image for a CRW "
       "file by the same name.\nIf a Canon 10D CRW file with the same filename is in this same folder, the EXIF "
       "Date and/or Time will be extracted from this file and used when renaming that file.\n"
       "EXIF Exposure Date & Time: 2004:07:15 18:03:09\n" + kFileSetNotes},
      {"a.Cr2", scan, "a.Cr2 is a Canon 20D RAW File.\n" + kDateOnly},
      {"a.tif", scan,
       "a.tif appears to contain EXIF data, but Renvale was unable to extract *all* EXIF data from the file.\n" +
           kDateOnly},
      {"a.jpeg", scan,
       "a.jpeg appears to contain EXIF data, and also appears to be a proprietary RAW image format created by a "
       "digital camera.\n" + kDateOnly},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(metadata::ExplainMissingExif(MissingExifFacts{c.name, c.scan, "C", "M"}), c.expected) << c.name;
  }
}

class FileReportTest : public ::testing::Test {
 protected:
  QString Local(const QDateTime& utc) { return metadata::FileTimeText(utc, metadata::LocalClockOffsetHours()); }
  QString GeneralHead(bool readOnly = false) {
    return "File Size: 4 KB (. MB)\r\nCreated on: " + Local(created) + "\r\nLast Modified on: " + Local(modified) +
           "\r\nRead Only: " + (readOnly ? "YES (File is write-protected)" : "No") + "\r\n";
  }
  void Add(const QByteArray& path, const QByteArray& bytes) {
    fs.Add(path, bytes);
    fs.SetTimes(path, created, modified);
  }

  const QDateTime created{QDate(2004, 7, 16), QTime(9, 0, 0), Qt::UTC};
  const QDateTime modified{QDate(2004, 7, 17), QTime(10, 30, 0), Qt::UTC};
  MemoryFileSystem fs;
  ScriptedMessagePort messages;
};

TEST_F(FileReportTest, GeneralInfoOfMp3FilesWithAndWithoutTag) {
  const Id3v1Fields tag{"Silence\x01", " piman", "Album", "2004", "line\nfeed", 7, 50};
  Add("/p/t.MP3", MakeMp3(&tag, 10));  // 4170 + 128 bytes
  EXPECT_EQ(metadata::BuildGeneralInfo(fs, "/p/t.MP3"),
            GeneralHead() + "---ID3 Data...\r\n---Tag: ID3v1\r\n---Title: Silence\r\n---Artist: piman\r\n"
                            "---Album: Album\r\n---Track #: 07\r\n---Year: 2004\r\n---Comment: linefeed\r\n");
  Add("/p/n.mp3", MakeMp3(nullptr, 10));
  fs.SetWritable("/p/n.mp3", false);
  EXPECT_EQ(metadata::BuildGeneralInfo(fs, "/p/n.mp3"),
            GeneralHead(true) + "---ID3 Data...\r\n** Could not retrieve ID3 info from the file. **\r\n");
  Id3v1Fields empty;
  Add("/p/e.mp3", MakeMp3(&empty, 10));  // a tag whose fields are all empty
  EXPECT_EQ(metadata::BuildGeneralInfo(fs, "/p/e.mp3"),
            GeneralHead() + "---ID3 Data...\r\n---Tag: ID3v1\r\n---Title: \r\n---Artist: \r\n---Album: \r\n"
                            "---Track #: \r\n---Year: \r\n---Comment: \r\n");
}

TEST_F(FileReportTest, ExifReportOfAPictureWithExif) {
  ExifFields exif = TypicalExifFields();
  exif.pixelWidth = -1;
  exif.pixelHeight = -1;
  Add("/p/IMG_0001.JPG", MakeExifJpeg(&exif));
  metadata::ExifReader reader;
  reader.Load(fs, "/p/IMG_0001.JPG");
  const auto tag = [&reader](const char* name) { return reader.Tag(name); };
  const QString expected =
      "EXIF data for \"IMG_0001.JPG\":\n\nEXIF Version: 2.21\nCamera Make: Canon\nCamera Model: Canon EOS 10D\n"
      "Camera Orientation: " + tag("Orientation") + "\nDimensions: \nExposure Date & Time: 2004:07:15 18:03:09\n"
      "Image Number (Serial): 1234567\nAperture: " + tag("ApertureValue") + "\nShutter Speed: " +
      tag("ShutterSpeedValue") + "\nFocal Length: " + tag("FocalLength") + "\nISO: 400\nExposure Bias: " +
      tag("ExposureBiasValue") + "\nExposure Program: " + tag("ExposureProgram") + "\nF Number: " +
      tag("Fnumber") + "\nFlash: " + tag("Flash") + "\n\nDate source: the EXIF DateTimeOriginal\n";
  EXPECT_EQ(metadata::BuildExifReport(fs, messages, "/p/", "IMG_0001.JPG"), expected);
  EXPECT_TRUE(messages.messages.empty());
}

TEST_F(FileReportTest, ExifReportExplainsAFileSet) {
  Add("/p/CRW_1.CRW", MakeCrw());
  Add("/p/CRW_1.thm", MakeThm("2004:07:15 18:03:09", "2004:07:16 09:00:00"));
  Add("/p/CRW_2.CRW", MakeCrw());
  const auto report = [this](const char* name) { return metadata::BuildExifReport(fs, messages, "/p/", name); };
  EXPECT_EQ(report("CRW_1.CRW"), "EXIF data for \"CRW_1.CRW\":\n\nCRW_1.CRW" + kCrwLines +
                                     "A THM file by the same name as this file WAS found in this folder.\n"
                                     "EXIF Exposure Date & Time: 2004:07:15 18:03:09\n" + kFileSetNotes +
                                     "\nDate source: the THM partner's date\n");
  EXPECT_TRUE(report("CRW_2.CRW").contains("was NOT found in this folder."));
  Add("/p/plain.jpg", MakeExifJpeg(nullptr));
  EXPECT_TRUE(report("plain.jpg").endsWith("Created Date & Time: " + Local(created) + "\nModified Date & Time: " +
                                          Local(modified) + "\n\nDate source: the file's creation time\n"));
  EXPECT_TRUE(messages.messages.empty());
  // A file the reader cannot open gives no report, only the reader's error.
  fs.FailOpen("/p/plain.jpg", platform::kAccessViolation);
  EXPECT_EQ(report("plain.jpg"), "");
  ASSERT_EQ(messages.messages.size(), 1u);
  EXPECT_TRUE(messages.Last().text.startsWith("EXIF Error: "));
}

}  // namespace
}  // namespace renvale::test

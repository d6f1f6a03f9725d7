// Loading through the file system: failures become status texts, and only
// the bytes needed are read, however big the file.

#include <gtest/gtest.h>

#include <cerrno>

#include "ExifTestBytes.h"
#include "metadata/ExifReader.h"
#include "metadata/ExifTexts.h"
#include "platform/ErrorNumbers.h"
#include "support/MemoryFileSystem.h"
#include "support/SampleImages.h"

namespace renvale::test {
namespace {

using metadata::ExifReader;
using metadata::ExifTexts;

constexpr qint64 kGiB = qint64(1) << 30;
// What a load may read at most: the head of the file and a few windows.
constexpr qint64 kReadBudget = 64 * 1024 + 4 * 8 * 1024;

// 1 GiB files: a TIFF-based raw whose Exif IFD lies 768 MiB in, and a JPEG.
// The EXIF is found, and only a few KiB read.
TEST(ExifFileLoad, HugeFilesAreNotReadWhole) {
  const quint32 exifAt = 768u << 20;
  const ExifFields fields = TypicalExifFields();
  const struct {
    const char* name;
    QByteArray head;
    QByteArray atExif;
    QString make;
    QString date;
  } cases[] = {
      {"raw",
       Header() + Le16(2) + Entry(0x010F, 2, 4, 0x00636241) + Entry(0x8769, 4, 1, exifAt) + Le32(0),
       Le16(1) + Entry(0x9003, 2, 20, exifAt + 18) + Le32(0) + QByteArray("2010:01:02 03:04:05", 20), "Abc",
       "2010:01:02 03:04:05"},
      {"JPEG", MakeExifJpeg(&fields), {}, fields.make, fields.dateTimeOriginal},
  };
  for (const auto& c : cases) {
    MemoryFileSystem fs;
    fs.Add("/big", c.head, kGiB);
    if (!c.atExif.isEmpty()) fs.Put("/big", exifAt, c.atExif);
    ExifReader reader;
    reader.Load(fs, "/big");
    EXPECT_EQ(reader.Status(), "") << c.name;
    EXPECT_EQ(reader.Tag("Make"), c.make) << c.name;
    EXPECT_EQ(reader.Tag("DateTimeOriginal"), c.date) << c.name;
    EXPECT_LE(fs.bytesRead, kReadBudget) << c.name;
  }
}

// Failures are errors, never "no EXIF": a file that cannot be read must not
// silently get a date from elsewhere.
TEST(ExifFileLoad, OpenAndReadFailuresAreErrors) {
  const ExifFields fields = TypicalExifFields();
  const QByteArray head = Header() + Le16(1) + Entry(0x8769, 4, 1, 1u << 20) + Le32(0);
  const struct {
    const char* name;
    QByteArray path;
    int openError;
    int readFailsAt;
    const char* statusStart;
  } cases[] = {
      {"missing file", "/missing.jpg", 0, -1, ExifTexts::kCannotOpen},
      {"access denied", "/a.jpg", platform::kAccessViolation, -1, ExifTexts::kCannotOpen},
      {"first read fails", "/a.jpg", 0, 0, ExifTexts::kCannotRead},
      {"later read fails", "/raw.tif", 0, 1, ExifTexts::kCannotRead},
  };
  for (const auto& c : cases) {
    MemoryFileSystem fs;
    fs.Add("/a.jpg", MakeExifJpeg(&fields));
    fs.Add("/raw.tif", head, 2 << 20);
    if (c.openError != 0) fs.FailOpen(c.path, c.openError);
    fs.readFailsAt = c.readFailsAt;
    ExifReader reader;
    reader.Load(fs, c.path);
    const QString status = reader.Status();
    EXPECT_TRUE(status.startsWith(c.statusStart)) << c.name << ": " << status.toStdString();
    EXPECT_GT(status.size(), qsizetype(strlen(c.statusStart))) << c.name << ": the system's reason is missing";
    EXPECT_FALSE(status.endsWith("not found.", Qt::CaseInsensitive)) << c.name;
    EXPECT_EQ(reader.Tag("Make"), "") << c.name;
  }
}

}  // namespace
}  // namespace renvale::test

// Writes the small sample folder that the README's run command opens:
// pictures with EXIF dates, a song with an ID3v1 tag, and a Canon RAW file
// with its thumbnail partner.
#include <QCoreApplication>
#include <QDir>
#include <cstdio>

#include "support/SampleAudio.h"
#include "support/SampleImages.h"
#include "support/SampleRaw.h"

namespace {

using renvale::test::ExifFields;

bool WritePicture(const QDir& dir, const char* name, const char* date, qint64 number, int orientation) {
  ExifFields fields = renvale::test::TypicalExifFields();
  fields.dateTimeOriginal = QString::fromLatin1(date);
  fields.imageNumber = number;
  fields.orientation = orientation;
  return renvale::test::WriteFile(dir.filePath(QString::fromLatin1(name)),
                                  renvale::test::MakeExifJpeg(&fields, 320, 240));
}

bool WriteSamples(const QDir& dir) {
  bool ok = WritePicture(dir, "IMG_0001.JPG", "2004:07:15 18:03:09", 1000001, 1);
  ok = WritePicture(dir, "IMG_0002.JPG", "2004:07:15 18:05:41", 1000002, 6) && ok;
  ok = WritePicture(dir, "IMG_0010.JPG", "2004:07:16 09:12:00", 1000010, 1) && ok;
  ok = renvale::test::WriteFile(dir.filePath(QStringLiteral("scan without exif.jpg")),
                                renvale::test::MakeExifJpeg(nullptr, 320, 240)) && ok;
  renvale::test::Id3v1Fields tag;
  tag.title = "Morning Tide";
  tag.artist = "The Renvale Trio";
  tag.album = "Harbour Songs";
  tag.year = "2004";
  tag.track = 3;
  tag.genre = 12;
  ok = renvale::test::WriteFile(dir.filePath(QStringLiteral("track03.mp3")), renvale::test::MakeMp3(&tag)) && ok;
  // A camera writes the CRW's dates into its THM partner, and a head scan of
  // the CRW finds them too.
  const QString shot = QStringLiteral("2004:08:01 12:30:45");
  ok = renvale::test::WriteFile(dir.filePath(QStringLiteral("CRW_0042.CRW")),
                                renvale::test::MakeCrw({shot, shot})) && ok;
  ok = renvale::test::WriteFile(dir.filePath(QStringLiteral("CRW_0042.THM")),
                                renvale::test::MakeThm(shot, shot)) && ok;
  return ok;
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication app(argc, argv);
  if (argc != 2) {
    std::fprintf(stderr, "usage: %s FOLDER\n", argv[0]);
    return 2;
  }
  QDir dir;
  if (!dir.mkpath(QString::fromLocal8Bit(argv[1])) || !dir.cd(QString::fromLocal8Bit(argv[1]))) {
    std::fprintf(stderr, "cannot create %s\n", argv[1]);
    return 1;
  }
  return WriteSamples(dir) ? 0 : 1;
}

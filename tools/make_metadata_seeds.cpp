// make_metadata_seeds FOLDER: writes generated MP3 files (with and without
// ID3v1 tags), CRW and THM files and file heads with date-shaped texts, as
// a seed corpus for id3_fuzz and headscan_fuzz.
#include <QCoreApplication>
#include <QDir>
#include <cstdio>

#include "support/SampleAudio.h"
#include "support/SampleImages.h"
#include "support/SampleRaw.h"

namespace {

using namespace renvale::test;

bool WriteAudio(const QDir& dir) {
  Id3v1Fields full{"Silence", "piman", "Quod Libet Test Data", "2004", "comment", 2, 50};
  Id3v1Fields old = full;
  old.track = 0;
  old.comment = QByteArray(30, 'c');
  Id3v1Fields odd{"Line\nbreak\r", QByteArray("\x80\x93\xE9\x9F", 4), "   ", "20 4", "", 255, 147};
  bool ok = WriteFile(dir.filePath("tagged.mp3"), MakeMp3(&full, 2));
  ok &= WriteFile(dir.filePath("tag-v10.mp3"), MakeMp3(&old, 1));
  ok &= WriteFile(dir.filePath("tag-odd.mp3"), MakeMp3(&odd, 1));
  ok &= WriteFile(dir.filePath("tag-only.mp3"), MakeId3v1Tag(full));
  ok &= WriteFile(dir.filePath("untagged.mp3"), MakeMp3(nullptr, 2));
  return ok;
}

bool WriteHeads(const QDir& dir) {
  const QString one = "2003:01:02 03:04:05";
  const QString two = "2004:07:15 18:03:09";
  bool ok = WriteFile(dir.filePath("file.crw"), MakeCrw({one, two, "0000:00:00 00:00:00"}, 2048));
  ok &= WriteFile(dir.filePath("file.thm"), MakeThm(two, one));
  ok &= WriteFile(dir.filePath("heads-shared.bin"), "2004:07:15 18:03:0912:01:02 03:04:05hh-nn-ss");
  ok &= WriteFile(dir.filePath("heads-near.bin"), "2004:07:15 18:03:0x ::::: 9999:99:99 99:99:99yyyy");
  ok &= WriteFile(dir.filePath("picture.bin"), "2004:02:29 23:59:59 \"q\" \\d dddddd ttttt AM/PM c ww");
  return ok;
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication app(argc, argv);
  if (argc != 2) {
    std::fprintf(stderr, "usage: %s FOLDER\n", argv[0]);
    return 2;
  }
  const QDir dir(QString::fromLocal8Bit(argv[1]));
  if (!dir.mkpath(".") || !WriteAudio(dir) || !WriteHeads(dir)) {
    std::fprintf(stderr, "cannot write the seeds into %s\n", argv[1]);
    return 1;
  }
  return 0;
}

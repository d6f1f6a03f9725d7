// make_metadata_seeds FOLDER: writes generated MP3 files (with and without
// ID3v1 and ID3v2 tags), CRW and THM files, file heads with date-shaped
// texts, and QuickTime and AVI files with recorded dates, as a seed corpus
// for id3_fuzz, id3v2_fuzz, headscan_fuzz and video_date_fuzz.
#include <QCoreApplication>
#include <QDir>
#include <cstdio>

#include "support/SampleAudio.h"
#include "support/SampleImages.h"
#include "support/SampleMedia.h"
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

QByteArray Id3v2Body(int major) {
  const bool v2 = major == 2;
  const QByteArray utf16("\xFF\xFE" "A\0b\0", 6);
  return Id3v2Frame(major, v2 ? "TT2" : "TIT2", Id3v2TextContent(1, utf16, true)) +
         Id3v2Frame(major, v2 ? "TP1" : "TPE1", Id3v2TextContent(0, "piman")) +
         Id3v2Frame(major, v2 ? "TAL" : "TALB", Id3v2TextContent(3, "Quod \xC3\xA9")) +
         Id3v2Frame(major, v2 ? "TRK" : "TRCK", Id3v2TextContent(0, "3/11")) +
         Id3v2Frame(major, v2 ? "TYE" : (major == 4 ? "TDRC" : "TYER"), Id3v2TextContent(0, "2004")) +
         Id3v2Frame(major, v2 ? "TCO" : "TCON", Id3v2TextContent(0, "(13)")) +
         Id3v2Frame(major, v2 ? "COM" : "COMM", Id3v2TextContent(2, QByteArray("eng\0\0\0N\0\xFF", 9)));
}

bool WriteMedia(const QDir& dir) {
  bool ok = true;
  for (const int major : {2, 3, 4}) {
    const QByteArray body = Id3v2Body(major);
    ok &= WriteFile(dir.filePath(QString("v2%1.mp3").arg(major)), MakeId3v2Tag(major, 0, body) + MakeMp3(nullptr, 1));
    ok &= WriteFile(dir.filePath(QString("v2%1-unsync.mp3").arg(major)),
                    MakeId3v2Tag(major, 0x80, Unsynchronised(body)) + MakeMp3(nullptr, 1));
  }
  ok &= WriteFile(dir.filePath("v24-ext.mp3"), MakeId3v2Tag(4, 0x40, QByteArray("\0\0\0\x06\x01\0", 6) + Id3v2Body(4)));
  ok &= WriteFile(dir.filePath("movie.mov"), MakeQuickTimeMovie({.created = 3206613834u}));
  ok &= WriteFile(dir.filePath("phone.mov"),
                  MakeQuickTimeMovie({.created = 3206613834u, .keyDate = "2019-03-10T14:22:05+0100", .isoMeta = true}));
  ok &= WriteFile(dir.filePath("long.mp4"), MakeQuickTimeMovie({.created = 3206613834u, .longTimes = true, .mdatFirst = true}));
  ok &= WriteFile(dir.filePath("clock.avi"), MakeAvi("Mon Mar 10 15:04:43 2003\n"));
  ok &= WriteFile(dir.filePath("slash.avi"), MakeAvi("2009/10/27 12:14:34", true));
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
  if (!dir.mkpath(".") || !WriteAudio(dir) || !WriteHeads(dir) || !WriteMedia(dir)) {
    std::fprintf(stderr, "cannot write the seeds into %s\n", argv[1]);
    return 1;
  }
  return 0;
}

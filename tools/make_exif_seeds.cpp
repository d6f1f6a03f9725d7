// make_exif_seeds FOLDER: writes generated pictures in every container the
// EXIF reader knows, in both byte orders, as a seed corpus for exif_fuzz.
#include <QCoreApplication>
#include <QDir>
#include <cstdio>

#include "support/SampleImages.h"
#include "support/SampleRawFiles.h"

namespace {

using namespace renvale::test;

QByteArray Patch(QByteArray bytes, const char* magic) { return bytes.replace(0, 4, QByteArray(magic, 4)); }

// A second set of values, so the seeds cover other words and signs.
ExifFields UnusualFields() {
  ExifFields fields;
  fields.dateTimeOriginal = "    :  :     :  :  ";
  fields.make = "NIKON CORPORATION";
  fields.model = "NIKON D70";
  fields.orientation = 6;
  fields.flash = 73;
  fields.exposureProgram = 9;
  fields.shutterSpeedValue = ExifRatio{-5, 1};
  fields.exposureBias = ExifRatio{1, 0};
  fields.fNumber = ExifRatio{0, 0};
  return fields;
}

bool WriteSeeds(const QDir& dir, const QString& stem, const ExifFields& fields) {
  bool ok = true;
  for (const bool be : {false, true}) {
    const QString order = be ? "-be" : "-le";
    const QByteArray tiff = MakeExifTiff(fields, be);
    const QByteArray jpeg = MakeExifJpeg(&fields, 16, 16, be);
    ok &= WriteFile(dir.filePath(stem + order + ".jpg"), jpeg);
    ok &= WriteFile(dir.filePath(stem + order + ".tif"), tiff);
    ok &= WriteFile(dir.filePath(stem + order + ".orf"), Patch(tiff, be ? "MMOR" : "IIRO"));
    ok &= WriteFile(dir.filePath(stem + order + ".raf"), MakeRafFile(jpeg));
    ok &= WriteFile(dir.filePath(stem + order + ".mrw"), MakeMrwFile(tiff));
    ok &= WriteFile(dir.filePath(stem + order + ".x3f"), MakeX3fFile(jpeg));
    ok &= WriteFile(dir.filePath(stem + order + ".cr3"), MakeCr3File(fields, be));
    for (int version = 0; version <= 2; ++version) {
      ok &= WriteFile(dir.filePath(stem + order + QString("-v%1.heic").arg(version)), MakeHeifFile(tiff, version));
    }
  }
  ok &= WriteFile(dir.filePath(stem + ".rw2"), Patch(MakeExifTiff(fields, false), "IIU\0"));
  return ok;
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication app(argc, argv);
  if (argc != 2) {
    std::fprintf(stderr, "usage: %s FOLDER\n", argv[0]);
    return 2;
  }
  QDir dir(QString::fromLocal8Bit(argv[1]));
  if (!dir.mkpath(".")) {
    std::fprintf(stderr, "cannot create %s\n", argv[1]);
    return 1;
  }
  bool ok = WriteSeeds(dir, "typical", TypicalExifFields()) && WriteSeeds(dir, "unusual", UnusualFields());
  ok &= WriteFile(dir.filePath("no-exif.jpg"), MakeExifJpeg(nullptr, 16, 16));
  if (!ok) std::fprintf(stderr, "could not write every seed into %s\n", argv[1]);
  return ok ? 0 : 1;
}

#include "support/SampleImages.h"

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QMap>
#include <QPair>
#include <mutex>

#include "support/Bytes.h"
#include "support/TiffBuilder.h"

namespace renvale::test {

namespace {

using Ifd = TiffBuilder::Ifd;

void AddIfd0(const ExifFields& exif, TiffBuilder& tiff) {
  if (!exif.make.isEmpty()) tiff.Ascii(Ifd::Zero, 0x010F, exif.make.toLatin1());
  if (!exif.model.isEmpty()) tiff.Ascii(Ifd::Zero, 0x0110, exif.model.toLatin1());
  if (exif.orientation != 0) tiff.Short(Ifd::Zero, 0x0112, quint16(exif.orientation));
  if (!exif.dateTime.isEmpty()) tiff.Ascii(Ifd::Zero, 0x0132, exif.dateTime.toLatin1());
}

void AddRatio(TiffBuilder& tiff, quint16 tag, const std::optional<ExifRatio>& value, bool isSigned) {
  if (!value) return;
  if (isSigned) {
    tiff.SRational(Ifd::Exif, tag, value->num, value->den);
  } else {
    tiff.Rational(Ifd::Exif, tag, quint32(value->num), quint32(value->den));
  }
}

void AddExif(const ExifFields& exif, TiffBuilder& tiff) {
  if (!exif.dateTimeOriginal.isEmpty()) tiff.Ascii(Ifd::Exif, 0x9003, exif.dateTimeOriginal.toLatin1());
  if (exif.imageNumber >= 0) tiff.Long(Ifd::Exif, 0x9211, quint32(exif.imageNumber));
  if (!exif.exifVersion.isEmpty()) tiff.Undefined(Ifd::Exif, 0x9000, exif.exifVersion);
  if (exif.pixelWidth >= 0) tiff.Long(Ifd::Exif, 0xA002, quint32(exif.pixelWidth));
  if (exif.pixelHeight >= 0) tiff.Long(Ifd::Exif, 0xA003, quint32(exif.pixelHeight));
  if (exif.iso >= 0) tiff.Short(Ifd::Exif, 0x8827, quint16(exif.iso));
  if (exif.exposureProgram >= 0) tiff.Short(Ifd::Exif, 0x8822, quint16(exif.exposureProgram));
  if (exif.flash >= 0) tiff.Short(Ifd::Exif, 0x9209, quint16(exif.flash));
  AddRatio(tiff, 0x829D, exif.fNumber, false);
  AddRatio(tiff, 0x9202, exif.apertureValue, false);
  AddRatio(tiff, 0x9201, exif.shutterSpeedValue, true);
  AddRatio(tiff, 0x9204, exif.exposureBias, true);
  AddRatio(tiff, 0x920A, exif.focalLength, false);
}

QByteArray EncodeJpeg(int width, int height) {
  QImage image(width, height, QImage::Format_RGB32);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) image.setPixel(x, y, qRgb(x * 255 / width, y * 255 / height, 128));
  }
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "JPEG", 90);
  return bytes;
}

QByteArray CachedJpeg(int width, int height) {
  static std::mutex mutex;
  static QMap<QPair<int, int>, QByteArray> cache;
  const std::lock_guard<std::mutex> lock(mutex);
  const QPair<int, int> key(width, height);
  auto found = cache.find(key);
  if (found == cache.end()) found = cache.insert(key, EncodeJpeg(width, height));
  return found.value();
}

}  // namespace

ExifFields TypicalExifFields() {
  return {.dateTimeOriginal = "2004:07:15 18:03:09", .dateTime = "2004:07:16 09:00:00", .make = "Canon",
          .model = "Canon EOS 10D", .orientation = 1, .imageNumber = 1234567, .exifVersion = "0221",
          .pixelWidth = 3072, .pixelHeight = 2048, .iso = 400, .exposureProgram = 2, .flash = 16,
          .fNumber = ExifRatio{56, 10}, .apertureValue = ExifRatio{497, 100}, .shutterSpeedValue = ExifRatio{8, 1},
          .exposureBias = ExifRatio{-2, 3}, .focalLength = ExifRatio{50, 1}};
}

TiffBuilder ExifTiffBuilder(const ExifFields& exif, bool bigEndian) {
  TiffBuilder tiff(bigEndian);
  AddIfd0(exif, tiff);
  AddExif(exif, tiff);
  return tiff;
}

QByteArray MakeExifTiff(const ExifFields& exif, bool bigEndian) { return ExifTiffBuilder(exif, bigEndian).Build(); }

QByteArray MakeExifJpeg(const ExifFields* exif, int width, int height, bool bigEndian) {
  QByteArray jpeg = CachedJpeg(width, height);
  if (exif == nullptr || jpeg.size() < 2) return jpeg;
  const QByteArray payload = QByteArray("Exif\0\0", 6) + MakeExifTiff(*exif, bigEndian);
  return jpeg.insert(2, QByteArray("\xFF\xE1", 2) + Be16(quint16(payload.size() + 2)) + payload);
}

bool WriteFile(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) return false;
  return file.write(bytes) == bytes.size() && file.flush();
}

}  // namespace renvale::test

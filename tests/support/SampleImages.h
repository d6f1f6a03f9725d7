#pragma once

#include <QByteArray>
#include <QString>
#include <QtGlobal>
#include <optional>

#include "support/TiffBuilder.h"

namespace renvale::test {

// A rational as it is stored in the file: numerator over denominator.
struct ExifRatio {
  qint32 num = 0;
  qint32 den = 1;
};

// The EXIF values a generated picture carries. Empty texts, negative
// numbers and empty optionals leave the tag out.
struct ExifFields {
  QString dateTimeOriginal;   // 0x9003, Exif IFD, "yyyy:mm:dd hh:mm:ss"
  QString dateTime;           // 0x0132, IFD0 (the file-change date)
  QString make;               // 0x010F, IFD0
  QString model;              // 0x0110, IFD0
  int orientation = 0;        // 0x0112, IFD0; 0 = absent
  qint64 imageNumber = -1;    // 0x9211, Exif IFD, LONG
  QByteArray exifVersion;     // 0x9000, Exif IFD, e.g. "0221"
  int pixelWidth = -1;        // 0xA002, Exif IFD, LONG
  int pixelHeight = -1;       // 0xA003, Exif IFD, LONG
  int iso = -1;               // 0x8827, Exif IFD, SHORT
  int exposureProgram = -1;   // 0x8822, Exif IFD, SHORT
  int flash = -1;             // 0x9209, Exif IFD, SHORT
  std::optional<ExifRatio> fNumber;            // 0x829D, RATIONAL
  std::optional<ExifRatio> apertureValue;      // 0x9202, RATIONAL (APEX)
  std::optional<ExifRatio> shutterSpeedValue;  // 0x9201, SRATIONAL (APEX)
  std::optional<ExifRatio> exposureBias;       // 0x9204, SRATIONAL (EV)
  std::optional<ExifRatio> focalLength;        // 0x920A, RATIONAL (mm)
};

// A typical camera's set of values, for tests that only need "some EXIF".
ExifFields TypicalExifFields();

// A builder loaded with the fields, for tests that add odd entries or lay
// the directories out differently.
TiffBuilder ExifTiffBuilder(const ExifFields& exif, bool bigEndian);

// The EXIF block alone: a TIFF structure with IFD0 and, when any Exif IFD
// field is set, the Exif sub-IFD. Also usable as a whole TIFF-like file
// (CR2, NEF, THM-style tests); for ORF or RW2 patch bytes 2-3 of the
// result to their own magic number.
QByteArray MakeExifTiff(const ExifFields& exif, bool bigEndian);

// A real, decodable baseline JPEG of the given size. With `exif` set, an
// APP1 "Exif" segment holding MakeExifTiff(*exif, bigEndian) is placed right
// after SOI (before the encoder's JFIF APP0); with nullptr there is no EXIF.
// The encoded picture is cached per size, so making thousands is cheap.
QByteArray MakeExifJpeg(const ExifFields* exif, int width = 32, int height = 24,
                        bool bigEndian = false);

// Writes `bytes` to `path`, replacing any file there; false on failure.
bool WriteFile(const QString& path, const QByteArray& bytes);

}  // namespace renvale::test

#pragma once

#include <QString>
#include <QtGlobal>

namespace renvale::metadata {

// The sixteen tags the program asks the reader for. Their order here is the
// index into ExifTagSet.
enum class ExifTag {
  DateTimeOriginal,
  ImageNumber,
  Orientation,
  ExifVersion,
  Make,
  Model,
  ExifImageWidth,
  ExifImageLength,
  ApertureValue,
  ShutterSpeedValue,
  FocalLength,
  IsoSpeedRatings,
  ExposureBiasValue,
  ExposureProgram,
  FNumber,
  Flash,
};

// Which directory a tag belongs in. A tag found in the other one is still
// taken (TIFF/EP raws put some Exif tags into IFD0), but the home directory
// wins when both have it.
enum class ExifIfd { Zero, Exif };

// Names, numbers and home directories of the sixteen tags.
class ExifTagTable {
 public:
  static constexpr int kCount = 16;
  static constexpr quint16 kExifIfdPointer = 0x8769;

  // The tag asked for by `name` (case-sensitive, spelled as callers spell
  // it: "Fnumber", "ExifImagelength"); false for any other name.
  static bool FromName(const QString& name, ExifTag* tag);
  // The tag stored under EXIF tag number `number`; false if not one of ours.
  static bool FromNumber(quint16 number, ExifTag* tag);
  static ExifIfd HomeIfd(ExifTag tag);
  static const char* Name(ExifTag tag);
  static quint16 Number(ExifTag tag);
};

}  // namespace renvale::metadata

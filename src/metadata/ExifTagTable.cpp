#include "metadata/ExifTagTable.h"

namespace renvale::metadata {

namespace {

struct Row {
  const char* name;
  quint16 number;
  ExifIfd home;
};

// In the order of the ExifTag enumeration.
constexpr Row kRows[ExifTagTable::kCount] = {
    {"DateTimeOriginal", 0x9003, ExifIfd::Exif},
    {"ImageNumber", 0x9211, ExifIfd::Exif},
    {"Orientation", 0x0112, ExifIfd::Zero},
    {"ExifVersion", 0x9000, ExifIfd::Exif},
    {"Make", 0x010F, ExifIfd::Zero},
    {"Model", 0x0110, ExifIfd::Zero},
    {"ExifImageWidth", 0xA002, ExifIfd::Exif},
    {"ExifImagelength", 0xA003, ExifIfd::Exif},
    {"ApertureValue", 0x9202, ExifIfd::Exif},
    {"ShutterSpeedValue", 0x9201, ExifIfd::Exif},
    {"FocalLength", 0x920A, ExifIfd::Exif},
    {"ISOSpeedRatings", 0x8827, ExifIfd::Exif},
    {"ExposureBiasValue", 0x9204, ExifIfd::Exif},
    {"ExposureProgram", 0x8822, ExifIfd::Exif},
    {"Fnumber", 0x829D, ExifIfd::Exif},
    {"Flash", 0x9209, ExifIfd::Exif},
};

}  // namespace

bool ExifTagTable::FromName(const QString& name, ExifTag* tag) {
  for (int i = 0; i < kCount; ++i) {
    if (name == QLatin1String(kRows[i].name)) {
      *tag = ExifTag(i);
      return true;
    }
  }
  return false;
}

// Called for every directory entry of every file, most of them not ours:
// a cheap range test turns those away before the table is searched.
bool ExifTagTable::FromNumber(quint16 number, ExifTag* tag) {
  if (number < 0x010F || (number > 0x0112 && number < 0x829D) || number > 0xA003) return false;
  for (int i = 0; i < kCount; ++i) {
    if (kRows[i].number == number) {
      *tag = ExifTag(i);
      return true;
    }
  }
  return false;
}

ExifIfd ExifTagTable::HomeIfd(ExifTag tag) { return kRows[int(tag)].home; }

const char* ExifTagTable::Name(ExifTag tag) { return kRows[int(tag)].name; }

quint16 ExifTagTable::Number(ExifTag tag) { return kRows[int(tag)].number; }

}  // namespace renvale::metadata

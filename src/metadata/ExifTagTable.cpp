#include "metadata/ExifTagTable.h"

#include <array>

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
  // Asked twice or more per file in a batch: compare against ready QStrings
  // (length first) rather than converting each row's name on every call.
  static const std::array<QString, kCount> names = [] {
    std::array<QString, kCount> made;
    for (int i = 0; i < kCount; ++i) made[size_t(i)] = QString::fromLatin1(kRows[i].name);
    return made;
  }();
  for (int i = 0; i < kCount; ++i) {
    if (name.size() == names[size_t(i)].size() && name == names[size_t(i)]) {
      *tag = ExifTag(i);
      return true;
    }
  }
  return false;
}

// Called for every directory entry of every file, most of them not ours.
bool ExifTagTable::FromNumber(quint16 number, ExifTag* tag) {
  switch (number) {
    case 0x9003: *tag = ExifTag::DateTimeOriginal; return true;
    case 0x9211: *tag = ExifTag::ImageNumber; return true;
    case 0x0112: *tag = ExifTag::Orientation; return true;
    case 0x9000: *tag = ExifTag::ExifVersion; return true;
    case 0x010F: *tag = ExifTag::Make; return true;
    case 0x0110: *tag = ExifTag::Model; return true;
    case 0xA002: *tag = ExifTag::ExifImageWidth; return true;
    case 0xA003: *tag = ExifTag::ExifImageLength; return true;
    case 0x9202: *tag = ExifTag::ApertureValue; return true;
    case 0x9201: *tag = ExifTag::ShutterSpeedValue; return true;
    case 0x920A: *tag = ExifTag::FocalLength; return true;
    case 0x8827: *tag = ExifTag::IsoSpeedRatings; return true;
    case 0x9204: *tag = ExifTag::ExposureBiasValue; return true;
    case 0x8822: *tag = ExifTag::ExposureProgram; return true;
    case 0x829D: *tag = ExifTag::FNumber; return true;
    case 0x9209: *tag = ExifTag::Flash; return true;
    default: return false;
  }
}

ExifIfd ExifTagTable::HomeIfd(ExifTag tag) { return kRows[int(tag)].home; }

const char* ExifTagTable::Name(ExifTag tag) { return kRows[int(tag)].name; }

quint16 ExifTagTable::Number(ExifTag tag) { return kRows[int(tag)].number; }

}  // namespace renvale::metadata

// libFuzzer target for the EXIF tag reader: any bytes, every tag.
#include <QString>
#include <cstddef>
#include <cstdint>

#include "metadata/ExifReader.h"

namespace {

const QString* TagNames() {
  static const QString names[] = {
      "DateTimeOriginal", "ImageNumber",     "Orientation",       "ExifVersion",       "Make",
      "Model",            "ExifImageWidth",  "ExifImagelength",   "ApertureValue",     "ShutterSpeedValue",
      "FocalLength",      "ISOSpeedRatings", "ExposureBiasValue", "ExposureProgram",   "Fnumber",
      "Flash"};
  return names;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  renvale::metadata::ExifReader reader;
  reader.LoadBytes(reinterpret_cast<const char*>(data), static_cast<qint64>(size));
  qsizetype total = reader.Status().size();
  for (int i = 0; i < 16; ++i) total += reader.Tag(TagNames()[i]).size();
  return total < 0 ? -1 : 0;
}

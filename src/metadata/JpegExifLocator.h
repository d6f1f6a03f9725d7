#pragma once

#include "metadata/ByteReader.h"
#include "metadata/ExifBlock.h"

namespace renvale::metadata {

// Finds the APP1 "Exif" segment among the segments before a JPEG's image
// data, wherever it stands (after JFIF, XMP, ICC or maker segments).
class JpegExifLocator {
 public:
  // Enough for any real file's header segments, and a bound on the work
  // a file of nothing but tiny segments can cause.
  static constexpr int kMaxSegments = 1024;

  // `jpeg` views the JPEG from its SOI marker on; a found block is given in
  // the source's coordinates.
  static bool Find(ByteReader jpeg, ExifBlock* block);

 private:
  static bool IsStandalone(quint8 marker);
};

}  // namespace renvale::metadata

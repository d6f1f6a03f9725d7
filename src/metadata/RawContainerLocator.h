#pragma once

#include "metadata/ByteReader.h"
#include "metadata/ExifBlock.h"

namespace renvale::metadata {

// Raw formats that are not TIFF-structured themselves but carry a JPEG or a
// TIFF block with the EXIF inside: Fujifilm RAF (an embedded JPEG whose
// place the header gives), Minolta MRW (a "TTW" block holding a TIFF) and
// Sigma X3F (a JPEG preview found through the directory at the file's end).
class RawContainerLocator {
 public:
  // Directory entries or blocks looked at, at most.
  static constexpr int kMaxEntries = 64;

  static bool IsRaf(ByteReader& file);
  static bool IsMrw(ByteReader& file);
  static bool IsX3f(ByteReader& file);

  static bool FindInRaf(ByteReader file, ExifBlock* block);
  static bool FindInMrw(ByteReader file, ExifBlock* block);
  static bool FindInX3f(ByteReader file, ExifBlock* block);
};

}  // namespace renvale::metadata

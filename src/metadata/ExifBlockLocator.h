#pragma once

#include "metadata/ByteSource.h"
#include "metadata/ExifBlock.h"

namespace renvale::metadata {

// Tells the container of a file by its first bytes and finds its EXIF
// block(s): JPEG (and THM), TIFF-based raws in either byte order (TIFF,
// CR2, NEF, NRW, DNG, ARW, SR2, PEF, SRW, IIQ, ORF, RW2), CR3, HEIF, RAF,
// MRW and X3F. Any other file (CRW, PNG, MP3, ...) has no EXIF for us.
class ExifBlockLocator {
 public:
  static bool Locate(ByteSource& source, ExifLocation* location);

 private:
  static bool IsTiff(ByteSource& source);
};

}  // namespace renvale::metadata

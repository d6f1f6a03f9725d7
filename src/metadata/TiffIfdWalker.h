#pragma once

#include "metadata/ByteReader.h"
#include "metadata/ExifBlock.h"
#include "metadata/ExifTagSet.h"

namespace renvale::metadata {

// Reads the tags we answer from one TIFF-structured EXIF block: its first
// directory and, when that is IFD0, the Exif sub-IFD it points to. No other
// directory is followed, so offsets that point back or in circles cannot
// make it loop; entries and values outside the block are skipped.
class TiffIfdWalker {
 public:
  enum class Result { Ok, BadHeader, BadFirstIfd };

  static Result Walk(ByteReader block, ExifBlock::First first, ExifTagSet* tags);

 private:
  static constexpr qint64 kEntrySize = 12;

  // Reads one directory; returns false when its entry count lies outside
  // the block. `exifPointer` (may be null) receives the Exif IFD offset.
  // In a Panasonic RW2's IFD0 `panasonicIso` reads tag 0x0017 as the ISO
  // speed (a standard ISO tag in the Exif IFD still wins).
  static bool WalkIfd(ByteReader& block, qint64 offset, ExifIfd ifd, ExifTagSet* tags, quint32* exifPointer,
                      bool panasonicIso = false);
  // `entry` holds the directory entry's twelve bytes.
  static void TakeEntry(const ByteReader& block, const unsigned char* entry, ExifTag tag, ExifIfd ifd, ExifTagSet* tags);
  static int TypeSize(quint16 type);
};

}  // namespace renvale::metadata

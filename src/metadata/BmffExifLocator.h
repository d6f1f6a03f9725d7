#pragma once

#include "metadata/ByteReader.h"
#include "metadata/ExifBlock.h"

namespace renvale::metadata {

// Files in the ISO base media format: Canon CR3 (IFD0 and the Exif IFD as
// the "CMT1" and "CMT2" boxes inside Canon's uuid box in "moov") and
// HEIC/HEIF/AVIF (an item of type "Exif", found through "iinf" and placed
// by "iloc" in the "meta" box).
class BmffExifLocator {
 public:
  // Boxes looked at on one level, and items in "iinf"/"iloc", at most.
  static constexpr int kMaxBoxes = 256;
  static constexpr quint32 kMaxItems = 4096;

  static bool IsBmff(ByteReader& file);
  static bool Find(ByteReader file, ExifLocation* location);

  // One box's header, clipped to the reader (shared with the movie date
  // reader, which walks the same boxes).
  struct Box {
    quint32 type = 0;
    qint64 content = 0;  // start of the box's content within the reader
    qint64 length = 0;   // of the content
    qint64 next = 0;     // start of the following box
  };
  static bool ReadBox(ByteReader& reader, qint64 pos, Box* box);
  // A box type as the number ReadBox gives, from its four letters.
  static constexpr quint32 FourCc(const char (&text)[5]) {
    return quint32(quint8(text[0])) << 24 | quint32(quint8(text[1])) << 16 | quint32(quint8(text[2])) << 8 |
           quint32(quint8(text[3]));
  }
  // The first box of `type` among the first kMaxBoxes on the reader's level.
  static bool FindBox(ByteReader& reader, quint32 type, Box* box);

 private:
  static bool FindInMoov(ByteReader moov, ExifLocation* location);
  static bool FindInMeta(ByteReader file, const Box& meta, ExifBlock* block);
  static bool ExifItemId(ByteReader iinf, quint32* id);
  static bool ItemExtent(ByteReader iloc, quint32 id, qint64* offset, qint64* length);
  static bool ReadSized(ByteReader& reader, qint64* pos, int size, quint64* value);
};

}  // namespace renvale::metadata

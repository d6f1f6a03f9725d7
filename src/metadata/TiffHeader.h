#pragma once

#include <QtGlobal>

namespace renvale::metadata {

// The eight bytes that open a TIFF structure: byte order ("II" little-,
// "MM" big-endian), a magic number and the offset of the first directory.
// Besides TIFF's 42, Olympus ORF uses "RO" or "RS" ("IIRO", "MMOR") and
// Panasonic RW2 0x55 ("IIU\0"); their directories are plain TIFF.
class TiffHeader {
 public:
  static constexpr int kSize = 8;

  // `head` holds kSize bytes.
  static bool Valid(const char* head);
  static bool BigEndian(const char* head);
  static quint32 FirstIfdOffset(const char* head);
  // Panasonic's RW2 keeps the ISO speed in IFD0 under its own tag 0x0017.
  static bool Panasonic(const char* head);

 private:
  static quint16 Magic(const char* head);
};

}  // namespace renvale::metadata

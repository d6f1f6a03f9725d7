#pragma once

#include <QtGlobal>

namespace renvale::metadata {

// Where a TIFF-structured EXIF block lies in a file. Most containers hold
// one block whose first directory is IFD0 with a pointer to the Exif IFD;
// CR3 keeps IFD0 and the Exif IFD in two separate blocks.
struct ExifBlock {
  enum class First { Ifd0, ExifIfd };

  qint64 offset = 0;  // of the TIFF header, from the start of the file
  qint64 length = 0;
  First first = First::Ifd0;
};

// Up to two blocks, in the order they are to be read.
struct ExifLocation {
  int count = 0;
  ExifBlock blocks[2];

  void Add(const ExifBlock& block) {
    if (count < 2) blocks[count++] = block;
  }
};

}  // namespace renvale::metadata

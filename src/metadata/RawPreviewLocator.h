#pragma once

#include "metadata/ByteReader.h"
#include "metadata/ByteSource.h"

namespace renvale::metadata {

// A JPEG picture stored inside another file, with its pixel size as its
// frame header states it.
struct EmbeddedJpeg {
  qint64 offset = 0;  // of its SOI marker, from the start of the file
  qint64 length = 0;
  int width = 0;
  int height = 0;

  qint64 Pixels() const { return qint64(width) * height; }
};

// Finds the largest JPEG preview a camera embedded in a RAW file: in the
// directories of TIFF-based raws (CR2, NEF, NRW, ARW, SR2, DNG, ORF, PEF,
// SRW, and RW2's own JpgFromRaw tag), the preview box of CR3, the JPEG the
// RAF header points to, the JpgFromRaw record of a CRW heap, and the JPEG
// section of X3F. Only pictures Qt's JPEG decoder reads are offered: the
// lossless JPEG that holds the sensor data of CR2 and DNG is passed over.
class RawPreviewLocator {
 public:
  // Directories, sub-directories, boxes and heap records looked at, at most,
  // so that a file whose offsets run in circles ends quickly.
  static constexpr int kMaxDirectories = 16;
  static constexpr int kMaxEntries = 512;
  static constexpr int kMaxDepth = 3;

  static bool Locate(ByteSource& source, EmbeddedJpeg* preview);

  // The frame size of the JPEG in `jpeg` when it is one Qt decodes
  // (baseline or progressive); false for lossless and damaged ones.
  static bool DecodableFrame(ByteReader jpeg, int* width, int* height);

 private:
  struct Search;

  static void Offer(Search& search, qint64 offset, qint64 length);
  static void WalkTiff(Search& search);
  static void WalkIfd(Search& search, qint64 offset, int depth);
  static void TakeSubIfds(Search& search, quint16 type, quint32 count, qint64 valueAt, int depth);
  static void FindInCr3(Search& search);
  static void FindInCrwHeap(Search& search, qint64 start, qint64 length, int depth);
  static void FindInRaf(Search& search);
  static void FindInX3f(Search& search);
};

}  // namespace renvale::metadata

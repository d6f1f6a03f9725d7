#include "metadata/JpegExifLocator.h"

namespace renvale::metadata {

namespace {
constexpr quint8 kApp1 = 0xE1;
constexpr quint8 kStartOfScan = 0xDA;
constexpr quint8 kEndOfImage = 0xD9;
constexpr qint64 kExifSignatureSize = 6;  // "Exif" NUL and one pad byte
}  // namespace

bool JpegExifLocator::IsStandalone(quint8 marker) {
  return marker == 0x01 || marker == 0xD8 || (marker >= 0xD0 && marker <= 0xD7);
}

bool JpegExifLocator::Find(ByteReader jpeg, ExifBlock* block) {
  jpeg.SetBigEndian(true);
  if (!jpeg.Matches(0, "\xFF\xD8", 2)) return false;
  qint64 pos = 2;
  for (int segment = 0; segment < kMaxSegments; ++segment) {
    if (jpeg.U8(pos) != 0xFF) return false;
    const quint8 marker = jpeg.U8(pos + 1);
    if (!jpeg.Ok() || marker == kStartOfScan || marker == kEndOfImage) return false;
    if (marker == 0xFF || IsStandalone(marker)) {  // fill byte or marker without a length
      pos += marker == 0xFF ? 1 : 2;
      continue;
    }
    const quint16 length = jpeg.U16(pos + 2);
    if (!jpeg.Ok() || length < 2) return false;
    if (marker == kApp1 && length >= 2 + kExifSignatureSize && jpeg.Matches(pos + 4, "Exif\0", 5)) {
      const ByteReader tiff = jpeg.Sub(pos + 4 + kExifSignatureSize, length - 2 - kExifSignatureSize);
      if (!tiff.Ok()) return false;
      block->offset = tiff.Base();
      block->length = tiff.Length();
      block->first = ExifBlock::First::Ifd0;
      return true;
    }
    pos += 2 + length;
  }
  return false;
}

}  // namespace renvale::metadata

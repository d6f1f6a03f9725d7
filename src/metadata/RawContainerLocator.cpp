#include "metadata/RawContainerLocator.h"

#include "metadata/JpegExifLocator.h"

namespace renvale::metadata {

namespace {
constexpr qint64 kRafJpegOffsetAt = 84;  // then its length, both big-endian
constexpr qint64 kMrwBlockHeader = 8;    // name, then length (big-endian)
constexpr qint64 kX3fEntrySize = 12;     // offset, length, type (little-endian)
constexpr qint64 kX3fImageHeader = 28;   // "SECi" header before the picture data
constexpr quint32 kX3fFormatJpeg = 18;
}  // namespace

bool RawContainerLocator::IsRaf(ByteReader& file) { return file.Matches(0, "FUJIFILMCCD-RAW ", 16); }

bool RawContainerLocator::IsMrw(ByteReader& file) { return file.Matches(0, "\0MRM", 4); }

bool RawContainerLocator::IsX3f(ByteReader& file) { return file.Matches(0, "FOVb", 4); }

bool RawContainerLocator::FindInRaf(ByteReader file, ExifBlock* block) {
  file.SetBigEndian(true);
  const quint32 offset = file.U32(kRafJpegOffsetAt);
  const quint32 length = file.U32(kRafJpegOffsetAt + 4);
  if (!file.Ok()) return false;
  return JpegExifLocator::Find(file.Sub(offset, length), block);
}

bool RawContainerLocator::FindInMrw(ByteReader file, ExifBlock* block) {
  file.SetBigEndian(true);
  const qint64 end = qMin(file.Length(), qint64(file.U32(4)) + kMrwBlockHeader);
  qint64 pos = kMrwBlockHeader;
  for (int i = 0; i < kMaxEntries && pos + kMrwBlockHeader <= end; ++i) {
    const quint32 length = file.U32(pos + 4);
    if (!file.Ok()) return false;
    if (file.Matches(pos, "\0TTW", 4)) {
      const ByteReader tiff = file.Sub(pos + kMrwBlockHeader, length);
      if (!tiff.Ok()) return false;
      *block = ExifBlock{tiff.Base(), tiff.Length(), ExifBlock::First::Ifd0};
      return true;
    }
    pos += kMrwBlockHeader + length;
  }
  return false;
}

bool RawContainerLocator::FindInX3f(ByteReader file, ExifBlock* block) {
  file.SetBigEndian(false);
  const qint64 directory = file.U32(file.Length() - 4);
  if (!file.Ok() || !file.Matches(directory, "SECd", 4)) return false;
  const qint64 entries = qMin<qint64>(file.U32(directory + 8), kMaxEntries);
  for (qint64 i = 0; i < entries && file.Ok(); ++i) {
    const qint64 entry = directory + 12 + i * kX3fEntrySize;
    const qint64 offset = file.U32(entry);
    const qint64 length = file.U32(entry + 4);
    const bool image = file.Matches(entry + 8, "IMA2", 4) || file.Matches(entry + 8, "IMAG", 4);
    if (!image || length < kX3fImageHeader || !file.Matches(offset, "SECi", 4)) continue;
    if (file.U32(offset + 12) != kX3fFormatJpeg) continue;
    if (JpegExifLocator::Find(file.Sub(offset + kX3fImageHeader, length - kX3fImageHeader), block)) return true;
  }
  return false;
}

}  // namespace renvale::metadata

#include "metadata/TiffIfdWalker.h"

#include "metadata/TiffHeader.h"

namespace renvale::metadata {

namespace {
constexpr quint16 kTypeLong = 4;
constexpr quint16 kTypeIfd = 13;
constexpr quint16 kPanasonicIso = 0x0017;
}  // namespace

int TiffIfdWalker::TypeSize(quint16 type) {
  // BYTE ASCII SHORT LONG RATIONAL SBYTE UNDEFINED SSHORT SLONG SRATIONAL FLOAT DOUBLE IFD
  static constexpr int kSizes[14] = {0, 1, 1, 2, 4, 8, 1, 1, 2, 4, 8, 4, 8, 4};
  return type < 14 ? kSizes[type] : 0;
}

TiffIfdWalker::Result TiffIfdWalker::Walk(ByteReader block, ExifBlock::First first, ExifTagSet* tags) {
  char head[TiffHeader::kSize];
  if (!block.Bytes(0, head, TiffHeader::kSize) || !TiffHeader::Valid(head)) return Result::BadHeader;
  block.SetBigEndian(TiffHeader::BigEndian(head));
  const quint32 firstIfd = TiffHeader::FirstIfdOffset(head);
  if (firstIfd < TiffHeader::kSize) return Result::BadFirstIfd;
  if (first == ExifBlock::First::ExifIfd) {
    return WalkIfd(block, firstIfd, ExifIfd::Exif, tags, nullptr) ? Result::Ok : Result::BadFirstIfd;
  }
  quint32 exifPointer = 0;
  if (!WalkIfd(block, firstIfd, ExifIfd::Zero, tags, &exifPointer, TiffHeader::Panasonic(head))) {
    return Result::BadFirstIfd;
  }
  // A damaged Exif IFD leaves its tags absent; what IFD0 gave still counts.
  if (exifPointer >= TiffHeader::kSize && exifPointer != firstIfd) {
    WalkIfd(block, exifPointer, ExifIfd::Exif, tags, nullptr);
  }
  return Result::Ok;
}

bool TiffIfdWalker::WalkIfd(ByteReader& block, qint64 offset, ExifIfd ifd, ExifTagSet* tags,
                            quint32* exifPointer, bool panasonicIso) {
  ByteReader reader = block;  // its own error flag: a bad entry must not spoil the rest
  const quint16 count = reader.U16(offset);
  if (!reader.Ok()) return false;
  for (quint16 i = 0; i < count; ++i) {
    const qint64 entry = offset + 2 + kEntrySize * i;
    if (!block.Has(entry, kEntrySize)) break;  // a truncated directory: keep what is there
    ByteReader entryReader = block;
    const quint16 tag = entryReader.U16(entry);
    const quint16 type = entryReader.U16(entry + 2);
    if (exifPointer != nullptr && *exifPointer == 0 && tag == ExifTagTable::kExifIfdPointer &&
        (type == kTypeLong || type == kTypeIfd) && entryReader.U32(entry + 4) >= 1) {
      *exifPointer = entryReader.U32(entry + 8);
      continue;
    }
    ExifTag ours;
    if (panasonicIso && tag == kPanasonicIso) {
      TakeEntry(entryReader, entry, ExifTag::IsoSpeedRatings, ExifIfd::Zero, tags);
    } else if (ExifTagTable::FromNumber(tag, &ours)) {
      TakeEntry(entryReader, entry, ours, ifd, tags);
    }
  }
  return true;
}

void TiffIfdWalker::TakeEntry(ByteReader& block, qint64 entry, ExifTag tag, ExifIfd ifd, ExifTagSet* tags) {
  ExifRawValue value;
  value.type = block.U16(entry + 2);
  value.count = block.U32(entry + 4);
  value.bigEndian = block.BigEndian();
  const quint64 total = quint64(TypeSize(value.type)) * value.count;
  if (total == 0) return;
  const qint64 at = total <= 4 ? entry + 8 : qint64(block.U32(entry + 8));
  // A value that does not lie wholly inside the block is skipped, so a cut
  // file never yields a cut text. Of a long value only the head is kept (and
  // must be there); no tag of ours needs more.
  value.size = int(qMin<quint64>(total, ExifRawValue::kMaxBytes));
  value.size -= value.size % TypeSize(value.type);
  if (value.size == 0 || !block.Bytes(at, value.bytes, value.size)) return;
  tags->Offer(tag, ifd, value);
}

}  // namespace renvale::metadata

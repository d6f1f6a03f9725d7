#include "metadata/TiffIfdWalker.h"

#include "metadata/TiffHeader.h"

#include <cstring>

namespace renvale::metadata {

namespace {
constexpr quint16 kTypeLong = 4;
constexpr quint16 kTypeIfd = 13;
constexpr quint16 kPanasonicIso = 0x0017;

inline quint16 Get16(const unsigned char* p, bool bigEndian) {
  return bigEndian ? quint16(p[0] << 8 | p[1]) : quint16(p[1] << 8 | p[0]);
}

inline quint32 Get32(const unsigned char* p, bool bigEndian) {
  return bigEndian ? quint32(Get16(p, true)) << 16 | Get16(p + 2, true)
                   : quint32(Get16(p + 2, false)) << 16 | Get16(p, false);
}

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
  const bool bigEndian = block.BigEndian();
  for (quint16 i = 0; i < count; ++i) {
    const qint64 at = offset + 2 + kEntrySize * i;
    char copy[kEntrySize];
    const char* peeked = block.Peek(at, kEntrySize);
    // A truncated directory: keep what is there.
    if (peeked == nullptr && !reader.Bytes(at, copy, kEntrySize)) break;
    const auto* entry = reinterpret_cast<const unsigned char*>(peeked != nullptr ? peeked : copy);
    const quint16 tag = Get16(entry, bigEndian);
    const quint16 type = Get16(entry + 2, bigEndian);
    if (exifPointer != nullptr && *exifPointer == 0 && tag == ExifTagTable::kExifIfdPointer &&
        (type == kTypeLong || type == kTypeIfd) && Get32(entry + 4, bigEndian) >= 1) {
      *exifPointer = Get32(entry + 8, bigEndian);
      continue;
    }
    ExifTag ours;
    if (panasonicIso && tag == kPanasonicIso) {
      TakeEntry(block, entry, ExifTag::IsoSpeedRatings, ExifIfd::Zero, tags);
    } else if (ExifTagTable::FromNumber(tag, &ours)) {
      TakeEntry(block, entry, ours, ifd, tags);
    }
  }
  return true;
}

void TiffIfdWalker::TakeEntry(const ByteReader& block, const unsigned char* entry, ExifTag tag, ExifIfd ifd,
                              ExifTagSet* tags) {
  ExifRawValue* value = tags->Claim(tag, ifd);
  if (value == nullptr) return;
  value->bigEndian = block.BigEndian();
  value->type = Get16(entry + 2, value->bigEndian);
  value->count = Get32(entry + 4, value->bigEndian);
  const int unit = TypeSize(value->type);
  const quint64 total = quint64(unit) * value->count;
  if (total == 0) return;
  // A value that does not lie wholly inside the block is skipped, so a cut
  // file never yields a cut text. Of a long value only the head is kept (and
  // must be there); no tag of ours needs more.
  value->size = int(qMin<quint64>(total, ExifRawValue::kMaxBytes));
  value->size -= value->size % unit;
  if (value->size == 0) return;
  const qint64 at = Get32(entry + 8, value->bigEndian);
  const char* peeked = total <= 4 ? reinterpret_cast<const char*>(entry + 8) : block.Peek(at, value->size);
  if (peeked != nullptr) {
    std::memcpy(value->bytes, peeked, size_t(value->size));
  } else {
    ByteReader reader = block;  // a failed read must not mark the whole block
    if (!reader.Bytes(at, value->bytes, value->size)) return;
  }
  tags->Keep(tag, ifd, value);
}

}  // namespace renvale::metadata

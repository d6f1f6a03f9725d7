#include "metadata/RawPreviewLocator.h"

#include <QByteArray>

#include "metadata/TiffHeader.h"

namespace renvale::metadata {

namespace {

constexpr quint16 kTagCompression = 0x0103;
constexpr quint16 kTagStripOffsets = 0x0111;
constexpr quint16 kTagStripByteCounts = 0x0117;
constexpr quint16 kTagSubIfds = 0x014A;
constexpr quint16 kTagJpegOffset = 0x0201;
constexpr quint16 kTagJpegLength = 0x0202;
constexpr quint16 kTagPanasonicJpgFromRaw = 0x002E;
constexpr quint16 kCompressionOldJpeg = 6;
constexpr quint16 kCompressionJpeg = 7;
constexpr quint16 kTypeShort = 3;
constexpr qint64 kIfdEntrySize = 12;
constexpr quint32 kMaxSubIfds = 8;

constexpr qint64 kRafJpegOffsetAt = 84;  // then its length, both big-endian
constexpr qint64 kX3fEntrySize = 12;     // offset, length, type (little-endian)
constexpr qint64 kX3fImageHeader = 28;   // "SECi" header before the picture data
constexpr quint32 kX3fFormatJpeg = 18;

constexpr qint64 kCrwEntrySize = 10;     // type, size, offset
constexpr quint16 kCrwJpgFromRaw = 0x2007;
constexpr quint16 kCrwStorageMask = 0xC000;  // 0: data in the heap
constexpr quint16 kCrwDataTypeMask = 0x3800;
constexpr quint16 kCrwSubHeap1 = 0x2800;
constexpr quint16 kCrwSubHeap2 = 0x3000;

// Canon's CR3 keeps its 1620-pixel preview in a "PRVW" box inside a uuid
// box of the top level, and a 160-pixel "THMB" inside the uuid box in "moov".
constexpr char kCanonPreviewUuid[] = "\xEA\xF4\x2B\x5E\x1C\x98\x4B\x88\xB9\xFB\xB7\xDC\x40\x6E\x4D\x16";
constexpr char kCanonMoovUuid[] = "\x85\xC0\xB6\x87\x82\x0F\x11\xE0\x81\x11\xF4\xCE\x46\x2B\x6A\x48";
constexpr qint64 kPrvwJpegAt = 16;  // after version, flags, width, height and the JPEG's length
constexpr qint64 kPrvwLengthAt = 12;
constexpr qint64 kThmbJpegAt = 16;
constexpr qint64 kThmbLengthAt = 8;
constexpr qint64 kCanonPreviewSkip = 16 + 8;  // uuid, then a version word pair

struct Box {
  QByteArray type;
  qint64 content = 0;
  qint64 length = 0;
  qint64 next = 0;
};

bool ReadBox(ByteReader& reader, qint64 pos, Box* box) {
  if (!reader.Has(pos, 8)) return false;
  quint64 size = reader.U32(pos);
  char type[4];
  reader.Bytes(pos + 4, type, 4);
  qint64 header = 8;
  if (size == 1) {
    size = reader.U64(pos + 8);
    header = 16;
  } else if (size == 0) {
    size = quint64(reader.Length() - pos);
  }
  if (!reader.Ok() || size < quint64(header)) return false;
  const qint64 room = reader.Length() - pos;
  const qint64 length = size > quint64(room) ? room : qint64(size);
  box->type = QByteArray(type, 4);
  box->content = pos + header;
  box->length = qMax<qint64>(0, length - header);
  box->next = pos + length;
  return true;
}

bool IsLosslessOrUnusualFrame(quint8 marker) {
  return marker == 0xC3 || (marker >= 0xC5 && marker <= 0xC7) || (marker >= 0xC9 && marker <= 0xCB) ||
         (marker >= 0xCD && marker <= 0xCF);
}

}  // namespace

struct RawPreviewLocator::Search {
  ByteReader file;
  EmbeddedJpeg best;
  bool found = false;
  int directories = 0;  // every directory, box or heap looked at
  bool panasonic = false;
};

bool RawPreviewLocator::DecodableFrame(ByteReader jpeg, int* width, int* height) {
  jpeg.SetBigEndian(true);
  if (jpeg.U16(0) != 0xFFD8) return false;
  qint64 pos = 2;
  for (int segment = 0; segment < kMaxEntries && jpeg.Ok(); ++segment) {
    if (jpeg.U8(pos) != 0xFF) return false;
    quint8 marker = jpeg.U8(pos + 1);
    while (marker == 0xFF && jpeg.Ok()) marker = jpeg.U8(++pos + 1);  // fill bytes
    if (marker == 0xC0 || marker == 0xC1 || marker == 0xC2) {
      *height = jpeg.U16(pos + 5);
      *width = jpeg.U16(pos + 7);
      return jpeg.Ok() && *width > 0 && *height > 0;
    }
    if (IsLosslessOrUnusualFrame(marker) || marker == 0xDA || marker == 0xD9) return false;
    const quint16 length = jpeg.U16(pos + 2);
    if (length < 2) return false;
    pos += 2 + length;
  }
  return false;
}

// A candidate wins by its pixels; of two the same size, the longer file
// (the better quality) wins.
void RawPreviewLocator::Offer(Search& search, qint64 offset, qint64 length) {
  if (length < 4 || !search.file.Has(offset, length)) return;
  EmbeddedJpeg candidate{search.file.Base() + offset, length, 0, 0};
  if (!DecodableFrame(search.file.Sub(offset, length), &candidate.width, &candidate.height)) return;
  const bool larger = candidate.Pixels() > search.best.Pixels() ||
                      (candidate.Pixels() == search.best.Pixels() && candidate.length > search.best.length);
  if (!search.found || larger) search.best = candidate;
  search.found = true;
}

bool RawPreviewLocator::Locate(ByteSource& source, EmbeddedJpeg* preview) {
  Search search{ByteReader(source, 0, source.Size()), {}, false, 0, false};
  ByteReader& file = search.file;
  char head[TiffHeader::kSize];
  if (file.Bytes(0, head, TiffHeader::kSize) && TiffHeader::Valid(head)) {
    search.panasonic = TiffHeader::Panasonic(head);
    file.SetBigEndian(TiffHeader::BigEndian(head));
    WalkTiff(search);
  } else if (file.Matches(4, "ftyp", 4)) {
    FindInCr3(search);
  } else if (file.Matches(6, "HEAPCCDR", 8)) {
    file.SetBigEndian(file.Matches(0, "MM", 2));
    const qint64 heap = file.U32(2);
    if (file.Ok()) FindInCrwHeap(search, heap, file.Length() - heap, 0);
  } else if (file.Matches(0, "FUJIFILMCCD-RAW ", 16)) {
    FindInRaf(search);
  } else if (file.Matches(0, "FOVb", 4)) {
    FindInX3f(search);
  }
  if (search.found) *preview = search.best;
  return search.found;
}

void RawPreviewLocator::WalkTiff(Search& search) {
  ByteReader& file = search.file;
  qint64 offset = file.U32(4);
  qint64 seen[kMaxDirectories] = {};
  for (int n = 0; n < kMaxDirectories && offset != 0 && file.Ok(); ++n) {
    for (int i = 0; i < n; ++i) {
      if (seen[i] == offset) return;
    }
    seen[n] = offset;
    WalkIfd(search, offset, 0);
    const quint16 entries = file.U16(offset);
    offset = file.U32(offset + 2 + entries * kIfdEntrySize);
  }
}

void RawPreviewLocator::WalkIfd(Search& search, qint64 offset, int depth) {
  if (++search.directories > kMaxDirectories * 4) return;
  ByteReader file = search.file;  // a bad entry must not end the walk of the rest
  const quint16 entries = file.U16(offset);
  if (!file.Ok() || entries > kMaxEntries) return;
  qint64 jpegOffset = 0, jpegLength = 0, stripOffset = 0, stripLength = 0;
  quint16 compression = 0;
  for (qint64 i = 0; i < entries; ++i) {
    const qint64 entry = offset + 2 + i * kIfdEntrySize;
    const quint16 tag = file.U16(entry);
    const quint16 type = file.U16(entry + 2);
    const quint32 count = file.U32(entry + 4);
    const qint64 valueAt = entry + 8;
    const quint32 value = type == kTypeShort ? file.U16(valueAt) : file.U32(valueAt);
    if (!file.Ok()) return;
    switch (tag) {
      case kTagCompression: compression = quint16(value); break;
      case kTagJpegOffset: jpegOffset = value; break;
      case kTagJpegLength: jpegLength = value; break;
      // Only a single strip can be a whole JPEG file.
      case kTagStripOffsets: stripOffset = count == 1 ? value : 0; break;
      case kTagStripByteCounts: stripLength = count == 1 ? value : 0; break;
      case kTagSubIfds: TakeSubIfds(search, type, count, valueAt, depth); break;
      case kTagPanasonicJpgFromRaw:
        if (search.panasonic && depth == 0) Offer(search, value, count);
        break;
      default: break;
    }
  }
  if (jpegOffset != 0) Offer(search, jpegOffset, jpegLength);
  if (compression == kCompressionOldJpeg || compression == kCompressionJpeg) {
    Offer(search, stripOffset, stripLength);
  }
}

void RawPreviewLocator::TakeSubIfds(Search& search, quint16 type, quint32 count, qint64 valueAt, int depth) {
  if (depth >= kMaxDepth || count == 0 || type == kTypeShort) return;
  ByteReader file = search.file;
  // One offset fits in the entry; several are stored elsewhere.
  const qint64 list = count == 1 ? valueAt : qint64(file.U32(valueAt));
  for (quint32 i = 0; i < count && i < kMaxSubIfds && file.Ok(); ++i) {
    const qint64 offset = file.U32(list + 4 * i);
    if (file.Ok()) WalkIfd(search, offset, depth + 1);
  }
}

void RawPreviewLocator::FindInCr3(Search& search) {
  ByteReader& file = search.file;
  file.SetBigEndian(true);
  Box box;
  qint64 pos = 0;
  for (int i = 0; i < kMaxEntries && ReadBox(file, pos, &box); ++i) {
    pos = box.next;
    const bool preview = box.type == "uuid" && file.Matches(box.content, kCanonPreviewUuid, 16);
    const bool moov = box.type == "moov";
    if (!preview && !moov) continue;
    ByteReader inside = file.Sub(box.content, box.length);
    qint64 at = preview ? kCanonPreviewSkip : 0;
    Box child;
    for (int j = 0; j < kMaxEntries && ReadBox(inside, at, &child); ++j) {
      at = child.next;
      if (child.type == "PRVW") {
        const qint64 length = qMin<qint64>(inside.U32(child.content + kPrvwLengthAt), child.length - kPrvwJpegAt);
        Offer(search, inside.Base() + child.content + kPrvwJpegAt, length);
      } else if (moov && child.type == "uuid" && inside.Matches(child.content, kCanonMoovUuid, 16)) {
        ByteReader canon = inside.Sub(child.content + 16, child.length - 16);
        Box thumb;
        for (qint64 t = 0, k = 0; k < kMaxEntries && ReadBox(canon, t, &thumb); ++k, t = thumb.next) {
          if (thumb.type != "THMB") continue;
          const qint64 length = qMin<qint64>(canon.U32(thumb.content + kThmbLengthAt), thumb.length - kThmbJpegAt);
          Offer(search, canon.Base() + thumb.content + kThmbJpegAt, length);
        }
      }
    }
  }
}

// A CIFF heap ends with the offset of its record table; records either
// hold data in the heap or are heaps themselves.
void RawPreviewLocator::FindInCrwHeap(Search& search, qint64 start, qint64 length, int depth) {
  if (++search.directories > kMaxDirectories * 4 || length < 4) return;
  ByteReader heap = search.file.Sub(start, length);
  const qint64 table = heap.U32(length - 4);
  const quint16 records = heap.U16(table);
  for (qint64 i = 0; i < records && i < kMaxEntries && heap.Ok(); ++i) {
    const qint64 entry = table + 2 + i * kCrwEntrySize;
    const quint16 type = heap.U16(entry);
    const qint64 size = heap.U32(entry + 2);
    const qint64 offset = heap.U32(entry + 6);
    if (!heap.Ok() || (type & kCrwStorageMask) != 0) continue;
    if (type == kCrwJpgFromRaw) {
      Offer(search, heap.Base() + offset, size);
    } else if (((type & kCrwDataTypeMask) == kCrwSubHeap1 || (type & kCrwDataTypeMask) == kCrwSubHeap2) &&
               depth < kMaxDepth && heap.Has(offset, size)) {
      FindInCrwHeap(search, heap.Base() + offset, size, depth + 1);
    }
  }
}

void RawPreviewLocator::FindInRaf(Search& search) {
  ByteReader& file = search.file;
  file.SetBigEndian(true);
  const qint64 offset = file.U32(kRafJpegOffsetAt);
  const qint64 length = file.U32(kRafJpegOffsetAt + 4);
  if (file.Ok()) Offer(search, offset, length);
}

void RawPreviewLocator::FindInX3f(Search& search) {
  ByteReader& file = search.file;
  file.SetBigEndian(false);
  const qint64 directory = file.U32(file.Length() - 4);
  if (!file.Ok() || !file.Matches(directory, "SECd", 4)) return;
  const qint64 entries = qMin<qint64>(file.U32(directory + 8), kMaxEntries);
  for (qint64 i = 0; i < entries && file.Ok(); ++i) {
    const qint64 entry = directory + 12 + i * kX3fEntrySize;
    const qint64 offset = file.U32(entry);
    const qint64 length = file.U32(entry + 4);
    const bool image = file.Matches(entry + 8, "IMA2", 4) || file.Matches(entry + 8, "IMAG", 4);
    if (!image || length < kX3fImageHeader || !file.Matches(offset, "SECi", 4)) continue;
    if (file.U32(offset + 12) != kX3fFormatJpeg) continue;
    Offer(search, offset + kX3fImageHeader, length - kX3fImageHeader);
  }
}

}  // namespace renvale::metadata

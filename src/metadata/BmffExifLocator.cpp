#include "metadata/BmffExifLocator.h"

namespace renvale::metadata {

namespace {


constexpr quint32 kMoov = BmffExifLocator::FourCc("moov");
constexpr quint32 kMeta = BmffExifLocator::FourCc("meta");
constexpr quint32 kUuid = BmffExifLocator::FourCc("uuid");
constexpr quint32 kIinf = BmffExifLocator::FourCc("iinf");
constexpr quint32 kIloc = BmffExifLocator::FourCc("iloc");
constexpr quint32 kInfe = BmffExifLocator::FourCc("infe");
constexpr quint32 kExif = BmffExifLocator::FourCc("Exif");
constexpr quint32 kCmt1 = BmffExifLocator::FourCc("CMT1");
constexpr quint32 kCmt2 = BmffExifLocator::FourCc("CMT2");
constexpr qint64 kFullBoxHeader = 4;  // version and flags
constexpr char kCanonUuid[] = "\x85\xC0\xB6\x87\x82\x0F\x11\xE0\x81\x11\xF4\xCE\x46\x2B\x6A\x48";

}  // namespace

bool BmffExifLocator::IsBmff(ByteReader& file) { return file.Matches(4, "ftyp", 4); }

bool BmffExifLocator::ReadBox(ByteReader& reader, qint64 pos, Box* box) {
  if (!reader.Has(pos, 8)) return false;
  quint64 size = reader.U32(pos);
  box->type = reader.U32(pos + 4);
  qint64 header = 8;
  if (size == 1) {
    size = reader.U64(pos + 8);
    header = 16;
  } else if (size == 0) {  // runs to the end of its parent
    size = quint64(reader.Length() - pos);
  }
  if (!reader.Ok() || size < quint64(header)) return false;
  // A truncated file still shows the part of the box it has.
  const qint64 room = reader.Length() - pos;
  const qint64 length = size > quint64(room) ? room : qint64(size);
  box->content = pos + header;
  box->length = qMax<qint64>(0, length - header);
  box->next = pos + length;
  return true;
}

bool BmffExifLocator::FindBox(ByteReader& reader, quint32 type, Box* box) {
  qint64 pos = 0;
  for (int i = 0; i < kMaxBoxes && ReadBox(reader, pos, box); ++i) {
    if (box->type == type) return true;
    pos = box->next;
  }
  return false;
}

bool BmffExifLocator::Find(ByteReader file, ExifLocation* location) {
  file.SetBigEndian(true);
  Box box;
  qint64 pos = 0;
  for (int i = 0; i < kMaxBoxes && ReadBox(file, pos, &box); ++i) {
    if (box.type == kMoov && FindInMoov(file.Sub(box.content, box.length), location)) return true;
    ExifBlock block;
    if (box.type == kMeta && FindInMeta(file, box, &block)) {
      location->Add(block);
      return true;
    }
    pos = box.next;
  }
  return false;
}

bool BmffExifLocator::FindInMoov(ByteReader moov, ExifLocation* location) {
  Box box;
  qint64 pos = 0;
  for (int i = 0; i < kMaxBoxes && ReadBox(moov, pos, &box); ++i) {
    pos = box.next;
    if (box.type != kUuid || !moov.Matches(box.content, kCanonUuid, 16)) continue;
    ByteReader canon = moov.Sub(box.content + 16, box.length - 16);
    Box cmt;
    if (FindBox(canon, kCmt1, &cmt)) {
      location->Add(ExifBlock{canon.Base() + cmt.content, cmt.length, ExifBlock::First::Ifd0});
    }
    if (FindBox(canon, kCmt2, &cmt)) {
      location->Add(ExifBlock{canon.Base() + cmt.content, cmt.length, ExifBlock::First::ExifIfd});
    }
    return location->count > 0;
  }
  return false;
}

bool BmffExifLocator::FindInMeta(ByteReader file, const Box& meta, ExifBlock* block) {
  ByteReader children = file.Sub(meta.content + kFullBoxHeader, meta.length - kFullBoxHeader);
  Box iinf;
  Box iloc;
  quint32 id = 0;
  if (!FindBox(children, kIinf, &iinf) || !ExifItemId(children.Sub(iinf.content, iinf.length), &id)) return false;
  qint64 offset = 0;
  qint64 length = 0;
  if (!FindBox(children, kIloc, &iloc) || !ItemExtent(children.Sub(iloc.content, iloc.length), id, &offset, &length)) {
    return false;
  }
  // The item starts with the distance from its fifth byte to the TIFF
  // header (the "Exif\0\0" signature usually lies between).
  ByteReader item = file.Sub(offset, length);
  const quint32 skip = item.U32(0);
  const ByteReader tiff = item.Sub(4 + qint64(skip), length);
  if (!item.Ok() || !tiff.Ok()) return false;
  *block = ExifBlock{tiff.Base(), tiff.Length(), ExifBlock::First::Ifd0};
  return true;
}

bool BmffExifLocator::ExifItemId(ByteReader iinf, quint32* id) {
  const quint8 version = iinf.U8(0);
  qint64 pos = kFullBoxHeader + (version == 0 ? 2 : 4);
  Box infe;
  for (quint32 i = 0; i < kMaxItems && ReadBox(iinf, pos, &infe); ++i) {
    pos = infe.next;
    const quint8 infeVersion = iinf.U8(infe.content);
    if (infe.type != kInfe || infeVersion < 2) continue;
    const qint64 idAt = infe.content + kFullBoxHeader;
    const quint32 itemId = infeVersion == 2 ? iinf.U16(idAt) : iinf.U32(idAt);
    const qint64 typeAt = idAt + (infeVersion == 2 ? 2 : 4) + 2;  // after item_protection_index
    if (iinf.U32(typeAt) == kExif && iinf.Ok()) {
      *id = itemId;
      return true;
    }
  }
  return false;
}

bool BmffExifLocator::ReadSized(ByteReader& reader, qint64* pos, int size, quint64* value) {
  if (size == 0) {
    *value = 0;
  } else if (size == 4) {
    *value = reader.U32(*pos);
  } else if (size == 8) {
    *value = reader.U64(*pos);
  } else {
    return false;
  }
  *pos += size;
  return reader.Ok();
}

bool BmffExifLocator::ItemExtent(ByteReader iloc, quint32 id, qint64* offset, qint64* length) {
  const quint8 version = iloc.U8(0);
  const quint8 sizes = iloc.U8(4);
  const quint8 sizes2 = iloc.U8(5);
  const int offsetSize = sizes >> 4;
  const int lengthSize = sizes & 15;
  const int baseSize = sizes2 >> 4;
  const int indexSize = (version == 1 || version == 2) ? (sizes2 & 15) : 0;
  qint64 pos = 6;
  const quint32 items = version < 2 ? iloc.U16(pos) : iloc.U32(pos);
  pos += version < 2 ? 2 : 4;
  for (quint32 i = 0; i < items && i < kMaxItems && iloc.Ok(); ++i) {
    const quint32 itemId = version < 2 ? iloc.U16(pos) : iloc.U32(pos);
    pos += version < 2 ? 2 : 4;
    const bool inFile = version == 0 || (iloc.U16(pos) & 15) == 0;  // construction method 0
    pos += version == 0 ? 2 : 4;                                      // (method and) data_reference_index
    quint64 base = 0;
    if (!ReadSized(iloc, &pos, baseSize, &base)) return false;
    const quint16 extents = iloc.U16(pos);
    pos += 2;
    for (quint16 e = 0; e < extents && iloc.Ok(); ++e) {
      quint64 index = 0;
      quint64 extentOffset = 0;
      quint64 extentLength = 0;
      if ((indexSize > 0 && !ReadSized(iloc, &pos, indexSize, &index)) ||
          !ReadSized(iloc, &pos, offsetSize, &extentOffset) || !ReadSized(iloc, &pos, lengthSize, &extentLength)) {
        return false;
      }
      if (itemId != id || e != 0) continue;
      const quint64 start = base + extentOffset;
      if (!inFile || start < base || start > quint64(INT64_MAX) || extentLength > quint64(INT64_MAX)) return false;
      *offset = qint64(start);
      // A length of 0 means "to the end of the file".
      *length = extentLength == 0 ? INT64_MAX : qint64(extentLength);
      return true;
    }
  }
  return false;
}

}  // namespace renvale::metadata

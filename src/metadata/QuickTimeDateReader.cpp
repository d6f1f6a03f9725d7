#include "metadata/QuickTimeDateReader.h"

#include <QDateTime>

#include "metadata/ExifDateTime.h"

namespace renvale::metadata {
namespace {


constexpr quint32 kMoov = BmffExifLocator::FourCc("moov");
constexpr quint32 kMvhd = BmffExifLocator::FourCc("mvhd");
constexpr quint32 kMeta = BmffExifLocator::FourCc("meta");
constexpr quint32 kUdta = BmffExifLocator::FourCc("udta");
constexpr quint32 kHdlr = BmffExifLocator::FourCc("hdlr");
constexpr quint32 kKeys = BmffExifLocator::FourCc("keys");
constexpr quint32 kIlst = BmffExifLocator::FourCc("ilst");
constexpr quint32 kData = BmffExifLocator::FourCc("data");
constexpr qint64 kFullBoxHeader = 4;  // version and flags
constexpr qint64 kKeyEntryHeader = 8;  // size and namespace
constexpr qint64 kDataHeader = 8;      // type and locale
constexpr char kCreationDateKey[] = "com.apple.quicktime.creationdate";
constexpr qint64 kCreationDateKeyLength = sizeof kCreationDateKey - 1;

// 1904-01-01 to 1970-01-02, and to 9999-12-31 23:59:59.
constexpr quint64 kFirstPossible = 2082844800ull + 86400;
constexpr quint64 kLastPossible = 2082844800ull + 253402300799ull;
constexpr qsizetype kIsoDateTimeLength = 19;  // "2019-03-10T14:22:05"

}  // namespace

QString QuickTimeDateReader::Read(ByteReader file) {
  file.SetBigEndian(true);
  Box box;
  qint64 pos = 0;
  for (int i = 0; i < BmffExifLocator::kMaxBoxes && BmffExifLocator::ReadBox(file, pos, &box); ++i) {
    if (!LooksLikeBox(box)) return {};
    if (box.type != kMoov) {
      pos = box.next;
      continue;
    }
    ByteReader moov = file.Sub(box.content, box.length);
    QString date;
    Box child;
    if (BmffExifLocator::FindBox(moov, kMeta, &child)) date = KeyDate(moov, child);
    Box udta;
    if (date.isEmpty() && BmffExifLocator::FindBox(moov, kUdta, &udta)) {
      ByteReader inUdta = moov.Sub(udta.content, udta.length);
      if (BmffExifLocator::FindBox(inUdta, kMeta, &child)) date = KeyDate(inUdta, child);
    }
    if (date.isEmpty() && BmffExifLocator::FindBox(moov, kMvhd, &child)) date = HeaderDate(moov, child);
    return date;
  }
  return {};
}

// Box types are four printable characters; anything else means this is no
// movie (or the walk went astray), and nothing more is read.
bool QuickTimeDateReader::LooksLikeBox(const Box& box) {
  for (int shift = 0; shift < 32; shift += 8) {
    const quint32 c = box.type >> shift & 0xFF;
    if (c < 0x20 || c > 0x7E) return false;
  }
  return true;
}

QString QuickTimeDateReader::HeaderDate(ByteReader& moov, const Box& mvhd) {
  const quint8 version = moov.U8(mvhd.content);
  const quint64 seconds = version == 1 ? moov.U64(mvhd.content + kFullBoxHeader)
                                       : moov.U32(mvhd.content + kFullBoxHeader);
  return moov.Ok() ? MovieTimeText(seconds) : QString();
}

QString QuickTimeDateReader::MovieTimeText(quint64 seconds) {
  if (seconds < kFirstPossible || seconds > kLastPossible) return {};
  const QDateTime utc(QDate(1904, 1, 1), QTime(0, 0), Qt::UTC);
  const QString text = utc.addSecs(qint64(seconds)).toLocalTime().toString(QStringLiteral("yyyy:MM:dd HH:mm:ss"));
  return IsRealExifDateTime(text) ? text : QString();
}

QString QuickTimeDateReader::KeyDateText(const QByteArray& value) {
  return ExifLayoutDateTime(QString::fromLatin1(value.left(kIsoDateTimeLength)));
}

// Apple's "meta" box has no version and flags, the ISO one has: the
// handler box that comes first in both tells them apart.
QString QuickTimeDateReader::KeyDate(ByteReader& parent, const Box& meta) {
  const qint64 skip = parent.U32(meta.content + 4) == kHdlr ? 0 : kFullBoxHeader;
  ByteReader children = parent.Sub(meta.content + skip, meta.length - skip);
  Box keys;
  Box ilst;
  quint32 index = 0;
  QByteArray value;
  if (!BmffExifLocator::FindBox(children, kKeys, &keys) ||
      !KeyIndex(children.Sub(keys.content, keys.length), &index) ||
      !BmffExifLocator::FindBox(children, kIlst, &ilst) ||
      !ItemValue(children.Sub(ilst.content, ilst.length), index, &value)) {
    return {};
  }
  return KeyDateText(value);
}

// The number (from 1) of the creation-date key in the "keys" box.
bool QuickTimeDateReader::KeyIndex(ByteReader keys, quint32* index) {
  const quint32 count = keys.U32(kFullBoxHeader);
  qint64 pos = kFullBoxHeader + 4;
  for (quint32 i = 1; i <= count && i <= kMaxKeys && keys.Ok(); ++i) {
    const quint32 size = keys.U32(pos);
    if (size < kKeyEntryHeader || !keys.Has(pos, size)) return false;
    if (size - kKeyEntryHeader == kCreationDateKeyLength) {
      char name[kCreationDateKeyLength];
      if (keys.Bytes(pos + kKeyEntryHeader, name, kCreationDateKeyLength) &&
          std::memcmp(name, kCreationDateKey, kCreationDateKeyLength) == 0) {
        *index = i;
        return true;
      }
    }
    pos += size;
  }
  return false;
}

// The value of item `index` in "ilst": its first "data" box, after the
// type and locale.
bool QuickTimeDateReader::ItemValue(ByteReader ilst, quint32 index, QByteArray* value) {
  Box item;
  qint64 pos = 0;
  for (quint32 i = 0; i < kMaxKeys && BmffExifLocator::ReadBox(ilst, pos, &item); ++i) {
    pos = item.next;
    if (item.type != index) continue;
    ByteReader inItem = ilst.Sub(item.content, item.length);
    Box data;
    if (!BmffExifLocator::FindBox(inItem, kData, &data) || data.length <= kDataHeader) return false;
    *value = QByteArray(qMin(data.length - kDataHeader, kMaxKeyValue), Qt::Uninitialized);
    return inItem.Bytes(data.content + kDataHeader, value->data(), value->size());
  }
  return false;
}

}  // namespace renvale::metadata

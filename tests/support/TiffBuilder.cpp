#include "support/TiffBuilder.h"

#include <algorithm>

#include "support/Bytes.h"

namespace renvale::test {

namespace {
constexpr quint16 kTypeAscii = 2;
constexpr quint16 kTypeShort = 3;
constexpr quint16 kTypeLong = 4;
constexpr quint16 kTypeRational = 5;
constexpr quint16 kTypeUndefined = 7;
constexpr quint16 kTypeSRational = 10;
constexpr quint16 kExifIfdPointer = 0x8769;
}  // namespace

QByteArray TiffBuilder::U16(quint16 value) const { return Bytes(value, bigEndian_); }

QByteArray TiffBuilder::U32(quint32 value) const { return Bytes(value, bigEndian_); }

void TiffBuilder::Add(Ifd ifd, quint16 tag, quint16 type, quint32 count, const QByteArray& value) {
  auto& list = ifd == Ifd::Zero ? ifd0_ : exif_;
  list.push_back(Entry{tag, type, count, value});
}

void TiffBuilder::Ascii(Ifd ifd, quint16 tag, const QByteArray& text) {
  QByteArray value = text;
  value.append('\0');
  Add(ifd, tag, kTypeAscii, quint32(value.size()), value);
}

void TiffBuilder::Short(Ifd ifd, quint16 tag, quint16 value) { Add(ifd, tag, kTypeShort, 1, U16(value)); }

void TiffBuilder::Long(Ifd ifd, quint16 tag, quint32 value) { Add(ifd, tag, kTypeLong, 1, U32(value)); }

void TiffBuilder::Rational(Ifd ifd, quint16 tag, quint32 num, quint32 den) {
  Add(ifd, tag, kTypeRational, 1, U32(num) + U32(den));
}

void TiffBuilder::SRational(Ifd ifd, quint16 tag, qint32 num, qint32 den) {
  Add(ifd, tag, kTypeSRational, 1, U32(quint32(num)) + U32(quint32(den)));
}

void TiffBuilder::Undefined(Ifd ifd, quint16 tag, const QByteArray& bytes) {
  Add(ifd, tag, kTypeUndefined, quint32(bytes.size()), bytes);
}

quint32 TiffBuilder::IfdSize(const std::vector<Entry>& entries) {
  quint32 size = 2 + 12 * quint32(entries.size()) + 4;
  for (const Entry& entry : entries) {
    if (entry.value.size() > 4) size += quint32(entry.value.size() + (entry.value.size() & 1));
  }
  return size;
}

// One IFD followed by its data area; `start` is where it lands in the file.
QByteArray TiffBuilder::BuildIfd(std::vector<Entry> entries, quint32 start) const {
  std::stable_sort(entries.begin(), entries.end(),
                   [](const Entry& a, const Entry& b) { return a.tag < b.tag; });
  QByteArray table = U16(quint16(entries.size()));
  QByteArray data;
  quint32 dataAt = start + 2 + 12 * quint32(entries.size()) + 4;
  for (const Entry& entry : entries) {
    table += U16(entry.tag) + U16(entry.type) + U32(entry.count);
    if (entry.value.size() <= 4) {
      table += entry.value + QByteArray(4 - entry.value.size(), '\0');
      continue;
    }
    table += U32(dataAt + quint32(data.size()));
    data += entry.value;
    if (data.size() & 1) data.append('\0');  // keep offsets even
  }
  table += U32(0);  // no next IFD
  return table + data;
}

QByteArray TiffBuilder::Build() const {
  QByteArray out = bigEndian_ ? QByteArray("MM") : QByteArray("II");
  out += U16(42) + U32(8);
  std::vector<Entry> ifd0 = ifd0_;
  if (!exif_.empty()) ifd0.push_back(Entry{kExifIfdPointer, kTypeLong, 1, U32(0)});
  const quint32 exifStart = 8 + IfdSize(ifd0);
  if (!exif_.empty()) ifd0.back().value = U32(exifStart);
  out += BuildIfd(ifd0, 8);
  if (!exif_.empty()) out += BuildIfd(exif_, exifStart);
  return out;
}

QByteArray TiffBuilder::BuildSingle(Ifd ifd) const {
  QByteArray out = bigEndian_ ? QByteArray("MM") : QByteArray("II");
  out += U16(42) + U32(8);
  return out + BuildIfd(ifd == Ifd::Zero ? ifd0_ : exif_, 8);
}

}  // namespace renvale::test

#include "metadata/TiffHeader.h"

namespace renvale::metadata {

namespace {
constexpr quint16 kTiffMagic = 42;
constexpr quint16 kOlympusMagic = 0x4F52;   // "RO" / "OR"
constexpr quint16 kOlympusMagic2 = 0x5352;  // "RS"
constexpr quint16 kPanasonicMagic = 0x55;
}  // namespace

bool TiffHeader::BigEndian(const char* head) { return head[0] == 'M'; }

quint16 TiffHeader::Magic(const char* head) {
  const auto b2 = quint8(head[2]);
  const auto b3 = quint8(head[3]);
  return BigEndian(head) ? quint16(b2 << 8 | b3) : quint16(b3 << 8 | b2);
}

bool TiffHeader::Valid(const char* head) {
  const bool order = (head[0] == 'I' && head[1] == 'I') || (head[0] == 'M' && head[1] == 'M');
  const quint16 magic = Magic(head);
  return order &&
         (magic == kTiffMagic || magic == kOlympusMagic || magic == kOlympusMagic2 || magic == kPanasonicMagic);
}

bool TiffHeader::Panasonic(const char* head) { return Magic(head) == kPanasonicMagic; }

quint32 TiffHeader::FirstIfdOffset(const char* head) {
  quint32 value = 0;
  for (int i = 0; i < 4; ++i) value = value << 8 | quint8(head[BigEndian(head) ? 4 + i : 7 - i]);
  return value;
}

}  // namespace renvale::metadata

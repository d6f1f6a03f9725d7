#include "metadata/ExifTagSet.h"

#include <cstring>

namespace renvale::metadata {

bool ExifTagSet::Wants(ExifTag tag, ExifIfd foundIn) const {
  const Slot& slot = slots_[size_t(tag)];
  return !slot.present || (!slot.fromHome && foundIn == ExifTagTable::HomeIfd(tag));
}

void ExifTagSet::Offer(ExifTag tag, ExifIfd foundIn, const ExifRawValue& value) {
  if (!Wants(tag, foundIn)) return;
  Slot& slot = slots_[size_t(tag)];
  const bool home = foundIn == ExifTagTable::HomeIfd(tag);
  slot.present = true;
  slot.fromHome = home;
  slot.value.type = value.type;
  slot.value.count = value.count;
  slot.value.bigEndian = value.bigEndian;
  slot.value.size = value.size;
  std::memcpy(slot.value.bytes, value.bytes, size_t(value.size));
}

const ExifRawValue* ExifTagSet::Get(ExifTag tag) const {
  const Slot& slot = slots_[size_t(tag)];
  return slot.present ? &slot.value : nullptr;
}

bool ExifTagSet::Empty() const {
  for (const Slot& slot : slots_) {
    if (slot.present) return false;
  }
  return true;
}

void ExifTagSet::Clear() {
  for (Slot& slot : slots_) slot.present = false;
}

}  // namespace renvale::metadata

#include "metadata/ExifTagSet.h"

namespace renvale::metadata {

void ExifTagSet::Offer(ExifTag tag, ExifIfd foundIn, const ExifRawValue& value) {
  Slot& slot = slots_[size_t(tag)];
  const bool home = foundIn == ExifTagTable::HomeIfd(tag);
  if (slot.present && (slot.fromHome || !home)) return;
  slot.present = true;
  slot.fromHome = home;
  slot.value = value;
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

void ExifTagSet::Clear() { slots_ = {}; }

}  // namespace renvale::metadata

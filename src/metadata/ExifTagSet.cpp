#include "metadata/ExifTagSet.h"

#include <cstring>

namespace renvale::metadata {

ExifRawValue* ExifTagSet::Claim(ExifTag tag, ExifIfd foundIn) {
  if (!wanted_[size_t(tag)]) return nullptr;
  Slot& slot = slots_[size_t(tag)];
  if (!slot.present) return &slot.value;
  return !slot.fromHome && foundIn == ExifTagTable::HomeIfd(tag) ? &spare_ : nullptr;
}

void ExifTagSet::TakeOnly(std::initializer_list<ExifTag> tags) {
  wanted_.fill(false);
  for (const ExifTag tag : tags) wanted_[size_t(tag)] = true;
}

void ExifTagSet::Keep(ExifTag tag, ExifIfd foundIn, const ExifRawValue* filled) {
  Slot& slot = slots_[size_t(tag)];
  if (filled == &spare_) {
    slot.value.type = spare_.type;
    slot.value.count = spare_.count;
    slot.value.bigEndian = spare_.bigEndian;
    slot.value.size = spare_.size;
    std::memcpy(slot.value.bytes, spare_.bytes, size_t(spare_.size));
  }
  slot.present = true;
  slot.fromHome = foundIn == ExifTagTable::HomeIfd(tag);
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

#pragma once

#include <array>

#include "metadata/ExifRawValue.h"
#include "metadata/ExifTagTable.h"

namespace renvale::metadata {

// The raw values of the sixteen tags found in one file. When a tag turns up
// more than once, the one from its home directory wins, and within the same
// kind of directory the first one in file order.
class ExifTagSet {
 public:
  // Whether a value for `tag` found in `foundIn` would be taken.
  bool Wants(ExifTag tag, ExifIfd foundIn) const;
  void Offer(ExifTag tag, ExifIfd foundIn, const ExifRawValue& value);
  // The value, or nullptr when the file does not have the tag.
  const ExifRawValue* Get(ExifTag tag) const;
  bool Empty() const;
  void Clear();

 private:
  struct Slot {
    bool present = false;
    bool fromHome = false;
    ExifRawValue value;
  };
  std::array<Slot, ExifTagTable::kCount> slots_;
};

}  // namespace renvale::metadata

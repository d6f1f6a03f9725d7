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
  // Where to put a value for `tag` found in `foundIn`, or nullptr when it
  // would not be taken. What is put there counts only after Keep(), so a
  // value that cannot be read whole leaves the tag as it was.
  ExifRawValue* Claim(ExifTag tag, ExifIfd foundIn);
  void Keep(ExifTag tag, ExifIfd foundIn, const ExifRawValue* filled);
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
  ExifRawValue spare_;  // for a value that may replace one already kept
};

}  // namespace renvale::metadata

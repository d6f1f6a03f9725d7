#pragma once

#include <array>
#include <initializer_list>

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
  // From now on only `tags` are taken; the others are passed over as the
  // walk meets them. Clear() keeps this choice.
  void TakeOnly(std::initializer_list<ExifTag> tags);
  void Keep(ExifTag tag, ExifIfd foundIn, const ExifRawValue* filled);
  // The value, or nullptr when the file does not have the tag.
  const ExifRawValue* Get(ExifTag tag) const;
  bool Empty() const;
  void Clear();

 private:
  static constexpr std::array<bool, ExifTagTable::kCount> MakeAllWanted() {
    std::array<bool, ExifTagTable::kCount> all{};
    all.fill(true);
    return all;
  }

  struct Slot {
    bool present = false;
    bool fromHome = false;
    ExifRawValue value;
  };
  std::array<Slot, ExifTagTable::kCount> slots_;
  std::array<bool, ExifTagTable::kCount> wanted_ = MakeAllWanted();
  ExifRawValue spare_;  // for a value that may replace one already kept
};

}  // namespace renvale::metadata

#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QByteArrayView>
#include <cstdint>
#include <vector>

#include "platform/FileSystem.h"

namespace renvale::core {

// The file names of one folder, read once and kept current by the renames
// that change them, so that finding a picture's sidecar or testing a batch
// target costs a hash lookup instead of a trip to the disk. Lookups can also
// ignore ASCII letter case, because cameras and editors disagree about it
// ("IMG_0001.THM", "IMG_0001.xmp").
//
// A batch asks several questions per file between renames, which push the
// index out of the processor's caches; so the table is one flat array of
// hashes that a lookup probes without touching the names, unless a hash
// matches.
//
// It can also keep count of the names that end in some suffixes (any ASCII
// letter case): most folders hold no file of the kinds that go with a
// picture, and then nobody need look for them name by name.
class FolderIndex {
 public:
  FolderIndex() = default;
  explicit FolderIndex(const std::vector<QByteArray>& names, std::vector<QByteArray> countedSuffixes = {});

  // Lists `folder`. A folder that cannot be listed gives an empty index:
  // then no companion is found and every file is renamed on its own.
  static FolderIndex Read(platform::FileSystem& fs, const QByteArray& folder,
                          std::vector<QByteArray> countedSuffixes = {});

  // Whether the index keeps count of exactly these suffixes.
  bool Counts(const std::vector<QByteArray>& suffixes) const { return countedSuffixes_ == suffixes; }

  // True when a name spelled exactly like `name` is there.
  bool Contains(QByteArrayView name) const;
  // Every name equal to `name` without regard to ASCII letter case, sorted.
  QByteArrayList Spellings(QByteArrayView name) const;
  // Where `name` came among the names the index was made from, or -1 when
  // it is not there. Holds until the index changes.
  qsizetype Position(QByteArrayView name) const;
  // How many names end in one of the counted suffixes; -1 when none is
  // counted, so that the answer is never taken for "none there".
  qsizetype CountedNames() const { return countedSuffixes_.empty() ? -1 : counted_; }

  void Add(const QByteArray& name);
  void Remove(QByteArrayView name);
  void Move(const QByteArray& from, const QByteArray& to);

 private:
  static constexpr std::int32_t kEmpty = -1;
  static constexpr std::int32_t kRemoved = -2;

  struct Slot {
    std::uint32_t hash = 0;
    std::int32_t name = kEmpty;  // index into names_, or kEmpty / kRemoved
  };

  // The slot holding exactly `name`, or -1.
  qsizetype FindExact(QByteArrayView name, std::uint32_t hash) const;
  // Puts a name that is not there into the free slot `at`.
  void Place(std::size_t at, const QByteArray& name, std::uint32_t hash);
  void Grow();
  bool Counted(QByteArrayView name) const;

  std::vector<Slot> slots_;  // a power of two long, at most half in use
  std::vector<QByteArray> names_;
  std::vector<std::int32_t> freeNames_;  // entries of names_ left by removals
  qsizetype used_ = 0;                   // slots holding a name or kRemoved
  std::vector<QByteArray> countedSuffixes_;  // in lower case
  qsizetype counted_ = 0;
};

}  // namespace renvale::core

#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QByteArrayView>
#include <unordered_set>
#include <vector>

#include "core/AsciiFoldedName.h"
#include "platform/FileSystem.h"

namespace renvale::core {

// The file names of one folder, read once and kept current by the renames
// that change them, so that finding a picture's sidecar or testing a batch
// target costs a hash lookup instead of a trip to the disk. Lookups can also
// ignore ASCII letter case, because cameras and editors disagree about it
// ("IMG_0001.THM", "IMG_0001.xmp").
class FolderIndex {
 public:
  FolderIndex() = default;
  explicit FolderIndex(const std::vector<QByteArray>& names);

  // Lists `folder`. A folder that cannot be listed gives an empty index:
  // then no companion is found and every file is renamed on its own.
  static FolderIndex Read(platform::FileSystem& fs, const QByteArray& folder);

  // True when a name spelled exactly like `name` is there.
  bool Contains(QByteArrayView name) const;
  // Every name equal to `name` without regard to ASCII letter case.
  QByteArrayList Spellings(QByteArrayView name) const;

  void Add(const QByteArray& name);
  void Remove(QByteArrayView name);
  void Move(const QByteArray& from, const QByteArray& to);

 private:
  // Spellings that differ only in case share a bucket and sit side by side.
  std::unordered_multiset<QByteArray, AsciiFoldedName, AsciiFoldedName> names_;
};

}  // namespace renvale::core

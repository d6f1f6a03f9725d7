#include "core/FolderIndex.h"

#include <algorithm>

namespace renvale::core {

FolderIndex::FolderIndex(const std::vector<QByteArray>& names) {
  names_.reserve(names.size());
  for (const QByteArray& name : names) Add(name);
}

FolderIndex FolderIndex::Read(platform::FileSystem& fs, const QByteArray& folder) {
  std::vector<QByteArray> names;
  if (fs.ListFiles(folder, &names) != 0) return FolderIndex();
  return FolderIndex(names);
}

bool FolderIndex::Contains(QByteArrayView name) const {
  const auto [first, last] = names_.equal_range(name);
  for (auto it = first; it != last; ++it) {
    if (*it == name) return true;
  }
  return false;
}

QByteArrayList FolderIndex::Spellings(QByteArrayView name) const {
  QByteArrayList spellings;
  const auto [first, last] = names_.equal_range(name);
  for (auto it = first; it != last; ++it) spellings.append(*it);
  // The container keeps no order among them; give the same answer every time.
  if (spellings.size() > 1) std::sort(spellings.begin(), spellings.end());
  return spellings;
}

void FolderIndex::Add(const QByteArray& name) {
  if (!Contains(name)) names_.insert(name);
}

void FolderIndex::Remove(QByteArrayView name) {
  const auto [first, last] = names_.equal_range(name);
  for (auto it = first; it != last; ++it) {
    if (*it == name) {
      names_.erase(it);
      return;
    }
  }
}

void FolderIndex::Move(const QByteArray& from, const QByteArray& to) {
  Remove(from);
  Add(to);
}

}  // namespace renvale::core

#include "core/FolderIndex.h"

namespace renvale::core {

FolderIndex::FolderIndex(const std::vector<QByteArray>& names) {
  byFoldedName_.reserve(static_cast<qsizetype>(names.size()));
  for (const QByteArray& name : names) Add(name);
}

FolderIndex FolderIndex::Read(platform::FileSystem& fs, const QByteArray& folder) {
  std::vector<QByteArray> names;
  if (fs.ListFiles(folder, &names) != 0) return FolderIndex();
  return FolderIndex(names);
}

bool FolderIndex::Contains(const QByteArray& name) const {
  const auto found = byFoldedName_.constFind(name.toLower());
  return found != byFoldedName_.cend() && found->contains(name);
}

QByteArrayList FolderIndex::Spellings(const QByteArray& name) const {
  return byFoldedName_.value(name.toLower());
}

void FolderIndex::Add(const QByteArray& name) {
  QByteArrayList& spellings = byFoldedName_[name.toLower()];
  if (!spellings.contains(name)) spellings.append(name);
}

void FolderIndex::Remove(const QByteArray& name) {
  const QByteArray folded = name.toLower();
  const auto found = byFoldedName_.find(folded);
  if (found == byFoldedName_.end()) return;
  found->removeAll(name);
  if (found->isEmpty()) byFoldedName_.erase(found);
}

void FolderIndex::Move(const QByteArray& from, const QByteArray& to) {
  Remove(from);
  Add(to);
}

}  // namespace renvale::core

#include "core/FolderIndex.h"

#include <algorithm>

#include "core/AsciiFoldedName.h"

namespace renvale::core {

namespace {

// The low half is all a table of up to 2^32 places looks at, and a slot
// of two 32-bit numbers is half the memory a batch walks per question.
std::uint32_t HashOf(QByteArrayView name) { return static_cast<std::uint32_t>(AsciiFoldedName()(name)); }

bool SameFolded(QByteArrayView a, QByteArrayView b) { return AsciiFoldedName()(a, b); }

}  // namespace

FolderIndex::FolderIndex(const std::vector<QByteArray>& names, std::vector<QByteArray> countedSuffixes)
    : countedSuffixes_(std::move(countedSuffixes)) {
  std::size_t size = 16;
  while (size < names.size() * 2) size *= 2;
  slots_.resize(size);
  names_.reserve(names.size());
  for (const QByteArray& name : names) Add(name);
}

FolderIndex FolderIndex::Read(platform::FileSystem& fs, const QByteArray& folder,
                              std::vector<QByteArray> countedSuffixes) {
  std::vector<QByteArray> names;
  if (fs.ListFiles(folder, &names) != 0) names.clear();
  return FolderIndex(names, std::move(countedSuffixes));
}

bool FolderIndex::Counted(QByteArrayView name) const {
  for (const QByteArray& suffix : countedSuffixes_) {
    if (AsciiFoldedName::EndsWith(name, suffix)) return true;
  }
  return false;
}

qsizetype FolderIndex::FindExact(QByteArrayView name, std::uint32_t hash) const {
  if (slots_.empty()) return -1;
  const std::size_t mask = slots_.size() - 1;
  for (std::size_t i = hash & mask;; i = (i + 1) & mask) {
    const Slot& slot = slots_[i];
    if (slot.name == kEmpty) return -1;
    if (slot.name >= 0 && slot.hash == hash && names_[slot.name] == name) return static_cast<qsizetype>(i);
  }
}

bool FolderIndex::Contains(QByteArrayView name) const { return FindExact(name, HashOf(name)) >= 0; }

qsizetype FolderIndex::Position(QByteArrayView name) const {
  const qsizetype at = FindExact(name, HashOf(name));
  return at < 0 ? -1 : slots_[static_cast<std::size_t>(at)].name;
}

QByteArrayList FolderIndex::Spellings(QByteArrayView name) const {
  QByteArrayList spellings;
  if (slots_.empty()) return spellings;
  const std::uint32_t hash = HashOf(name);
  const std::size_t mask = slots_.size() - 1;
  for (std::size_t i = hash & mask; slots_[i].name != kEmpty; i = (i + 1) & mask) {
    const Slot& slot = slots_[i];
    if (slot.name >= 0 && slot.hash == hash && SameFolded(names_[slot.name], name)) {
      spellings.append(names_[slot.name]);
    }
  }
  if (spellings.size() > 1) std::sort(spellings.begin(), spellings.end());
  return spellings;
}

// One walk finds the name, or the place it goes: the first one a removal
// left on its path, else the end of the path.
void FolderIndex::Add(const QByteArray& name) {
  const std::uint32_t hash = HashOf(name);
  if (static_cast<std::size_t>(used_ + 1) * 2 > slots_.size()) {
    if (FindExact(name, hash) >= 0) return;
    Grow();
  }
  const std::size_t mask = slots_.size() - 1;
  std::size_t removed = slots_.size();  // none seen
  std::size_t i = hash & mask;
  for (;; i = (i + 1) & mask) {
    const Slot& slot = slots_[i];
    if (slot.name == kEmpty) break;
    if (slot.name == kRemoved) {
      if (removed == slots_.size()) removed = i;
    } else if (slot.hash == hash && names_[slot.name] == name) {
      return;
    }
  }
  Place(removed == slots_.size() ? i : removed, name, hash);
}

void FolderIndex::Place(std::size_t at, const QByteArray& name, std::uint32_t hash) {
  std::int32_t entry;
  if (freeNames_.empty()) {
    entry = static_cast<std::int32_t>(names_.size());
    names_.push_back(name);
  } else {
    entry = freeNames_.back();
    freeNames_.pop_back();
    names_[entry] = name;
  }
  if (slots_[at].name == kEmpty) ++used_;
  slots_[at] = {hash, entry};
  if (Counted(name)) ++counted_;
}

// Doubles the table (or rebuilds it at the same size when removals are
// what filled it), dropping the marks removals left.
void FolderIndex::Grow() {
  std::vector<Slot> old = std::move(slots_);
  qsizetype live = 0;
  for (const Slot& slot : old) live += slot.name >= 0 ? 1 : 0;
  std::size_t size = std::max<std::size_t>(16, old.size());
  while (static_cast<std::size_t>(live + 1) * 2 > size / 2) size *= 2;
  slots_.assign(size, Slot{});
  used_ = live;
  const std::size_t mask = size - 1;
  for (const Slot& slot : old) {
    if (slot.name < 0) continue;
    std::size_t i = slot.hash & mask;
    while (slots_[i].name != kEmpty) i = (i + 1) & mask;
    slots_[i] = slot;
  }
}

void FolderIndex::Remove(QByteArrayView name) {
  const qsizetype at = FindExact(name, HashOf(name));
  if (at < 0) return;
  Slot& slot = slots_[static_cast<std::size_t>(at)];
  if (Counted(name)) --counted_;
  names_[slot.name] = QByteArray();
  freeNames_.push_back(slot.name);
  slot.name = kRemoved;
}

void FolderIndex::Move(const QByteArray& from, const QByteArray& to) {
  Remove(from);
  Add(to);
}

}  // namespace renvale::core

#include "fileops/FolderHistory.h"

namespace renvale::fileops {

FolderHistory FolderHistory::FromStored(const Stored& stored) {
  FolderHistory history;
  for (const QString& folder : stored) {
    if (!folder.isEmpty() && !history.entries_.contains(folder)) history.entries_.append(folder);
  }
  return history;
}

FolderHistory::Stored FolderHistory::ToStored() const {
  Stored stored;
  for (qsizetype n = 0; n < entries_.size() && n < kMaxEntries; ++n) stored[static_cast<size_t>(n)] = entries_[n];
  return stored;
}

void FolderHistory::Add(const QString& folder) {
  entries_.removeAll(folder);
  entries_.prepend(folder);
  while (entries_.size() > kMaxEntries) entries_.removeLast();
}

void FolderHistory::Remove(const QString& folder) { entries_.removeAll(folder); }

}  // namespace renvale::fileops

#pragma once

#include <QString>
#include <QStringList>
#include <array>

namespace renvale::fileops {

// The recently used destination folders, newest first, at most as many as
// the settings keep ("Folder History 1" to "Folder History 15").
class FolderHistory {
 public:
  static constexpr int kMaxEntries = 15;
  using Stored = std::array<QString, kMaxEntries>;

  // Empty stored values are gaps, not entries.
  static FolderHistory FromStored(const Stored& stored);
  Stored ToStored() const;

  // Puts `folder` at the top, dropping an equal entry and then the oldest
  // beyond the limit.
  void Add(const QString& folder);
  void Remove(const QString& folder);
  void Clear() { entries_.clear(); }
  const QStringList& Entries() const { return entries_; }

 private:
  QStringList entries_;
};

}  // namespace renvale::fileops

#pragma once

#include <QByteArray>
#include <optional>
#include <unordered_set>
#include <vector>

#include "core/AsciiFoldedName.h"
#include "core/FolderIndex.h"
#include "platform/FileName.h"

namespace renvale::core {

// One file of a set with its old and new name (no folder).
struct NamePair {
  QByteArray from;
  QByteArray to;
  bool operator==(const NamePair&) const = default;
};

// Which files travel with a renamed file ("the head") so that a camera
// set is never split:
//  - a Canon CRW, AVI or MOV takes its THM (same base name, ".thm" in any
//    letter case), selected or not: the THM holds the date the RAW picture
//    or clip is named by;
//  - any file except a THM or a sidecar takes its XMP sidecars, selected or
//    not, in both spellings editors use: "Name.xmp" beside "Name.CR2", and
//    "Name.CR2.xmp". A picture parted from its sidecar loses its edits.
// Companions keep their own extensions; they get the head's new base name.
// Names compare without regard to ASCII letter case. When several heads
// share a base (RAW and JPEG shot together), "Name.xmp" goes with whichever
// of them is renamed first.
class FileSetFinder {
 public:
  FileSetFinder(const FolderIndex& index, const std::vector<platform::FileName>& selection);

  // The endings of every file that can go along with another (in lower
  // case): an index that counts them lets a folder without any skip the
  // search.
  static std::vector<QByteArray> CompanionSuffixes();

  // The companions of `head`, renamed for `newHead`; empty when it heads no
  // set. Pairs whose name would not change are left out.
  std::vector<NamePair> Companions(const QByteArray& head, const QByteArray& newHead) const;

  // True for a selected name that a selected head takes along; a batch
  // passes over its list entry, whether the head comes before or after it.
  bool TravelsWithSelectedHead(const QByteArray& name) const;

  // Whether a file of this name can travel with another at all: only a
  // THM or a sidecar can, and most batches hold neither.
  static bool MayTravel(QByteArrayView name);

 private:
  using FoldedSet = std::unordered_set<QByteArray, AsciiFoldedName, AsciiFoldedName>;

  // What the selection holds, built the first time a THM or a sidecar asks:
  // most folders have neither, and then a batch never pays for it.
  struct SelectionSets {
    FoldedSet folded;
    FoldedSet headBases;  // base names of those that can take sidecars
  };
  const SelectionSets& Selected() const;

  void AddThm(const QByteArray& head, const QByteArray& newBase, std::vector<NamePair>* pairs) const;
  void AddSidecars(const QByteArray& head, const QByteArray& newHead, std::vector<NamePair>* pairs) const;

  const FolderIndex& index_;
  std::vector<platform::FileName> selection_;
  mutable std::optional<SelectionSets> selected_;
};

}  // namespace renvale::core

#pragma once

#include <QByteArray>
#include <functional>
#include <vector>

#include "core/FileSetFinder.h"

namespace renvale::core {

// One file of a batch that gets a new name, with the members of its set
// that move along (all names without folder).
struct RenameMove {
  NamePair head;
  std::vector<NamePair> companions;
};

// One no-replace rename of a plan. A move whose target is held by another
// move of the batch waits until that one has gone; where the moves form a
// cycle, one of them first steps aside to a temporary hidden name.
struct PlannedRename {
  enum class Kind { Direct, ToTemporary, FromTemporary };
  int move = -1;  // index into the moves planned
  Kind kind = Kind::Direct;
  NamePair head;
  std::vector<NamePair> companions;
  bool operator==(const PlannedRename&) const = default;
};

// A plain value, so that it can be shown, recorded and replayed.
using RenamePlan = std::vector<PlannedRename>;

// Orders `moves` (given in list order, all in one folder) so that every
// name a move takes has been left by the move that held it. Moves keep list
// order except where one must wait; nothing else is judged here, so a
// target held by a file outside the moves stays the caller's question.
// Names are compared without regard to ASCII letter case: on a
// case-folding file system "a.jpg" holds "A.JPG" too, and elsewhere the
// extra wait costs nothing.
//
// `taken` says whether a name is used in the folder by anything; temporary
// names (".renvale-swap-N" followed by each member's part after the head's
// base) avoid it and every name of the moves, so a temporary never replaces
// a file and a kill between steps leaves every file complete under its
// old, temporary or new name.
RenamePlan PlanRenames(const std::vector<RenameMove>& moves,
                       const std::function<bool(const QByteArray&)>& taken);

// One file's turn in a run over a list: the steps aside to hidden names that
// must come first, then the file's own rename.
struct PlannedTurn {
  size_t file = 0;
  std::vector<PlannedRename> asides;
};

// The turns of a list of `fileCount` files of which the files `moveFile`
// (ascending; one per planned move) get new names: files keep list order,
// except that the moving files take their places among themselves in the
// order of `plan`. Without waits this is exactly list order.
std::vector<PlannedTurn> TurnsInListOrder(size_t fileCount, const std::vector<size_t>& moveFile,
                                          const RenamePlan& plan);

}  // namespace renvale::core

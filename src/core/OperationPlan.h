#pragma once

#include <QByteArray>
#include <QDateTime>
#include <vector>

namespace renvale::core {

// Which file a step acts on, told apart from another file that later takes
// its name: a name alone cannot tell "B as it was" from "A, renamed to B".
struct FileIdentity {
  qint64 size = -1;
  qint64 modifiedNs = 0;
  quint64 device = 0;
  quint64 inode = 0;
  // False where the file system numbers files afresh at each mount (FAT and
  // exFAT cards): there the numbers say nothing after a remount.
  bool inodeStable = true;
};

enum class StepKind : char {
  Rename = 'R',  // from -> to, the same file under a new name or place
  Copy = 'C',    // from stays; to is a new file with its contents
  Trash = 'T',   // from goes to the desktop's trash; to is empty
  // from -> to on another file system: to is a copy, named only when
  // complete, and from is removed once that name is on disk.
  CopyThenRemove = 'M',
};

struct PlanStep {
  StepKind kind = StepKind::Rename;
  QByteArray from;  // full paths, raw bytes
  QByteArray to;
  FileIdentity identity;  // of the file at `from` before the operation
};

enum class OperationKind : char {
  Rename = 'r',         // the individual rename
  BatchRename = 'b',
  SearchReplace = 's',
  Move = 'm',
  Copy = 'c',
  Trash = 't',
  TemplateDelete = 'd',
};

// What one name-changing operation is about to do, every step in the order
// it will be taken, temporary names included. Steps the person declines on
// the way are simply never taken; the disk shows which were.
struct OperationPlan {
  OperationKind kind = OperationKind::Rename;
  QByteArray folder;  // where the person worked, for the history
  QDateTime started;  // UTC
  std::vector<PlanStep> steps;
};

}  // namespace renvale::core

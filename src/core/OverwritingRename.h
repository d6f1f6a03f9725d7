#pragma once

#include <QString>

#include "core/FileRenamer.h"
#include "core/RenameContext.h"

namespace renvale::core {

// How one rename onto a name that may be taken ended.
struct OverwriteOutcome {
  enum class Kind { Renamed, Declined, Cancelled, Failed };
  Kind kind = Kind::Renamed;
  int error = 0;              // for Failed
  bool failureShown = false;  // the user has been told already
  bool targetDeleted = false; // the old target is gone, whatever happened next
};

// Renames one file of the current folder, asking before a file of the new
// name is replaced. The existing file is deleted only after the user's Yes,
// and only once the rename can follow. A target the caller did not know of
// is asked about too: the no-replace rename refuses it (a name that differs
// only in letter case on a file system that keeps cases apart, or a file
// that appeared meanwhile).
class OverwritingRename {
 public:
  OverwritingRename(const RenameContext& context, FileRenamer& renamer);

  // `targetKnown`: the caller found a file of the new name, so the
  // question comes first.
  OverwriteOutcome Run(const platform::FileName& oldName, const QString& newName, bool targetKnown);
  // The same, with `newName` already turned into the name's bytes.
  OverwriteOutcome Run(const platform::FileName& oldName, const QString& newName, const QByteArray& target,
                       bool targetKnown);

 private:
  OverwriteOutcome AskAndReplace(const platform::FileName& oldName, const QString& newName,
                                 const QByteArray& target);
  // Deletes the file of the new name; a failure is shown. Returns 0 or the error.
  int DeleteTarget(const QByteArray& newName);
  OverwriteOutcome Rename(const platform::FileName& oldName, const QByteArray& newName);

  const RenameContext& context_;
  FileRenamer& renamer_;
};

}  // namespace renvale::core

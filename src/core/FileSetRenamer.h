#pragma once

#include <QByteArray>
#include <vector>

#include "core/FileSetFinder.h"
#include "platform/FileSystem.h"
#include "platform/MessagePort.h"

namespace renvale::core {

// Moves a file set (a head and its companions, see FileSetFinder) as one:
// either every member gets its new name or every member keeps its old one.
// It reports its own failures under "File Set - Renaming Error"; a failure
// of the head itself is the caller's to report, like any single rename.
class FileSetRenamer {
 public:
  FileSetRenamer(platform::FileSystem& fs, platform::MessagePort& messages);

  // 0 when no companion's new name is taken by another file; otherwise shows
  // why the set cannot move and returns kFileAlreadyExists. Checked before
  // anything moves, and before the head's own target is deleted to
  // overwrite it, so nothing is lost for a set that could not follow.
  int CheckCompanionTargets(const QByteArray& folder, const NamePair& head,
                            const std::vector<NamePair>& companions);

  // Renames the head, then each companion, never replacing a file. When a
  // companion fails, the members moved so far are put back (last first)
  // and the failure is shown. Returns 0 or the failing error number;
  // FailureShown says whether the user has been told.
  int RenameSet(const QByteArray& folder, const NamePair& head, const std::vector<NamePair>& companions);

  bool FailureShown() const { return failureShown_; }

 private:
  int RollBackAndReport(const QByteArray& folder, const NamePair& head,
                        const std::vector<NamePair>& moved, const NamePair& failed, int error);
  void Report(const QString& text);

  platform::FileSystem& fs_;
  platform::MessagePort& messages_;
  bool failureShown_ = false;
};

}  // namespace renvale::core

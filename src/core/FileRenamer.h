#pragma once

#include <QByteArray>
#include <memory>
#include <vector>

#include "core/FileSetFinder.h"
#include "core/FileSetRenamer.h"
#include "core/FolderIndex.h"
#include "core/OperationPlan.h"
#include "core/RenameContext.h"

namespace renvale::core {

// The one way the renames change a file's name: the shared RenameFile.
// One is made per operation for the folder it works in and the files the
// user selected; it reads the folder's names once and keeps them current.
class FileRenamer {
 public:
  FileRenamer(const RenameContext& context, const QByteArray& folder,
              const std::vector<platform::FileName>& selection);

  // Renames `oldPath` to `newPath` (both in the folder; anything else is
  // refused as an invalid argument) and returns 0 or an error number. Releases the preview when it holds a file that moves.
  // When the file heads a set its companions move with it, or nothing moves;
  // otherwise the single file is renamed. Never replaces a file: an existing
  // target gives kFileAlreadyExists.
  int RenameFile(const QByteArray& oldPath, const QByteArray& newPath);
  // The same for two names of the folder (no folder before them).
  int RenameInFolder(const QByteArray& oldName, const QByteArray& newName);

  // Whether the last failing RenameFile or CheckCompanionTargets has told the
  // user itself (a file set's failure); if not, the caller does.
  bool FailureShown() const { return failureShown_; }

  // Before an existing target is deleted to make room for `oldName`: 0 when
  // its companions could follow, else the error, shown to the user.
  int CheckCompanionTargets(const QByteArray& oldName, const QByteArray& newName);

  // Adds to `plan` the steps RenameFile(oldName, newName) would take, the
  // companions of a set included, each with its file's identity now.
  // `known`, when given, is the identity of `oldName` as a read of it has
  // just found it, and saves asking the system again.
  void DescribeRename(const QByteArray& oldName, const QByteArray& newName, OperationPlan* plan,
                      const FileIdentity* known = nullptr);

  // Removes a file of the folder that the caller has deleted.
  void Forget(const QByteArray& name) { index_.Remove(name); }

  // True when the folder, read afresh, holds entries spelled exactly `a` and
  // exactly `b`: on a case-folding file system two names that differ only
  // in letter case are one entry, one file.
  bool HasSeparateEntries(const QByteArray& a, const QByteArray& b);

  const QByteArray& Folder() const { return folder_; }
  const FolderIndex& Index() const { return index_; }
  const FileSetFinder& Sets() const { return finder_; }

 private:
  bool InFolder(const QByteArray& path) const;
  void ReleasePreviewIfHeld(const QByteArray& name);
  int RenameNames(const NamePair& head);
  int RenameSingle(const NamePair& pair);
  int RenameWithCompanions(const NamePair& head, const std::vector<NamePair>& companions);

  const RenameContext& context_;
  QByteArray folder_;
  // Held for the renames by name: a batch's ten thousand renames then walk
  // two names each, not two whole paths.
  std::unique_ptr<platform::ReadableFolder> held_;
  FolderIndex index_;
  FileSetFinder finder_;
  FileSetRenamer setRenamer_;
  bool failureShown_ = false;
  int stableNumbers_ = -1;  // FileNumbersStable of the folder, once asked
};

}  // namespace renvale::core

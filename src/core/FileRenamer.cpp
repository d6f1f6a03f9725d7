#include "core/FileRenamer.h"

#include <cerrno>

#include "core/PlanIdentity.h"
#include "platform/ErrorNumbers.h"
#include "platform/FileNumbers.h"
#include "platform/PathParts.h"

namespace renvale::core {

namespace {

// A listing the session holds for the folder is taken, once.
FolderIndex ListingOf(const RenameContext& context, const QByteArray& folder) {
  std::vector<QByteArray> suffixes = FileSetFinder::CompanionSuffixes();
  std::optional<FolderIndex>& fresh = context.session.FreshListing;
  if (fresh && folder == context.session.CurrentFolder && fresh->Counts(suffixes)) {
    FolderIndex index = std::move(*fresh);
    fresh.reset();
    return index;
  }
  return FolderIndex::Read(context.fs, folder, std::move(suffixes));
}

}  // namespace

FileRenamer::FileRenamer(const RenameContext& context, const QByteArray& folder,
                         const std::vector<platform::FileName>& selection)
    : context_(context),
      folder_(folder),
      held_(context.fs.HoldFolder(folder)),
      index_(ListingOf(context, folder)),
      finder_(index_, selection),
      setRenamer_(context.fs, context.messages) {}

bool FileRenamer::InFolder(const QByteArray& path) const {
  return platform::ParentFolder(path) == folder_;
}

int FileRenamer::RenameFile(const QByteArray& oldPath, const QByteArray& newPath) {
  failureShown_ = false;
  // A value put into a name can hold a slash ("AC/DC" from a song's tag);
  // the file must not slip into a sub-folder of that name.
  if (!InFolder(oldPath) || !InFolder(newPath)) return platform::ErrorNumberFromErrno(EINVAL);
  return RenameNames({platform::BaseName(oldPath), platform::BaseName(newPath)});
}

// A batch renames ten thousand files by their names: joining each to the
// folder only to split it off again cost more than the bookkeeping around
// the rename. Names that hold a slash take the way of paths, which tells a
// name in the folder from one in a sub-folder.
int FileRenamer::RenameInFolder(const QByteArray& oldName, const QByteArray& newName) {
  if (oldName.isEmpty() || newName.isEmpty() || oldName.contains('/') || newName.contains('/')) {
    return RenameFile(folder_ + oldName, folder_ + newName);
  }
  failureShown_ = false;
  return RenameNames({oldName, newName});
}

int FileRenamer::RenameNames(const NamePair& head) {
  ReleasePreviewIfHeld(head.from);
  const std::vector<NamePair> companions = finder_.Companions(head.from, head.to);
  for (const NamePair& companion : companions) ReleasePreviewIfHeld(companion.from);
  if (companions.empty()) return RenameSingle(head);
  return RenameWithCompanions(head, companions);
}

int FileRenamer::RenameSingle(const NamePair& pair) {
  const int error = held_->RenameNoReplace(pair.from, pair.to);
  if (error == 0) index_.Move(pair.from, pair.to);
  return error;
}

int FileRenamer::RenameWithCompanions(const NamePair& head, const std::vector<NamePair>& companions) {
  const int error = setRenamer_.RenameSet(folder_, head, companions);
  failureShown_ = setRenamer_.FailureShown();
  if (error != 0) return error;
  index_.Move(head.from, head.to);
  for (const NamePair& companion : companions) index_.Move(companion.from, companion.to);
  return 0;
}

int FileRenamer::CheckCompanionTargets(const QByteArray& oldName, const QByteArray& newName) {
  const NamePair head{oldName, newName};
  const int error = setRenamer_.CheckCompanionTargets(folder_, head, finder_.Companions(oldName, newName));
  failureShown_ = error != 0;
  return error;
}

void FileRenamer::DescribeRename(const QByteArray& oldName, const QByteArray& newName, OperationPlan* plan,
                                 const FileIdentity* known) {
  if (stableNumbers_ < 0) stableNumbers_ = platform::FileNumbersStable(folder_) ? 1 : 0;
  const bool stable = stableNumbers_ == 1;
  QByteArray from = folder_ + oldName;
  FileIdentity identity;
  if (known != nullptr) {
    identity = *known;
    identity.inodeStable = stable;
  } else {
    identity = IdentityOf(context_.fs, from, stable);
  }
  plan->steps.push_back(PlanStep{StepKind::Rename, std::move(from), folder_ + newName, identity});
  for (const NamePair& pair : finder_.Companions(oldName, newName)) {
    QByteArray path = folder_ + pair.from;
    identity = IdentityOf(context_.fs, path, stable);
    plan->steps.push_back(PlanStep{StepKind::Rename, std::move(path), folder_ + pair.to, identity});
  }
}

bool FileRenamer::HasSeparateEntries(const QByteArray& a, const QByteArray& b) {
  const FolderIndex fresh = FolderIndex::Read(context_.fs, folder_);
  return a != b && fresh.Contains(a) && fresh.Contains(b);
}

// The preview may hold a file open (a playing video); it lets go of it
// before the name changes under it.
void FileRenamer::ReleasePreviewIfHeld(const QByteArray& name) {
  QByteArray& previewed = context_.session.PreviewedPath;
  if (previewed.size() != folder_.size() + name.size() || !previewed.startsWith(folder_) ||
      !previewed.endsWith(name)) {
    return;
  }
  previewed.clear();
  context_.view.ResetPreview(QString());
}

}  // namespace renvale::core

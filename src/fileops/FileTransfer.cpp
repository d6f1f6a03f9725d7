#include "fileops/FileTransfer.h"

#include <cerrno>

#include "core/CoreTexts.h"
#include "core/PlanIdentity.h"
#include "fileops/FolderHistory.h"
#include "fileops/StagedCopies.h"
#include "fileops/SmartName.h"
#include "fileops/FileopsTexts.h"
#include "fileops/WriteProtection.h"
#include "platform/ErrorNumbers.h"
#include "platform/FileCopy.h"
#include "platform/FileNumbers.h"

namespace renvale::fileops {

namespace text = transfer_text;
using platform::MessageAnswer;
using platform::MessageButtons;
using platform::MessageIcon;

namespace {

// Copies waiting for one flush. Enough to make the flush rare for small
// pictures, few enough that a run cut short has little left unnamed.
constexpr size_t kStagedSets = 512;

QByteArray WithSlash(const QByteArray& folder) { return folder.endsWith('/') ? folder : folder + '/'; }

QString Shown(const QByteArray& raw) { return platform::FileName{raw}.Display(); }

}  // namespace

FileTransfer::FileTransfer(const TransferContext& context)
    : context_(context), verbs_(TransferVerbs::ForMode(context.settings.transferMode)) {}

void FileTransfer::Run(const QByteArray& destination) {
  destination_ = WithSlash(destination);
  context_.sourceFolder = WithSlash(context_.sourceFolder);
  verbs_ = TransferVerbs::ForMode(context_.settings.transferMode);
  if (IsSameFolder()) {
    context_.messages.Notify(text::SameFolder(verbs_));
    return;
  }
  if (context_.settings.transferMode == kMoveMode && !SourceMayBeMoved()) return;
  move_ = context_.settings.transferMode == kMoveMode;
  renameOnly_ = move_ && OnOneFileSystem();
  summary_.emplace(verbs_);
  StagedCopies::RemoveLeftTemporaries(context_.fs, destination_);
  const bool ran = TransferSelection();
  context_.view.SetTransferring(false, 0);
  if (!ran) return;
  context_.view.RefreshFileList();
  if (summary_->HasSmartNames()) {
    context_.messages.Notify(text::kSmartNameChanged);
    context_.view.ShowSmartNameResults(summary_->Report());
  }
  context_.messages.Notify(summary_->Text());
}

// Equal paths are not enough and unequal ones prove nothing: a symlink, or
// the other letter case on a memory card, reaches the same folder.
bool FileTransfer::IsSameFolder() const {
  platform::FileInfo source;
  platform::FileInfo target;
  if (context_.fs.Stat(context_.sourceFolder, &source) != 0 || context_.fs.Stat(destination_, &target) != 0) {
    return context_.sourceFolder == destination_;
  }
  return source.device == target.device && source.inode == target.inode;
}

bool FileTransfer::OnOneFileSystem() const {
  platform::FileInfo source;
  platform::FileInfo target;
  return context_.fs.Stat(context_.sourceFolder, &source) == 0 && context_.fs.Stat(destination_, &target) == 0 &&
         source.device == target.device;
}

bool FileTransfer::SourceMayBeMoved() {
  if (!IsWriteProtected(context_.fs, context_.sourceFolder)) return true;
  if (context_.messages.Ask(text::kSourceProtected, MessageButtons::YesNo, MessageIcon::Question) ==
      MessageAnswer::Yes) {
    context_.settings.transferMode = kCopyMode;
    verbs_ = TransferVerbs::ForMode(kCopyMode);
    context_.view.ShowMode();
    return true;
  }
  context_.messages.Notify(text::Cancelled(verbs_));
  return false;
}

// False, after saying so, when the plan could not be kept: then nothing
// was changed.
bool FileTransfer::TransferSelection() {
  const std::vector<platform::FileName> selection = context_.view.SelectedFiles();
  index_ = core::FolderIndex::Read(context_.fs, context_.sourceFolder);
  finder_.emplace(index_, selection);
  context_.view.SetTransferring(true, static_cast<int>(selection.size()));
  size_t stopAt = selection.size();
  std::vector<Planned> planned = PlanSelection(selection, &stopAt);
  std::optional<core::RecordedOperation> recorded;
  if (!Record(planned, &recorded)) return false;
  Step step = Step::Next;
  size_t next = 0;
  for (size_t i = 0; i < stopAt; ++i) {
    if (context_.view.CancelRequested()) {
      summary_->Cancel();
      break;
    }
    if (next < planned.size() && planned[next].position == i) {
      FileSet& set = planned[next++].set;
      step = renameOnly_ ? RenameSet(set) : CopySet(set);
    }
    if (step == Step::Stop) break;
    context_.view.AdvanceProgress();
    context_.view.ProcessEvents();
  }
  // What was copied before a cancel or an error still gets its name.
  CommitStaged();
  return true;
}

// A Stop answer ends the list at its file: what came before still goes.
std::vector<FileTransfer::Planned> FileTransfer::PlanSelection(const std::vector<platform::FileName>& selection,
                                                               size_t* stopAt) {
  std::vector<Planned> planned;
  for (size_t i = 0; i < selection.size(); ++i) {
    const QByteArray& head = selection[i].raw;
    if (finder_->TravelsWithSelectedHead(head)) continue;
    FileSet set = SetFor(head, head);
    const Member* taken = FirstTaken(set);
    const Decision decision = taken != nullptr ? Decide(taken->to) : Decision::Transfer;
    if (decision == Decision::Stop) {
      *stopAt = i;
      break;
    }
    if (decision == Decision::Skip) continue;
    set.replace = decision == Decision::Replace;
    if (decision == Decision::SmartName) TakeNextSmartName(&set);
    for (const Member& member : set.members) claimed_.insert(Target(member));
    planned.push_back({i, std::move(set)});
  }
  return planned;
}

bool FileTransfer::Record(const std::vector<Planned>& planned, std::optional<core::RecordedOperation>* recorded) {
  core::OperationPlan plan{move_ ? core::OperationKind::Move : core::OperationKind::Copy, context_.sourceFolder,
                           QDateTime::currentDateTimeUtc(), {}};
  if (context_.recorder != nullptr) {
    const bool stable = platform::FileNumbersStable(context_.sourceFolder);
    const core::StepKind kind = renameOnly_ ? core::StepKind::Rename
                                : move_     ? core::StepKind::CopyThenRemove
                                            : core::StepKind::Copy;
    for (const Planned& entry : planned) {
      for (const Member& member : entry.set.members) {
        plan.steps.push_back({kind, Source(member), Target(member), core::IdentityOf(context_.fs, Source(member), stable)});
      }
    }
  }
  recorded->emplace(context_.recorder, plan);
  if ((*recorded)->Error() == platform::kNoError) return true;
  context_.messages.Notify(core::texts::kPlanNotKept.arg(platform::ErrorDescription((*recorded)->Error())),
                           MessageIcon::Critical);
  return false;
}

FileTransfer::Decision FileTransfer::Decide(const QByteArray& takenName) {
  switch (static_cast<OverwritePolicy>(context_.settings.moveOption)) {
    case OverwritePolicy::Ask:
      for (;;) {
        const MessageAnswer answer = context_.messages.AskBeforeLoss(
            text::OverwriteQuestion(Shown(takenName)), MessageButtons::YesNoCancel, MessageIcon::Warning);
        if (answer == MessageAnswer::Yes) return Decision::Replace;
        if (answer == MessageAnswer::No) {
          summary_->Remember(TransferSummary::Note::Skipped);
          return Decision::Skip;
        }
        // No to the cancel question asks about the same file again.
        if (context_.messages.Ask(text::CancelQuestion(verbs_), MessageButtons::YesNo, MessageIcon::Question) ==
            MessageAnswer::Yes) {
          summary_->Cancel();
          return Decision::Stop;
        }
      }
    case OverwritePolicy::Never:
      summary_->Remember(TransferSummary::Note::Skipped);
      return Decision::Skip;
    case OverwritePolicy::Always:
      summary_->Remember(TransferSummary::Note::Overwritten);
      return Decision::Replace;
    case OverwritePolicy::SmartName:
      return Decision::SmartName;
  }
  return Decision::Skip;
}

// A companion keeps its own name unless its head gets a new one. Asking
// the finder for a head name that cannot occur ('/' is in no file name)
// lists every companion, since none of them would keep its name.
FileTransfer::FileSet FileTransfer::SetFor(const QByteArray& head, const QByteArray& finalHead) const {
  FileSet set;
  set.head = head;
  set.members.push_back({head, finalHead, {}});
  const bool renamed = finalHead != head;
  for (const core::NamePair& pair : finder_->Companions(head, renamed ? finalHead : '/' + head)) {
    set.members.push_back({pair.from, renamed ? pair.to : pair.from, {}});
  }
  return set;
}

const FileTransfer::Member* FileTransfer::FirstTaken(const FileSet& set) const {
  for (const Member& member : set.members) {
    if (claimed_.count(Target(member)) != 0 || context_.fs.Exists(Target(member))) return &member;
  }
  return nullptr;
}

// The next number whose names are free for every member of the set.
void FileTransfer::TakeNextSmartName(FileSet* set) const {
  for (int k = set->smartK + 1;; ++k) {
    FileSet next = SetFor(set->head, SmartName::Candidate(set->head, k));
    if (FirstTaken(next) != nullptr) continue;
    for (size_t i = 0; i < next.members.size() && i < set->members.size(); ++i) {
      next.members[i].temporary = set->members[i].temporary;
    }
    next.smartK = k;
    *set = std::move(next);
    return;
  }
}

FileTransfer::Step FileTransfer::RenameSet(FileSet& set) {
  for (size_t i = 0; i < set.members.size(); ++i) {
    const Member& member = set.members[i];
    const int err = set.replace ? context_.fs.RenameReplacing(Source(member), Target(member))
                                : context_.fs.RenameNoReplace(Source(member), Target(member));
    if (err == platform::kNoError) continue;
    TakeBack(set, i, false);
    if (err == platform::kErrnoBase + EXDEV) {
      // One device number, two mounts: copy from now on.
      renameOnly_ = false;
      return CopySet(set);
    }
    if (err == platform::kFileAlreadyExists && SmartNaming()) {
      TakeNextSmartName(&set);
      i = static_cast<size_t>(-1);
      continue;
    }
    if (err == platform::kFileAlreadyExists) {
      summary_->Remember(TransferSummary::Note::Skipped);
      return Step::Next;
    }
    if (set.replace) return ReplaceFailed(err) == Commit::Stop ? Step::Stop : Step::Next;
    return Fail(err, set.smartK > 0);
  }
  NoteSmartName(set);
  return Step::Next;
}

FileTransfer::Step FileTransfer::CopySet(FileSet& set) {
  for (Member& member : set.members) {
    const int err = context_.fs.CopyToTemporary(Source(member), destination_, &member.temporary);
    if (err != platform::kNoError) {
      RemoveTemporaries(set);
      return Fail(err, set.smartK > 0);
    }
  }
  staged_.push_back(std::move(set));
  return staged_.size() >= kStagedSets ? CommitStaged() : Step::Next;
}

FileTransfer::Step FileTransfer::CommitStaged() {
  std::vector<FileSet> sets;
  sets.swap(staged_);
  if (sets.empty()) return Step::Next;
  const int flushed = context_.fs.FlushFileSystem(destination_);
  Step step = Step::Next;
  std::vector<const FileSet*> committed;
  for (FileSet& set : sets) {
    if (flushed != platform::kNoError || step == Step::Stop) {
      RemoveTemporaries(set);
      continue;
    }
    const Commit result = CommitSet(set);
    if (result == Commit::Done) committed.push_back(&set);
    if (result == Commit::Stop) step = Step::Stop;
  }
  if (flushed != platform::kNoError) return Fail(flushed, false);
  if (committed.empty()) return step;
  // The names must be on disk before the only other copy goes.
  if (const int err = context_.fs.FlushFileSystem(destination_)) return Fail(err, false);
  if (!move_) return step;
  for (const FileSet* set : committed) {
    if (DeleteSources(*set) == Step::Stop) return Step::Stop;
  }
  return step;
}

FileTransfer::Commit FileTransfer::CommitSet(FileSet& set) {
  for (size_t i = 0; i < set.members.size(); ++i) {
    const Member& member = set.members[i];
    const int err = set.replace ? context_.fs.RenameReplacing(member.temporary, Target(member))
                                : context_.fs.RenameNoReplace(member.temporary, Target(member));
    if (err == platform::kNoError) continue;
    TakeBack(set, i, true);
    if (err == platform::kFileAlreadyExists && SmartNaming()) {
      TakeNextSmartName(&set);
      i = static_cast<size_t>(-1);
      continue;
    }
    RemoveTemporaries(set);
    if (err == platform::kFileAlreadyExists) {
      summary_->Remember(TransferSummary::Note::Skipped);
      return Commit::Skipped;
    }
    if (set.replace) return ReplaceFailed(err);
    Fail(err, set.smartK > 0);
    return Commit::Stop;
  }
  NoteSmartName(set);
  return Commit::Done;
}

// Undoes the first `committed` renames of a set so that it is never split:
// copies go back to their temporaries, moved files to their source names.
void FileTransfer::TakeBack(const FileSet& set, size_t committed, bool toTemporaries) {
  for (size_t i = 0; i < committed; ++i) {
    const Member& member = set.members[i];
    context_.fs.RenameNoReplace(Target(member), toTemporaries ? member.temporary : Source(member));
  }
}

void FileTransfer::RemoveTemporaries(FileSet& set) {
  for (Member& member : set.members) {
    if (!member.temporary.isEmpty()) context_.fs.RemoveFile(member.temporary);
    member.temporary.clear();
  }
}

FileTransfer::Step FileTransfer::DeleteSources(const FileSet& set) {
  for (const Member& member : set.members) {
    const int err = context_.fs.RemoveFile(Source(member));
    if (err == platform::kNoError) continue;
    const QString detail = err == platform::kPathFileAccess ? text::kSourceReadOnly : text::ErrorNumber(err);
    const QString question = text::kSourceNotDeleted + text::kCR + detail + text::kCR + text::ContinueOrCancel(verbs_);
    summary_->Remember(TransferSummary::Note::SourcesNotDeleted);
    if (context_.messages.Ask(question, MessageButtons::OkCancel, MessageIcon::Warning) == MessageAnswer::Cancel) {
      summary_->Remember(TransferSummary::Note::NotMoved);
      summary_->Cancel();
      return Step::Stop;
    }
  }
  return Step::Next;
}

FileTransfer::Commit FileTransfer::ReplaceFailed(int error) {
  const QString detail = error == platform::kPathFileAccess ? text::kTargetReadOnly : text::ErrorNumber(error);
  const QString question = text::TargetNotDeleted(verbs_) + text::kCR + detail + text::kCR + text::ContinueOrCancel(verbs_);
  if (context_.messages.Ask(question, MessageButtons::OkCancel, MessageIcon::Warning) == MessageAnswer::Cancel) {
    summary_->Cancel();
    return Commit::Stop;
  }
  summary_->Remember(TransferSummary::Note::NotOverwritten);
  return Commit::Skipped;
}

FileTransfer::Step FileTransfer::Fail(int error, bool smartName) {
  // A rename into a folder that is gone reports a missing file; the folder
  // is what went missing.
  const bool vanished = error == platform::kPathNotFound ||
                        (error == platform::kFileNotFound && !context_.fs.Exists(destination_));
  QString detail;
  if (vanished) {
    detail = text::kDestinationVanished;
    FolderHistory history = FolderHistory::FromStored(context_.settings.folderHistory);
    history.Remove(Shown(destination_));
    context_.settings.folderHistory = history.ToStored();
    context_.view.ShowHistory();
  } else if (error == platform::kPathFileAccess) {
    detail = text::kDestinationReadOnly;
  } else {
    detail = smartName ? text::kDestinationNotWritable : text::ErrorNumber(error);
  }
  summary_->Fail(text::CouldNot(verbs_), detail);
  return Step::Stop;
}

void FileTransfer::NoteSmartName(const FileSet& set) {
  if (set.smartK == 0) return;
  summary_->SmartNamed(Shown(destination_), Shown(set.head), Shown(set.members.front().to));
}

// Under SmartName a name taken since it was found free, by someone else or
// by another file of this run, is one more clash.
bool FileTransfer::SmartNaming() const {
  return static_cast<OverwritePolicy>(context_.settings.moveOption) == OverwritePolicy::SmartName;
}

QByteArray FileTransfer::Target(const Member& member) const { return destination_ + member.to; }
QByteArray FileTransfer::Source(const Member& member) const { return context_.sourceFolder + member.from; }

}  // namespace renvale::fileops

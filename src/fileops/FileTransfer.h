#pragma once

#include <QByteArray>
#include <optional>
#include <unordered_set>
#include <vector>

#include "core/FileSetFinder.h"
#include "core/FolderIndex.h"
#include "core/RecordedOperation.h"
#include "core/SettingsRecord.h"
#include "fileops/TransferSummary.h"
#include "fileops/TransferVerbs.h"
#include "fileops/TransferView.h"
#include "platform/FileSystem.h"
#include "platform/MessagePort.h"

namespace renvale::fileops {

// The overwrite policies as the settings keep them ("Move Option").
enum class OverwritePolicy { Ask = 0, Never = 1, Always = 2, SmartName = 3 };

struct TransferContext {
  QByteArray sourceFolder;  // raw, the main window's current folder
  core::SettingsRecord& settings;
  platform::MessagePort& messages;
  platform::FileSystem& fs;
  TransferView& view;
  core::OperationRecorder* recorder = nullptr;  // none: nothing is kept for Undo
};

// Moves or copies the selected files (with the companions of their file
// sets) into a destination folder, following the overwrite policy of the
// settings, and tells the result.
//
// Nothing is ever in neither place. Within one file system a move is a
// rename that never replaces. Otherwise each file is copied under a hidden
// temporary name in the destination; a group of copies is flushed to disk at
// once and only then given final names (a no-replace rename, or a rename over
// the old file where replacing was agreed), the names are flushed, and only
// then are the sources of a move deleted. A kill at any moment leaves each
// file complete under its source or its destination name; the temporaries it
// leaves are removed by the next transfer into that folder.
//
// Every set is decided (the overwrite questions, SmartName's names) before
// the first change, so that the plan handed to the recorder names every
// target: Undo and the recovery after a kill go by it.
class FileTransfer {
 public:
  explicit FileTransfer(const TransferContext& context);

  // Runs the whole transfer into `destination` (raw, any trailing '/').
  void Run(const QByteArray& destination);

 private:
  enum class Step { Next, Stop };
  enum class Decision { Transfer, Replace, SmartName, Skip, Stop };
  enum class Commit { Done, Skipped, Stop };
  struct Member {
    QByteArray from;       // name in the source folder
    QByteArray to;         // name in the destination
    QByteArray temporary;  // full path of its copy while it has no name yet
  };
  struct FileSet {
    QByteArray head;
    std::vector<Member> members;
    bool replace = false;
    int smartK = 0;  // the SmartName number in use, 0 for none
  };

  bool SourceMayBeMoved();
  bool IsSameFolder() const;
  bool OnOneFileSystem() const;
  struct Planned {
    size_t position;  // in the selection
    FileSet set;
  };

  bool TransferSelection();
  std::vector<Planned> PlanSelection(const std::vector<platform::FileName>& selection, size_t* stopAt);
  bool Record(const std::vector<Planned>& planned, std::optional<core::RecordedOperation>* recorded);
  Decision Decide(const QByteArray& takenName);

  FileSet SetFor(const QByteArray& head, const QByteArray& finalHead) const;
  const Member* FirstTaken(const FileSet& set) const;
  void TakeNextSmartName(FileSet* set) const;

  Step RenameSet(FileSet& set);
  Step CopySet(FileSet& set);
  Step CommitStaged();
  Commit CommitSet(FileSet& set);
  void TakeBack(const FileSet& set, size_t committed, bool toTemporaries);
  void RemoveTemporaries(FileSet& set);
  Step DeleteSources(const FileSet& set);

  Commit ReplaceFailed(int error);
  Step Fail(int error, bool smartName);
  void NoteSmartName(const FileSet& set);
  bool SmartNaming() const;
  QByteArray Target(const Member& member) const;
  QByteArray Source(const Member& member) const;

  TransferContext context_;
  QByteArray destination_;
  TransferVerbs verbs_;
  std::optional<TransferSummary> summary_;
  bool move_ = false;
  bool renameOnly_ = false;
  core::FolderIndex index_;
  std::optional<core::FileSetFinder> finder_;
  std::vector<FileSet> staged_;
  // Targets given to sets of this run but not yet named: SmartName must not
  // pick one of them for a later set.
  std::unordered_set<QByteArray> claimed_;
};

}  // namespace renvale::fileops

#pragma once

#include <QString>
#include <functional>
#include <unordered_set>
#include <vector>

#include "core/AsciiFoldedName.h"
#include "core/BatchNaming.h"
#include "core/FileRenamer.h"
#include "core/OverwritingRename.h"
#include "core/RecordedOperation.h"
#include "core/RenameContext.h"
#include "core/RenamePlanner.h"

namespace renvale::core {

// "Start Batch Renaming": renames every selected file from the base name in
// the new-name box. The work is linear in the number of files: the folder is
// read once, each file costs hash lookups and its own rename, the list is
// refreshed once at the end and re-selection is one search.
class BatchRename {
 public:
  explicit BatchRename(const RenameContext& context,
                       RandomSeriesPool::RandomSource random = RandomSeriesPool::TimeSeededSource());

  // Checks the base (before any file is touched), works out every new name,
  // then renames the selected files, asking before replacing a file; stops
  // at a Cancel or the first failure (files renamed before it stay
  // renamed). A file whose new name another file of the batch leaves is
  // renamed after that one, through a hidden name where names form a cycle,
  // so files trading names are never asked about. `prepared` (the names a
  // preview showed) is used when it is still the batch's: same folder,
  // base, selection and next series number.
  void StartBatchRename(const BatchNaming* prepared = nullptr);

  // The extension guard's base for the current selection: the batch's base
  // without the extension each file puts in its place.
  QString FileBase(const QString& base) const;

  // Told of each file whose turn is over, with whether it now has its new
  // name: a caller that reports per file learns it as it happens instead
  // of looking at the disk afterwards. Not told: files that travel with
  // another, and files a stop leaves untouched.
  using TurnObserver = std::function<void(const NamedFile& named, bool renamed)>;
  void ObserveTurns(TurnObserver observer) { observer_ = std::move(observer); }

 private:
  enum class Ending { Finished, Stopped };
  enum class Step { Next, Stop };

  using FoldedNames = std::unordered_multiset<QByteArray, AsciiFoldedName, AsciiFoldedName>;

  bool BaseAccepted(const QString& base);
  bool StillValid(const BatchNaming& prepared, const QString& base,
                  const std::vector<platform::FileName>& files) const;
  Ending RenameAll(const QString& base, const BatchNaming* prepared, QString* lastNewName);
  class Naming;
  Ending RenameAsNamed(const std::vector<platform::FileName>& files, const QString& base, FileRenamer& renamer,
                       RecordedOperation* recorded, QString* lastNewName);
  Ending RenameUnrecorded(Naming& naming, FileRenamer& renamer, QString* lastNewName);
  Ending RenameRecorded(Naming& naming, FileRenamer& renamer, RecordedOperation& recorded, QString* lastNewName);
  std::vector<PlanStep> DescribePiece(const std::vector<NamedFile>& piece, FileRenamer& renamer) const;
  Ending NotKept(const RecordedOperation& recorded);
  Ending RenamePlanned(const BatchNaming& naming, FileRenamer& renamer, RecordedOperation* recorded,
                       QString* lastNewName);
  std::vector<PlannedTurn> Turns(const BatchNaming& naming, FileRenamer& renamer) const;
  Step TakeTurn(const std::vector<PlannedRename>& asides, const NamedFile& named, FileRenamer& renamer,
                QString* lastNewName);
  OperationPlan Plan(const std::vector<PlannedTurn>& turns, const BatchNaming& naming, FileRenamer& renamer) const;
  Step StepAside(const PlannedRename& aside, FileRenamer& renamer);
  void PutBackAside(FileRenamer& renamer);
  void PutBack(const NamePair& aside, FileRenamer& renamer);
  Step Settle(const OverwriteOutcome& outcome, const NamedFile& named, QString* lastNewName);
  void ShowProgress(size_t done, size_t total);
  void Finish(Ending ending, const QString& lastNewName);

  const RenameContext& context_;
  RandomSeriesPool::RandomSource random_;
  int shownPercent_ = -1;
  size_t done_ = 0;
  size_t total_ = 0;
  bool seriesTaken_ = false;  // a file took a number: the box ends where the names left it
  QString finalSeries_;
  // Files standing under a hidden name until their turn: old name -> hidden name.
  std::vector<NamePair> aside_;
  TurnObserver observer_;
};

}  // namespace renvale::core

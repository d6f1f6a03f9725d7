#pragma once

#include <QString>
#include <vector>

#include "core/BatchFileNamer.h"
#include "core/FileRenamer.h"
#include "core/OverwritingRename.h"
#include "core/RenameContext.h"

namespace renvale::core {

// "Start Batch Renaming": renames every selected file from the base name in
// the new-name box. The work is linear in the number of files: the folder is
// read once, each file costs hash lookups and its own rename, the list is
// refreshed once at the end and re-selection is one search.
class BatchRename {
 public:
  explicit BatchRename(const RenameContext& context);

  // Checks the base (before any file is touched), then renames the selected
  // files in list order, asking before replacing a file; stops at a Cancel
  // or the first failure (files renamed before it stay renamed).
  void StartBatchRename();

 private:
  enum class Ending { Finished, Stopped };
  enum class Step { Next, Stop };

  bool BaseAccepted(const QString& base);
  QString FileBase(const QString& base) const;
  Ending RenameAll(const QString& base, QString* lastNewName);
  Step RenameOne(const platform::FileName& file, BatchFileNamer& namer, FileRenamer& renamer,
                 QString* lastNewName);
  Step Settle(const OverwriteOutcome& outcome, const platform::FileName& file, const QString& newName,
              BatchFileNamer& namer, QString* lastNewName);
  void ShowProgress(size_t done, size_t total);
  void Finish(Ending ending, const QString& lastNewName);

  const RenameContext& context_;
  int shownPercent_ = -1;
};

}  // namespace renvale::core

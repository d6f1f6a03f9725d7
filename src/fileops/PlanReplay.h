#pragma once

#include <QStringList>

#include "core/OperationPlan.h"
#include "platform/FileSystem.h"
#include "platform/MessagePort.h"

namespace renvale::fileops {

struct ReplayResult {
  int carriedOut = 0;      // steps finished or taken back
  QStringList passedOver;  // one line per file left alone, saying why
};

// Carries a recorded plan forward (the rest of an operation a crash cut
// short) or back (Undo). It uses the same no-replace renames as the
// operations, so it never overwrites a file; a file that has changed since
// the plan was made is left alone and listed. Copies, either way, are
// named only when complete.
class PlanReplay {
 public:
  PlanReplay(platform::FileSystem& fs, platform::MessagePort& messages);

  ReplayResult Finish(const core::OperationPlan& plan);
  // Newest step first. Copies go to the trash only after the person's Yes.
  ReplayResult Undo(const core::OperationPlan& plan);

 private:
  int FinishStep(const core::PlanStep& step);
  int UndoStep(const core::PlanStep& step);
  void SweepTemporaries(const core::OperationPlan& plan);
  bool TakeBackUnremovedCopy(const core::PlanStep& step);
  void Tally(const std::vector<int>& errors, const std::vector<const QByteArray*>& paths, ReplayResult* result);
  bool CopiesMayGo(int copies);
  void PassOver(ReplayResult* result, const QByteArray& path, const QString& why);

  platform::FileSystem& fs_;
  platform::MessagePort& messages_;
};

}  // namespace renvale::fileops

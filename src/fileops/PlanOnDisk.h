#pragma once

#include <vector>

#include "core/OperationPlan.h"
#include "platform/FileSystem.h"

namespace renvale::fileops {

// Where a step stands, told by the disk alone.
enum class StepState {
  Done,     // the file is where the step puts it
  NotDone,  // the file is still where the step found it
  Changed,  // neither: renamed again, gone, or replaced by another file
};

// Reads where each step of a plan stands. The files are recognised by
// their identity, not their names, so a name taken over by another file of
// the same plan (a swap, a cycle through a temporary name) is told right.
class PlanOnDisk {
 public:
  static StepState StateOf(platform::FileSystem& fs, const core::PlanStep& step);
  static std::vector<StepState> States(platform::FileSystem& fs, const core::OperationPlan& plan);
};

}  // namespace renvale::fileops

#include "fileops/PlanOnDisk.h"

#include "core/PlanIdentity.h"

namespace renvale::fileops {

StepState PlanOnDisk::StateOf(platform::FileSystem& fs, const core::PlanStep& step) {
  const core::FileIdentity& id = step.identity;
  switch (step.kind) {
    case core::StepKind::Rename:
      if (core::HoldsFile(fs, step.to, id)) return StepState::Done;
      return core::HoldsFile(fs, step.from, id) ? StepState::NotDone : StepState::Changed;
    case core::StepKind::Copy:
      // A copy is made under a hidden name and named only when complete.
      if (core::HoldsFile(fs, step.to, id, false)) return StepState::Done;
      return core::HoldsFile(fs, step.from, id) && !fs.Exists(step.to) ? StepState::NotDone : StepState::Changed;
    case core::StepKind::Trash:
      if (core::HoldsFile(fs, step.from, id)) return StepState::NotDone;
      return fs.Exists(step.from) ? StepState::Changed : StepState::Done;
  }
  return StepState::Changed;
}

std::vector<StepState> PlanOnDisk::States(platform::FileSystem& fs, const core::OperationPlan& plan) {
  std::vector<StepState> states;
  states.reserve(plan.steps.size());
  for (const core::PlanStep& step : plan.steps) states.push_back(StateOf(fs, step));
  return states;
}

}  // namespace renvale::fileops

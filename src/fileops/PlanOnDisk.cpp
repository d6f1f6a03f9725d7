#include "fileops/PlanOnDisk.h"

#include <unordered_map>

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
    case core::StepKind::CopyThenRemove:
      // Named but the source not yet removed counts as not done: the file
      // is still whole where the step found it.
      if (core::HoldsFile(fs, step.to, id, false)) {
        if (!fs.Exists(step.from)) return StepState::Done;
        return core::HoldsFile(fs, step.from, id) ? StepState::NotDone : StepState::Changed;
      }
      return core::HoldsFile(fs, step.from, id) && !fs.Exists(step.to) ? StepState::NotDone : StepState::Changed;
  }
  return StepState::Changed;
}

// A step whose file is on neither of its names may be a link of a chain
// (a swap or a cycle through a temporary name): done when the next link
// took its file on from where it put it, not done when the link before it
// has not brought the file yet.
std::vector<StepState> PlanOnDisk::States(platform::FileSystem& fs, const core::OperationPlan& plan) {
  const std::vector<core::PlanStep>& steps = plan.steps;
  std::vector<StepState> states;
  states.reserve(steps.size());
  for (const core::PlanStep& step : steps) states.push_back(StateOf(fs, step));
  std::unordered_map<QByteArray, size_t> startingAt;
  for (size_t i = steps.size(); i-- > 0;) {
    const auto next = startingAt.find(steps[i].to);
    if (states[i] == StepState::Changed && next != startingAt.end() && states[next->second] == StepState::Done) {
      states[i] = StepState::Done;
    }
    startingAt[steps[i].from] = i;
  }
  std::unordered_map<QByteArray, size_t> endingAt;
  for (size_t i = 0; i < steps.size(); ++i) {
    const auto before = endingAt.find(steps[i].from);
    if (states[i] == StepState::Changed && before != endingAt.end() && states[before->second] == StepState::NotDone) {
      states[i] = StepState::NotDone;
    }
    endingAt[steps[i].to] = i;
  }
  return states;
}

}  // namespace renvale::fileops

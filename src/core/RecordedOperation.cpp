#include "core/RecordedOperation.h"

namespace renvale::core {

RecordedOperation::RecordedOperation(OperationRecorder* recorder, const OperationPlan& plan)
    : recorder_(recorder), start_{plan.kind, plan.folder, plan.started, {}} {
  if (recorder_ == nullptr || plan.steps.empty()) return;
  error_ = recorder_->Begin(plan);
  begun_ = error_ == 0;
}

RecordedOperation::~RecordedOperation() {
  if (begun_ || prepared_) recorder_->End();
}

void RecordedOperation::Prepare() {
  if (recorder_ == nullptr || begun_ || error_ != 0) return;
  recorder_->Prepare(start_);
  prepared_ = true;
}

// The steps are taken over, not copied: the first piece of a long batch
// holds every one of its ten thousand renames.
int RecordedOperation::Add(std::vector<PlanStep> steps) {
  if (recorder_ == nullptr || steps.empty() || error_ != 0) return error_;
  if (begun_) {
    error_ = recorder_->Extend(std::move(steps));
    return error_;
  }
  start_.steps = std::move(steps);
  error_ = recorder_->Begin(start_);
  start_.steps.clear();
  begun_ = error_ == 0;
  return error_;
}

}  // namespace renvale::core

#include "core/RecordedOperation.h"

namespace renvale::core {

RecordedOperation::RecordedOperation(OperationRecorder* recorder, const OperationPlan& plan)
    : recorder_(plan.steps.empty() ? nullptr : recorder) {
  if (recorder_ == nullptr) return;
  error_ = recorder_->Begin(plan);
  if (error_ != 0) recorder_ = nullptr;
}

RecordedOperation::~RecordedOperation() {
  if (recorder_ != nullptr) recorder_->End();
}

}  // namespace renvale::core

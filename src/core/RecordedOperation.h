#pragma once

#include <vector>

#include "core/OperationRecorder.h"

namespace renvale::core {

// Hands an operation's plan to the recorder before the first change and
// tells it the end on every way out. With no recorder it does nothing.
class RecordedOperation {
 public:
  // A plan without steps yet begins with the first Add.
  RecordedOperation(OperationRecorder* recorder, const OperationPlan& plan);
  ~RecordedOperation();
  RecordedOperation(const RecordedOperation&) = delete;
  RecordedOperation& operator=(const RecordedOperation&) = delete;

  // 0, or why the plan could not be kept (then nothing may change).
  int Error() const { return error_; }

  // Adds steps worked out on the way, durable before it returns; 0 or the
  // error, after which none of them may be taken.
  int Add(std::vector<PlanStep> steps);

  // Lets the recorder ready itself for the first Add while the operation
  // works out its steps (see OperationRecorder::Prepare).
  void Prepare();

  // Whether Add may run on a second thread (see OperationRecorder).
  bool FromAnyThread() const { return recorder_ != nullptr && recorder_->WritesFromAnyThread(); }

 private:
  OperationRecorder* recorder_;
  OperationPlan start_;  // the plan's kind, folder and time, until it begins
  bool begun_ = false;
  bool prepared_ = false;
  int error_ = 0;
};

}  // namespace renvale::core

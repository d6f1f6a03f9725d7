#pragma once

#include "core/OperationRecorder.h"

namespace renvale::core {

// Hands an operation's plan to the recorder before the first change and
// tells it the end on every way out. With no recorder it does nothing.
class RecordedOperation {
 public:
  RecordedOperation(OperationRecorder* recorder, const OperationPlan& plan);
  ~RecordedOperation();
  RecordedOperation(const RecordedOperation&) = delete;
  RecordedOperation& operator=(const RecordedOperation&) = delete;

  // 0, or why the plan could not be kept (then nothing may change).
  int Error() const { return error_; }

 private:
  OperationRecorder* recorder_;
  int error_ = 0;
};

}  // namespace renvale::core

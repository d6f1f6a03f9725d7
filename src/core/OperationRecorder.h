#pragma once

#include "core/OperationPlan.h"

namespace renvale::core {

// Keeps each operation's plan where a later start finds it, so that an
// operation cut short by a crash can be finished or taken back, and a
// finished one undone. An operation calls Begin before its first change
// and End however it ends.
class OperationRecorder {
 public:
  virtual ~OperationRecorder() = default;
  // Makes the plan durable; 0 or an error number. On an error the operation
  // does not start: a change that could not be taken back is not made.
  virtual int Begin(const OperationPlan& plan) = 0;
  // Readies what Begin writes first, for an operation about to begin with
  // the kind, folder and time of `start`, so that its first change waits
  // for less. Begin works without it; End discards what an operation that
  // never began had readied.
  virtual void Prepare(const OperationPlan& start) { (void)start; }
  // Adds steps to the plan begun, durable on return; 0 or an error number.
  // An operation that works its steps out as it goes adds each batch of
  // them before taking the first; on an error it takes none of them.
  // The steps are taken over: a long batch hands thousands at a time.
  virtual int Extend(std::vector<PlanStep> steps) = 0;
  virtual void End() = 0;
  // True when Begin and Extend may run on a second thread while the
  // operation changes files on the first (never two calls at once).
  virtual bool WritesFromAnyThread() const { return false; }
};

}  // namespace renvale::core

#include "core/PieceRecorder.h"

#include <chrono>

namespace renvale::core {

PieceRecorder::PieceRecorder(RecordedOperation& recorded)
    : recorded_(recorded), background_(recorded.FromAnyThread()) {}

PieceRecorder::~PieceRecorder() {
  if (inFlight_) Wait();
}

void PieceRecorder::Prepare() {
  Start([this] {
    recorded_.Prepare();
    return 0;
  });
}

void PieceRecorder::Submit(std::vector<PlanStep> steps) {
  inFlight_ = true;
  Start([this, piece = std::move(steps)]() mutable { return recorded_.Add(std::move(piece)); });
}

void PieceRecorder::Submit(std::function<std::vector<PlanStep>()> describe) {
  inFlight_ = true;
  Start([this, describe = std::move(describe)] { return recorded_.Add(describe()); });
}

// Nothing else touches the recorder until Wait: the future's hand-over
// orders the writes before the renames that rely on them. A preparing not
// waited for runs first, since the recorder takes one call at a time.
void PieceRecorder::Start(std::function<int()> work) {
  if (!background_) {
    result_ = work();
    return;
  }
  pending_ = std::async(std::launch::async, [before = std::move(pending_), work = std::move(work)]() mutable {
    if (before.valid()) before.get();
    return work();
  });
}

bool PieceRecorder::Settled() const {
  return !inFlight_ || !background_ ||
         pending_.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
}

int PieceRecorder::Wait() {
  if (!inFlight_) return recorded_.Error();
  inFlight_ = false;
  return background_ ? pending_.get() : result_;
}

}  // namespace renvale::core

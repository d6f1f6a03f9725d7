#pragma once

#include <functional>
#include <future>
#include <vector>

#include "core/RecordedOperation.h"

namespace renvale::core {

// Makes a batch's plan durable one piece at a time. Where the recorder may
// write from a second thread, a piece goes to the disk there while the
// renames of the piece before it go on: the flush is the slow part of a
// journal, and it then costs the batch nothing unless the renames catch up
// with it. Otherwise a piece is written as it is handed over. One piece is
// in flight at a time, and none of its steps may be taken before Wait() has
// returned 0 for it.
class PieceRecorder {
 public:
  explicit PieceRecorder(RecordedOperation& recorded);
  // Waits for the piece in flight, and for a preparing that no piece
  // followed (a future of std::async waits for its work when it goes): the
  // recorder is not left writing.
  ~PieceRecorder();
  PieceRecorder(const PieceRecorder&) = delete;
  PieceRecorder& operator=(const PieceRecorder&) = delete;

  // Lets the recorder ready itself for the first piece (see
  // RecordedOperation::Prepare), on the second thread where there is one,
  // while the batch works out its steps. The first Submit follows it there.
  void Prepare();
  // Starts keeping `steps`; the piece before must have been waited for.
  void Submit(std::vector<PlanStep> steps);
  // Starts keeping the steps `describe` gives. It runs where the piece is
  // written, on the second thread where there is one, so that what it asks
  // the system (the files' identities) is not asked between renames; it
  // must read nothing the renames change.
  void Submit(std::function<std::vector<PlanStep>()> describe);
  bool InFlight() const { return inFlight_; }
  // True once Wait would not block.
  bool Settled() const;
  // 0 once the piece in flight is durable, else the error (and then none
  // of its steps may be taken).
  int Wait();

 private:
  // Runs `work` on the second thread where there is one, else at once.
  void Start(std::function<int()> work);

  RecordedOperation& recorded_;
  const bool background_;
  bool inFlight_ = false;
  int result_ = 0;  // of a piece written as it was handed over
  std::future<int> pending_;  // the piece in flight, or the preparing before the first
};

}  // namespace renvale::core

#pragma once

#include <QByteArray>
#include <atomic>
#include <thread>
#include <vector>

#include "core/RenamePlanner.h"
#include "platform/FileSystem.h"

namespace renvale::core {

// Renames single files of one folder, in the order given, on a second
// thread, while the first does the bookkeeping of those already renamed:
// a run of thousands then costs about what its renames cost. It stops at
// the first rename that fails and tries none after it, so the caller can
// take that file its own way (a question, a message) and go on or stop.
// Only for a file system that may be written from a second thread.
class RenameRelay {
 public:
  RenameRelay(platform::FileSystem& fs, const QByteArray& folder);
  // Waits for the renames under way.
  ~RenameRelay();
  RenameRelay(const RenameRelay&) = delete;
  RenameRelay& operator=(const RenameRelay&) = delete;

  // Starts renaming `pairs` (names in the folder); the ones started before
  // must all be settled.
  void Start(std::vector<NamePair> pairs);
  // Blocks until more than `seen` of the pairs are settled, or all are, and
  // returns how many are. Settled pairs succeeded, except the last one
  // settled when it failed.
  size_t WaitPast(size_t seen);
  // 0, or the error number of a settled pair.
  int Error(size_t i) const { return errors_[i]; }

 private:
  void Work();
  void Join();

  platform::FileSystem& fs_;
  const QByteArray folder_;
  std::vector<NamePair> pairs_;
  std::vector<int> errors_;
  std::atomic<size_t> settled_{0};
  std::thread worker_;
};

}  // namespace renvale::core

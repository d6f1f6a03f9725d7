#pragma once

#include "fileops/SearchReplaceView.h"

namespace renvale::fileops {

// A run with no dialog to show it: the caller reads the outcome from the
// disk instead, so nothing of it is kept.
class SilentSearchReplaceView : public SearchReplaceView {
 public:
  void SetRunning(bool) override {}
  void SetProgressMaximum(int) override {}
  void SetProgress(int) override {}
  void ProcessEvents() override {}
  void ShowResults(const QString&) override {}
};

}  // namespace renvale::fileops

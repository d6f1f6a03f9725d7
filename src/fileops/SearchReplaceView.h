#pragma once

#include <QString>

namespace renvale::fileops {

// What a search-and-replace run needs of its dialog. The dialog implements
// it over its widgets; tests over plain fields. Everything runs on the
// window's thread.
class SearchReplaceView {
 public:
  virtual ~SearchReplaceView() = default;

  // While a run is under way the dialog takes no second start and cannot be
  // closed, and says it is scanning.
  virtual void SetRunning(bool running) = 0;
  // The progress bar: `maximum` once per run, then the files done so far.
  virtual void SetProgressMaximum(int maximum) = 0;
  virtual void SetProgress(int value) = 0;
  // Shows the files done so far at once: a question is about to stop the
  // run, and the bar must not read less than was done while it waits.
  virtual void ShowProgressNow() {}
  // Lets pending window events run; may skip the work when called faster
  // than the screen refreshes.
  virtual void ProcessEvents() = 0;
  // The results of a run, so that the results window can be laid out on
  // the other processor while the renames wait on the disk: as they will be
  // if every file is renamed, before the first rename, then as they are,
  // before the closing message. The second need not go on from the first.
  virtual void ResultsReady(const QString& results) { (void)results; }
  // Shows the results window with `results`, modally.
  virtual void ShowResults(const QString& results) = 0;
};

}  // namespace renvale::fileops

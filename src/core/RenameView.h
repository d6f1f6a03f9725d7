#pragma once

#include <QString>
#include <vector>

#include "platform/FileName.h"

namespace renvale::core {

// What the rename operations need of the main window. The window implements
// it over its widgets; tests implement it over plain fields. Everything runs
// on the window's thread.
class RenameView {
 public:
  virtual ~RenameView() = default;

  // The new-name box `Text1`.
  virtual QString NewNameText() const = 0;
  virtual void SetNewNameText(const QString& text) = 0;
  // The "Next Series #:" box `Text2`.
  virtual QString SeriesText() const = 0;
  virtual void SetSeriesText(const QString& text) = 0;
  // Whether "Randomize Series #s" is ticked.
  virtual bool RandomSeries() const = 0;

  // The selected files in list order (raw names, no folder).
  virtual std::vector<platform::FileName> SelectedFiles() const = 0;

  // Re-reads the folder, clears the selection, rewrites the count label.
  virtual void RefreshFileList() = 0;
  // Selects the first listed file whose name equals `name` without regard
  // to case (which re-enters individual mode); false when none does.
  virtual bool SelectFileNamed(const QString& name) = 0;
  virtual void LeaveBatchMode() = 0;

  virtual void SetSelectionLabel(const QString& text) = 0;
  // Releases whatever the preview holds and shows `caption` there.
  virtual void ResetPreview(const QString& caption) = 0;
  // Previews the selected file (when automatic preview is on).
  virtual void PreviewSelected() = 0;

  // Batch progress: shown while a batch runs, 0..100.
  virtual void ShowProgress(bool visible) = 0;
  virtual void SetProgress(int percent) = 0;
  // Lets pending window events run (keeps the window responsive in loops).
  // Implementations may skip the work when called faster than the screen
  // refreshes.
  virtual void ProcessEvents() = 0;

  virtual void ShowQuickTip(int tipNumber) = 0;
};

}  // namespace renvale::core

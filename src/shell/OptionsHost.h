#pragma once

namespace renvale::shell {

// What the options window asks of the main window. The main window
// implements it over its widgets; tests record the calls.
class OptionsHost {
 public:
  virtual ~OptionsHost() = default;
  // Re-reads the file list with the filter (0 all files, 1 typical images).
  virtual void ApplyFileFilter(int filter) = 0;
  // 0 fills the preview area whatever the picture's shape, 1 keeps its shape.
  virtual void SetPreviewStyle(int style) = 0;
  // Off hides the preview and says how to turn it back on; on shows it and
  // previews the selected file, if there is one to preview.
  virtual void ShowPreview(bool on) = 0;
  virtual void ReformatSeriesBox() = 0;
  virtual void ApplyToolTips(bool on) = 0;
  // Scales the window's fonts to its present size once.
  virtual void RescaleWindow() = 0;
};

}  // namespace renvale::shell

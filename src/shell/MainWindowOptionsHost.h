#pragma once

#include "shell/OptionsHost.h"

namespace renvale::core {
class RenameView;
}  // namespace renvale::core

namespace renvale::shell {

class MainWindow;

// The options window's view of the main window. The preview is reached
// through the same calls the renames use, so the preview pane has one door.
class MainWindowOptionsHost : public OptionsHost {
 public:
  MainWindowOptionsHost(MainWindow& window, core::RenameView& view) : window_(window), view_(view) {}

  void ApplyFileFilter(int filter) override;
  void SetPreviewStyle(int style) override;
  void ShowPreview(bool on) override;
  void ReformatSeriesBox() override;
  void ApplyToolTips(bool on) override;
  void RescaleWindow() override;

 private:
  MainWindow& window_;
  core::RenameView& view_;
};

}  // namespace renvale::shell

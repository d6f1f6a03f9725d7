#include "shell/MainWindowOptionsHost.h"

#include "core/CoreTexts.h"
#include "core/RenameView.h"
#include "core/SeriesCounter.h"
#include "shell/MainWindow.h"
#include "shell/PreviewPane.h"
#include "shell/SeriesLineEdit.h"

namespace renvale::shell {

void MainWindowOptionsHost::ApplyFileFilter(int filter) { window_.ApplyFileFilter(filter); }

// The pane draws in the style the settings hold, which is `style` by now.
void MainWindowOptionsHost::SetPreviewStyle(int) { window_.Preview().Render(); }

void MainWindowOptionsHost::ShowPreview(bool on) {
  const int selected = window_.Session().SelectedCount;
  if (!on) {
    view_.ResetPreview(core::texts::kAutoPreviewDisabledTools);
  } else if (selected == 1) {
    view_.PreviewSelected();
  } else {
    // Several files are never previewed; their caption stays empty.
    view_.ResetPreview(selected == 0 ? core::texts::kNoFileSelected : QString());
  }
}

void MainWindowOptionsHost::ReformatSeriesBox() {
  SeriesLineEdit box(*window_.Ui().Text2);
  core::SeriesCounter(box, window_.Settings()).ReformatSeriesBox();
}

void MainWindowOptionsHost::ApplyToolTips(bool on) { window_.ApplyToolTips(on); }

void MainWindowOptionsHost::RescaleWindow() { window_.ScaleFonts(); }

}  // namespace renvale::shell

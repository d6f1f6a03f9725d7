#pragma once

#include <QElapsedTimer>
#include <QString>

#include "core/RenameView.h"

namespace renvale::shell {

class MainWindow;

// The rename operations' view of the main window.
//
// While a batch runs, the new name, the series number and the progress are
// kept here and written to their widgets only when events are let through:
// a line edit lays out its text and a progress bar repaints at once on every
// change, which costs more than renaming the file. Nothing can change the
// widgets between two event runs, so the held values are always the true
// ones.
class MainWindowRenameView : public core::RenameView {
 public:
  explicit MainWindowRenameView(MainWindow& window) : window_(window) {}

  QString NewNameText() const override;
  void SetNewNameText(const QString& text) override;
  QString SeriesText() const override;
  void SetSeriesText(const QString& text) override;
  bool RandomSeries() const override;
  std::vector<platform::FileName> SelectedFiles() const override;
  void RefreshFileList() override;
  bool SelectFileNamed(const QString& name) override;
  void LeaveBatchMode() override;
  void SetSelectionLabel(const QString& text) override;
  void ResetPreview(const QString& caption) override;
  void PreviewSelected() override;
  void ShowProgress(bool visible) override;
  void SetProgress(int percent) override;
  void ProcessEvents() override;
  void ShowQuickTip(int tipNumber) override;

 private:
  void ShowHeldValues();

  MainWindow& window_;
  QElapsedTimer sinceEvents_;
  bool batchRunning_ = false;
  bool nameHeld_ = false;
  QString heldName_;
  bool seriesHeld_ = false;
  QString heldSeries_;
  int heldPercent_ = -1;
};

}  // namespace renvale::shell

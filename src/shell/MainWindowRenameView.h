#pragma once

#include <QElapsedTimer>

#include "core/RenameView.h"

namespace renvale::shell {

class MainWindow;

// The rename operations' view of the main window.
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
  MainWindow& window_;
  QElapsedTimer sinceEvents_;
};

}  // namespace renvale::shell

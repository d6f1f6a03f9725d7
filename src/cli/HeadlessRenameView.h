#pragma once

#include "core/RenameView.h"

namespace renvale::cli {

// The batch's window, for one folder of the command line: the "selection"
// is the files given for that folder, in the order given, and the series
// box is a plain text the batch advances. Nothing is shown.
class HeadlessRenameView : public core::RenameView {
 public:
  HeadlessRenameView(QString base, std::vector<platform::FileName> files, QString series, bool random = false)
      : base_(std::move(base)), files_(std::move(files)), series_(std::move(series)), random_(random) {}

  QString NewNameText() const override { return base_; }
  // The batch shows each file's name here and empties it at the end; the
  // base stays the command line's.
  void SetNewNameText(const QString&) override {}
  QString SeriesText() const override { return series_; }
  void SetSeriesText(const QString& text) override { series_ = text; }
  bool RandomSeries() const override { return random_; }
  std::vector<platform::FileName> SelectedFiles() const override { return files_; }

  void RefreshFileList() override {}
  bool SelectFileNamed(const QString&) override { return false; }
  void LeaveBatchMode() override {}
  void SetSelectionLabel(const QString&) override {}
  void ResetPreview(const QString&) override {}
  void PreviewSelected() override {}
  void ShowProgress(bool) override {}
  void SetProgress(int) override {}
  void ProcessEvents() override {}
  void ShowQuickTip(int) override {}

 private:
  QString base_;
  std::vector<platform::FileName> files_;
  QString series_;
  bool random_;
};

}  // namespace renvale::cli

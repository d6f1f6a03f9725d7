#pragma once

#include <vector>

#include "fileops/TransferView.h"

namespace renvale::test {

// A transfer's view without a window: a fixed selection, counted progress,
// and a cancel that comes after `cancelAfter` files.
class FakeTransferView : public fileops::TransferView {
 public:
  std::vector<platform::FileName> SelectedFiles() const override { return selected; }
  void SetTransferring(bool on, int) override { transferring = on; }
  void AdvanceProgress() override { ++progress; }
  void ProcessEvents() override {}
  bool CancelRequested() const override { return progress >= cancelAfter; }
  void ShowMode() override {}
  void ShowHistory() override {}
  void RefreshFileList() override { ++refreshes; }
  void ShowSmartNameResults(const QString& text) override { report = text; }

  std::vector<platform::FileName> selected;
  bool transferring = false;
  int progress = 0;
  int cancelAfter = 1 << 30;
  int refreshes = 0;
  QString report;
};

}  // namespace renvale::test

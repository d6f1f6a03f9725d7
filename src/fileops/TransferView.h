#pragma once

#include <QString>
#include <vector>

#include "platform/FileName.h"

namespace renvale::fileops {

// What a transfer needs of the move dialog and the main window behind it.
// Everything runs on the window's thread.
class TransferView {
 public:
  virtual ~TransferView() = default;

  // The main list's selected files, top to bottom (raw names, no folder).
  virtual std::vector<platform::FileName> SelectedFiles() const = 0;
  // Enters or leaves the transferring state: "Cancel" on the transfer
  // button, the other controls disabled, the progress bar sized to `files`.
  virtual void SetTransferring(bool on, int files) = 0;
  virtual void AdvanceProgress() = 0;
  // Lets pending window events run; a click on "Cancel" gets through here.
  virtual void ProcessEvents() = 0;
  virtual bool CancelRequested() const = 0;
  // The settings' transfer mode or folder history changed during a run.
  virtual void ShowMode() = 0;
  virtual void ShowHistory() = 0;
  // Re-reads the main list and resets its current-file caption.
  virtual void RefreshFileList() = 0;
  virtual void ShowSmartNameResults(const QString& report) = 0;
};

}  // namespace renvale::fileops

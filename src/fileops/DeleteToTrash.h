#pragma once

#include <QByteArray>
#include <optional>
#include <vector>

#include "core/RecordedOperation.h"
#include "core/RenameContext.h"

namespace renvale::fileops {

// The main window's "DEL": sends the selected files to the desktop's trash
// after asking. A file the trash cannot take (a file system without one)
// stays where it is and is reported: nothing is ever deleted for good in
// place of being trashed.
class DeleteToTrash {
 public:
  explicit DeleteToTrash(const core::RenameContext& context);

  // With several files selected, asks once and trashes each selected file;
  // otherwise asks about the list's current file and trashes it.
  void DeleteSelected();

 private:
  bool DeleteSeveral();
  bool DeleteCurrent();
  bool Record(const std::vector<platform::FileName>& files, std::optional<core::RecordedOperation>* recorded);
  int Trash(const QByteArray& name);
  void ReleasePreviewIfHeld(const QByteArray& path);
  void ShowFolderAfterwards();

  const core::RenameContext& context_;
  // Held from the start: events let through meanwhile may change the
  // window's folder, never where the files are taken from.
  QByteArray folder_;
};

}  // namespace renvale::fileops

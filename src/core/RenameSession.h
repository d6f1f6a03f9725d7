#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

#include "core/FolderIndex.h"
#include "platform/FileName.h"

namespace renvale::core {

// The main window's state between user actions; one per process, owned by
// the main window and handed by reference to the operations that read or
// change it.
struct RenameSession {
  QByteArray CurrentFolder;             // raw bytes, always ending in '/'
  platform::FileName SelectedFileName;  // name (no folder) of the list's current item
  QString SelectedBase;                 // SelectedFileName before its last "."
  QString SelectedExt;                  // from the last "." on, dot included
  int SelectedCount = 0;
  bool BatchMode = false;
  bool SeriesUsed = false;
  QByteArray PreviewedPath;             // file held open by the preview
  bool FirstActivation = true;
  QString HelpFilePath;
  bool Busy = false;                    // while set, file-list clicks are ignored
  // CurrentFolder's names as just read for another purpose, taken by the
  // next renamer of that folder instead of reading it again. Set only
  // where nothing in the folder is renamed before that.
  std::optional<FolderIndex> FreshListing;
};

}  // namespace renvale::core

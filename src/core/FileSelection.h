#pragma once

#include <QString>

#include "core/RenameSession.h"
#include "core/SettingsRecord.h"

namespace renvale::core {

enum class WindowMode { NoSelection, Individual, Batch };

// What the window shows after the file list's selection changed.
struct SelectionView {
  WindowMode mode = WindowMode::NoSelection;
  QString newName;         // for the new-name box, individual mode only
  QString selectionLabel;  // the label above the new-name box
  QString previewCaption;  // the preview area's caption
};

// Brings the session in step with a new selection of `selectedCount` files
// whose current item is `current` (null when the list has none).
SelectionView ApplySelection(RenameSession& session, int selectedCount, const platform::FileName* current,
                             const SettingsRecord& settings);

}  // namespace renvale::core

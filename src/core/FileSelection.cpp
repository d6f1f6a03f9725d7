#include "core/FileSelection.h"

#include "core/FileNameRules.h"
#include "core/CoreTexts.h"

namespace renvale::core {
namespace {

void TakeCurrentName(RenameSession& session, const platform::FileName& current, bool forceLce) {
  session.SelectedFileName = current;
  const SplitName split = SplitFileName(current.Display(), forceLce);
  session.SelectedBase = split.base;
  session.SelectedExt = split.extension;
}

}  // namespace

SelectionView ApplySelection(RenameSession& session, int selectedCount, const platform::FileName* current,
                             const SettingsRecord& settings) {
  SelectionView view;
  session.SelectedCount = selectedCount;
  const bool forceLce = settings.forceLowerCaseExtension;
  if (selectedCount == 0 || current == nullptr) {
    view.selectionLabel = texts::kNoFileSelected;
    session.SelectedFileName = {};
    return view;
  }
  TakeCurrentName(session, *current, forceLce);
  view.selectionLabel = current->Display();
  if (selectedCount == 1) {
    view.mode = WindowMode::Individual;
    session.BatchMode = false;
    view.newName = ApplyForcedExtensionCase(current->Display(), forceLce);
    // The preview itself belongs to the preview pane; without automatic
    // preview the caption says how to turn it on.
    view.previewCaption = settings.autoPreview ? current->Display() : texts::kAutoPreviewDisabledTools;
  } else {
    view.mode = WindowMode::Batch;
    session.BatchMode = true;
    view.selectionLabel = texts::FilesSelected(selectedCount);
  }
  return view;
}

}  // namespace renvale::core

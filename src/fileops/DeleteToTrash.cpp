#include "fileops/DeleteToTrash.h"

#include <optional>

#include "core/CoreTexts.h"
#include "core/PlanIdentity.h"
#include "core/RecordedOperation.h"
#include "fileops/FileopsTexts.h"
#include "platform/FileNumbers.h"
#include "platform/ErrorNumbers.h"

namespace renvale::fileops {

namespace {

using platform::MessageAnswer;
using platform::MessageButtons;
using platform::MessageIcon;

constexpr int kDeleteTip = 6;

}  // namespace

DeleteToTrash::DeleteToTrash(const core::RenameContext& context) : context_(context) {}

void DeleteToTrash::DeleteSelected() {
  if (context_.session.Busy) return;
  context_.view.ShowQuickTip(kDeleteTip);
  folder_ = context_.session.CurrentFolder;
  const bool asked = context_.session.BatchMode ? DeleteSeveral() : DeleteCurrent();
  if (asked) ShowFolderAfterwards();
}

// Returns whether the user said Yes (and so files may have gone).
bool DeleteToTrash::DeleteSeveral() {
  const std::vector<platform::FileName> files = context_.view.SelectedFiles();
  if (files.empty()) {
    context_.messages.Notify(texts::kNoFileIsSelected);
    return false;
  }
  if (context_.messages.AskBeforeLoss(texts::kConfirmDeleteSelected, MessageButtons::YesNo, MessageIcon::Question,
                                      texts::kConfirmDeleteTitle) != MessageAnswer::Yes) {
    return false;
  }
  std::optional<core::RecordedOperation> recorded;
  if (!Record(files, &recorded)) return false;
  context_.session.Busy = true;
  for (const platform::FileName& file : files) {
    if (Trash(file.raw) != platform::kNoError) {
      context_.messages.Notify(texts::kCouldNotTrashPrefix + file.Display() + texts::kCouldNotTrashSuffix);
    }
    context_.view.ProcessEvents();
  }
  context_.session.Busy = false;
  return true;
}

bool DeleteToTrash::DeleteCurrent() {
  const platform::FileName file = context_.session.SelectedFileName;
  if (file.raw.isEmpty()) {
    context_.messages.Notify(texts::kNoFileIsSelected);
    return false;
  }
  const QString question = texts::kConfirmDeleteOnePrefix + file.Display() + texts::kConfirmDeleteOneSuffix;
  if (context_.messages.AskBeforeLoss(question, MessageButtons::YesNo, MessageIcon::Question,
                                      texts::kConfirmDeleteTitle) != MessageAnswer::Yes) {
    return false;
  }
  std::optional<core::RecordedOperation> recorded;
  if (!Record({file}, &recorded)) return false;
  if (Trash(file.raw) != platform::kNoError) context_.messages.Notify(texts::kCouldNotTrashOne);
  return true;
}

// Keeps the plan so that Undo can bring the files back from the trash;
// false, after saying so, when it could not be kept.
bool DeleteToTrash::Record(const std::vector<platform::FileName>& files,
                           std::optional<core::RecordedOperation>* recorded) {
  core::OperationPlan plan{core::OperationKind::Trash, folder_, QDateTime::currentDateTimeUtc(), {}};
  if (context_.recorder != nullptr) {
    const bool stable = platform::FileNumbersStable(folder_);
    for (const platform::FileName& file : files) {
      const QByteArray path = folder_ + file.raw;
      plan.steps.push_back({core::StepKind::Trash, path, {}, core::IdentityOf(context_.fs, path, stable)});
    }
  }
  recorded->emplace(context_.recorder, plan);
  if ((*recorded)->Error() == platform::kNoError) return true;
  context_.messages.Notify(core::texts::kPlanNotKept.arg(platform::ErrorDescription((*recorded)->Error())),
                           MessageIcon::Critical);
  return false;
}

// Only the trash: where it is not supported the file stays, and the caller
// says so.
int DeleteToTrash::Trash(const QByteArray& name) {
  const QByteArray path = folder_ + name;
  ReleasePreviewIfHeld(path);
  return context_.fs.MoveToTrash(path);
}

// The preview may hold the file open (a playing video); it lets go of it
// before the file moves.
void DeleteToTrash::ReleasePreviewIfHeld(const QByteArray& path) {
  QByteArray& previewed = context_.session.PreviewedPath;
  if (previewed.isEmpty() || previewed != path) return;
  previewed.clear();
  context_.view.ResetPreview(QString());
}

void DeleteToTrash::ShowFolderAfterwards() {
  core::RenameView& view = context_.view;
  view.RefreshFileList();
  view.LeaveBatchMode();
  context_.session.SelectedFileName = platform::FileName{};
  view.SetSelectionLabel(texts::kNoFileSelectedCaption);
  view.ResetPreview(context_.settings.autoPreview ? QString() : texts::kAutoPreviewDisabled);
}

}  // namespace renvale::fileops

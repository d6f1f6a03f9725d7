#include "core/OverwritingRename.h"

#include "core/CoreTexts.h"
#include "core/RenameFailureTexts.h"
#include "platform/ErrorNumbers.h"

namespace renvale::core {

namespace {

using Kind = OverwriteOutcome::Kind;
using platform::MessageAnswer;

OverwriteOutcome Failed(int error, bool shown) {
  return OverwriteOutcome{Kind::Failed, error, shown, false};
}

}  // namespace

OverwritingRename::OverwritingRename(const RenameContext& context, FileRenamer& renamer)
    : context_(context), renamer_(renamer) {}

OverwriteOutcome OverwritingRename::Run(const platform::FileName& oldName, const QString& newName,
                                        bool targetKnown) {
  return Run(oldName, newName, platform::FileName::TextToName(newName), targetKnown);
}

OverwriteOutcome OverwritingRename::Run(const platform::FileName& oldName, const QString& newName,
                                        const QByteArray& target, bool targetKnown) {
  if (!targetKnown) {
    const OverwriteOutcome outcome = Rename(oldName, target);
    if (outcome.error != platform::kFileAlreadyExists || outcome.failureShown) return outcome;
  }
  return AskAndReplace(oldName, newName, target);
}

OverwriteOutcome OverwritingRename::AskAndReplace(const platform::FileName& oldName, const QString& newName,
                                                  const QByteArray& target) {
  const MessageAnswer answer =
      context_.messages.AskBeforeLoss(OverwriteQuestionText(newName), platform::MessageButtons::YesNoCancel,
                            platform::MessageIcon::Warning, texts::kOverwriteTitle);
  if (answer == MessageAnswer::No) return OverwriteOutcome{Kind::Declined};
  if (answer != MessageAnswer::Yes) return OverwriteOutcome{Kind::Cancelled};

  // On a case-folding file system "Photo.jpg" is the very file "photo.jpg":
  // deleting the target would delete the file being renamed.
  const bool caseOnly = target.compare(oldName.raw, Qt::CaseInsensitive) == 0;
  if (caseOnly && !renamer_.HasSeparateEntries(oldName.raw, target)) {
    return Failed(platform::kFileAlreadyExists, false);
  }
  if (const int error = renamer_.CheckCompanionTargets(oldName.raw, target)) return Failed(error, true);
  context_.tokens.FileReplaced();
  if (const int error = DeleteTarget(target)) return Failed(error, true);
  context_.view.ProcessEvents();
  OverwriteOutcome outcome = Rename(oldName, target);
  outcome.targetDeleted = true;
  return outcome;
}

int OverwritingRename::DeleteTarget(const QByteArray& newName) {
  const int error = context_.fs.RemoveFile(renamer_.Folder() + newName);
  if (error == 0) {
    renamer_.Forget(newName);
  } else {
    context_.messages.Notify(OverwriteFailureText(error), platform::MessageIcon::Critical);
  }
  return error;
}

OverwriteOutcome OverwritingRename::Rename(const platform::FileName& oldName, const QByteArray& newName) {
  const int error = renamer_.RenameInFolder(oldName.raw, newName);
  if (error == 0) return OverwriteOutcome{};
  return Failed(error, renamer_.FailureShown());
}

}  // namespace renvale::core

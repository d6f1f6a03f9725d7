#include "core/IndividualRename.h"

#include "core/CoreTexts.h"
#include "core/FileNameRules.h"
#include "core/FileRenamer.h"
#include "core/RecordedOperation.h"
#include "core/RenameFailureTexts.h"
#include "core/SeriesCounter.h"
#include "core/ViewSeriesBox.h"
#include "platform/ErrorNumbers.h"

namespace renvale::core {

namespace {

constexpr int kRenameDoneTip = 10;
constexpr int kRevertTip = 7;
constexpr int kClearTip = 8;

}  // namespace

IndividualRename::IndividualRename(const RenameContext& context) : context_(context) {}

void IndividualRename::RenameSelectedFile() {
  context_.view.ShowQuickTip(kRenameDoneTip);
  const QString text = context_.view.NewNameText();
  if (!NameCanBeUsed(text)) return;
  folder_ = context_.session.CurrentFolder;
  file_ = context_.session.SelectedFileName;
  extension_ = context_.session.SelectedExt;
  context_.session.SeriesUsed = false;
  const QString newName = ComposeName(text);
  context_.view.ProcessEvents();
  if (newName == file_.Display()) {
    context_.messages.Notify(texts::kSameAsOriginal);
    return;
  }
  if (CarryOut(newName)) ShowRenamedFile(newName);
}

bool IndividualRename::NameCanBeUsed(const QString& text) const {
  if (context_.session.SelectedFileName.raw.isEmpty()) {
    context_.messages.Notify(texts::kPleaseSelectFileFirst);
    return false;
  }
  if (text.isEmpty()) {
    context_.messages.Notify(texts::kPleaseEnterNewFilename);
    return false;
  }
  if (HasInvalidFilenameChars(text)) {
    context_.messages.Notify(texts::kInvalidFilenameChars);
    return false;
  }
  return true;
}

// The extension guard, then the tokens. Both results are written back into
// the box, so after a failure the user sees the name that was tried.
QString IndividualRename::ComposeName(const QString& text) {
  const QString guarded = AppendMissingExtension(text, extension_,
                                                 context_.settings.forceLowerCaseExtension);
  const QString expanded = ExpandIndividualTokens(guarded, [this](Token token) { return TokenValue(token); });
  if (expanded != text) context_.view.SetNewNameText(expanded);
  return expanded;
}

QString IndividualRename::TokenValue(Token token) {
  switch (token) {
    case Token::OrigFn:
      return CutExtension(file_.Display(), extension_);
    case Token::Series: {
      ViewSeriesBox box(context_.view);
      context_.session.SeriesUsed = true;
      return SeriesCounter(box, context_.settings).TakeSeriesText();
    }
    default:
      return context_.tokens.ExifValue(folder_, file_, token);
  }
}

bool IndividualRename::CarryOut(const QString& newName) {
  FileRenamer renamer(context_, folder_, {file_});
  // A change of letter case alone is renamed without asking.
  const bool caseOnly = newName.compare(file_.Display(), Qt::CaseInsensitive) == 0;
  const bool targetKnown = !caseOnly && context_.fs.Exists(folder_ + platform::FileName::TextToName(newName));
  OperationPlan plan{OperationKind::Rename, folder_, QDateTime::currentDateTimeUtc(), {}};
  renamer.DescribeRename(file_.raw, platform::FileName::TextToName(newName), &plan);
  const RecordedOperation recorded(context_.recorder, plan);
  if (recorded.Error() != 0) {
    context_.messages.Notify(texts::kPlanNotKept.arg(platform::ErrorDescription(recorded.Error())),
                             platform::MessageIcon::Critical);
    return false;
  }
  const OverwriteOutcome outcome = OverwritingRename(context_, renamer).Run(file_, newName, targetKnown);
  switch (outcome.kind) {
    case OverwriteOutcome::Kind::Renamed:
      return true;
    case OverwriteOutcome::Kind::Declined:
    case OverwriteOutcome::Kind::Cancelled:
      if (context_.session.SeriesUsed) {
        ViewSeriesBox box(context_.view);
        SeriesCounter(box, context_.settings).StepBackSeries();
      }
      return false;
    case OverwriteOutcome::Kind::Failed:
      ReportFailure(outcome, newName);
      return false;
  }
  return false;
}

void IndividualRename::ReportFailure(const OverwriteOutcome& outcome, const QString& newName) {
  if (outcome.failureShown) return;
  QString text = IndividualRenameFailureText(outcome.error, platform::ErrorDescription(outcome.error));
  if (outcome.targetDeleted) {
    text += texts::kCr +
            texts::kTargetDeletedRenameFailed.arg(newName, file_.Display());
  }
  context_.messages.Notify(text, platform::MessageIcon::Critical);
}

void IndividualRename::ShowRenamedFile(const QString& newName) {
  RenameView& view = context_.view;
  view.ResetPreview(QString());
  view.SetSelectionLabel(texts::kNoFileSelectedLabelAfterRename);
  view.SetNewNameText(QString());
  view.RefreshFileList();
  context_.session.SelectedFileName = platform::FileName{};
  view.SelectFileNamed(newName);
  if (context_.settings.autoPreview) {
    view.PreviewSelected();
  } else {
    view.ResetPreview(texts::kAutoPreviewDisabledAfterRename);
  }
}

void IndividualRename::RevertNewName() {
  context_.view.ShowQuickTip(kRevertTip);
  const RenameSession& session = context_.session;
  if (session.SelectedFileName.raw.isEmpty()) {
    context_.messages.Notify(texts::kNoFileIsSelected);
    return;
  }
  context_.view.SetNewNameText(ApplyForcedExtensionCase(session.SelectedFileName.Display(),
                                                        context_.settings.forceLowerCaseExtension));
}

void IndividualRename::ClearNewName() {
  context_.view.ShowQuickTip(kClearTip);
  context_.view.SetNewNameText(QString());
}

}  // namespace renvale::core

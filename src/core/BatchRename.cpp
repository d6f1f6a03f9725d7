#include "core/BatchRename.h"

#include "core/BatchBaseCheck.h"
#include "core/CoreTexts.h"
#include "core/FileNameRules.h"
#include "core/RenameFailureTexts.h"
#include "core/SeriesCounter.h"
#include "core/TokenExpansion.h"
#include "core/ViewSeriesBox.h"

namespace renvale::core {

namespace {

constexpr int kBatchTip = 15;
// Told when the person stops at a duplicate-name warning: the moment they
// look for a way to make every name unique.
constexpr int kUniqueNamesTip = 21;

// Keeps the file list from taking clicks while the batch lets window events
// run, and lets go on every way out.
class BusyScope {
 public:
  explicit BusyScope(RenameSession& session) : session_(session) { session_.Busy = true; }
  ~BusyScope() { session_.Busy = false; }
  BusyScope(const BusyScope&) = delete;
  BusyScope& operator=(const BusyScope&) = delete;

 private:
  RenameSession& session_;
};

int NumberedFiles(const std::vector<platform::FileName>& files, const FileRenamer& renamer) {
  int count = 0;
  for (const platform::FileName& file : files) {
    if (!renamer.Sets().TravelsWithSelectedHead(file.raw)) ++count;
  }
  return count;
}

}  // namespace

BatchRename::BatchRename(const RenameContext& context) : context_(context) {}

void BatchRename::StartBatchRename() {
  // The batch lets window events run; Enter pressed meanwhile must not start
  // a second one inside it.
  if (context_.session.Busy) return;
  const QString base = context_.view.NewNameText();
  if (!BaseAccepted(base)) return;
  context_.view.ShowQuickTip(kBatchTip);
  QString lastNewName;
  Ending ending;
  {
    BusyScope busy(context_.session);
    ending = RenameAll(FileBase(base), &lastNewName);
    context_.view.ProcessEvents();
  }
  Finish(ending, lastNewName);
}

bool BatchRename::BaseAccepted(const QString& base) {
  const BatchBaseVerdict verdict =
      CheckBatchBase(base, context_.session.SelectedFileName.Display(), context_.settings.exifTime);
  if (verdict.Stops()) {
    context_.messages.Notify(verdict.text);
    return false;
  }
  if (!verdict.IsQuestion()) return true;
  if (context_.messages.Ask(verdict.text, platform::MessageButtons::YesNo, platform::MessageIcon::Warning) ==
      platform::MessageAnswer::Yes) {
    return true;
  }
  context_.view.ShowQuickTip(kUniqueNamesTip);
  return false;
}

// The extension guard makes the selected file's extension the end of the
// base; every file then puts its own extension in that place.
QString BatchRename::FileBase(const QString& base) const {
  const QString& extension = context_.session.SelectedExt;
  const QString guarded =
      AppendMissingExtension(base, extension, context_.settings.forceLowerCaseExtension);
  return guarded.left(guarded.size() - extension.size());
}

BatchRename::Ending BatchRename::RenameAll(const QString& base, QString* lastNewName) {
  RenameView& view = context_.view;
  view.SetSelectionLabel(texts::kProcessingFiles);
  shownPercent_ = -1;
  view.ShowProgress(true);
  const std::vector<platform::FileName> files = view.SelectedFiles();
  // The folder is held for the whole batch: events that run meanwhile may
  // change the window's current folder, never the files being renamed.
  FileRenamer renamer(context_, context_.session.CurrentFolder, files);
  std::optional<int> randomCount;
  if (view.RandomSeries()) randomCount = NumberedFiles(files, renamer);
  BatchFileNamer namer(context_, renamer.Folder(), base, randomCount);
  if (MentionsExifToken(base)) context_.tokens.ExpectExifValues(renamer.Folder(), files);
  for (size_t i = 0; i < files.size(); ++i) {
    ShowProgress(i, files.size());
    if (renamer.Sets().TravelsWithSelectedHead(files[i].raw)) continue;
    if (RenameOne(files[i], namer, renamer, lastNewName) == Step::Stop) return Ending::Stopped;
  }
  ShowProgress(files.size(), files.size());
  return Ending::Finished;
}

BatchRename::Step BatchRename::RenameOne(const platform::FileName& file, BatchFileNamer& namer,
                                         FileRenamer& renamer, QString* lastNewName) {
  const QString unexpanded = namer.Unexpanded(file);
  context_.view.SetNewNameText(unexpanded);
  context_.view.ProcessEvents();
  const QString newName = namer.Expand(file, unexpanded);
  if (newName == file.Display()) return Step::Next;
  const QByteArray target = platform::FileName::TextToName(newName);
  // A change of letter case alone is renamed without asking.
  const bool caseOnly = target.compare(file.raw, Qt::CaseInsensitive) == 0;
  const bool targetKnown = !caseOnly && renamer.Index().Contains(target);
  const OverwriteOutcome outcome = OverwritingRename(context_, renamer).Run(file, newName, targetKnown);
  return Settle(outcome, file, newName, namer, lastNewName);
}

BatchRename::Step BatchRename::Settle(const OverwriteOutcome& outcome, const platform::FileName& file,
                                      const QString& newName, BatchFileNamer& namer,
                                      QString* lastNewName) {
  switch (outcome.kind) {
    case OverwriteOutcome::Kind::Renamed:
      *lastNewName = newName;
      return Step::Next;
    case OverwriteOutcome::Kind::Declined:
      return Step::Next;
    case OverwriteOutcome::Kind::Cancelled:
      if (namer.SeriesTaken()) namer.StepBackSeries();
      return Step::Stop;
    case OverwriteOutcome::Kind::Failed:
      break;
  }
  if (!outcome.failureShown) {
    QString text = BatchRenameFailureText(outcome.error);
    if (outcome.targetDeleted) text += texts::kCr + texts::kTargetDeletedRenameFailed.arg(newName, file.Display());
    context_.messages.Notify(text, platform::MessageIcon::Critical);
  }
  return Step::Stop;
}

// The bar moves in whole percents; the view is told only when it moves.
void BatchRename::ShowProgress(size_t done, size_t total) {
  const int percent = total == 0 ? 100 : static_cast<int>(done * 100 / total);
  if (percent == shownPercent_) return;
  shownPercent_ = percent;
  context_.view.SetProgress(percent);
}

void BatchRename::Finish(Ending ending, const QString& lastNewName) {
  RenameView& view = context_.view;
  view.SetSelectionLabel(texts::kNoFileSelectedLabelAfterRename);
  view.ResetPreview(QString());
  view.SetNewNameText(QString());
  view.ShowProgress(false);
  view.RefreshFileList();
  view.LeaveBatchMode();
  if (ending == Ending::Finished && !lastNewName.isEmpty() && view.SelectFileNamed(lastNewName)) {
    if (context_.settings.autoPreview) {
      view.PreviewSelected();
    } else {
      view.ResetPreview(texts::kAutoPreviewDisabledAfterRename);
    }
  }
  if (context_.settings.autoResetSeries) {
    ViewSeriesBox box(view);
    SeriesCounter(box, context_.settings).ResetSeries();
  }
}

}  // namespace renvale::core

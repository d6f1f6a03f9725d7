#include "core/BatchRename.h"

#include <optional>

#include "core/BatchBaseCheck.h"
#include "core/CoreTexts.h"
#include "core/FileNameRules.h"
#include "core/RecordedOperation.h"
#include "core/RenameFailureTexts.h"
#include "core/SeriesCounter.h"
#include "core/ViewSeriesBox.h"
#include "platform/ErrorNumbers.h"

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

}  // namespace

BatchRename::BatchRename(const RenameContext& context) : context_(context) {}

void BatchRename::StartBatchRename(const BatchNaming* prepared) {
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
    ending = RenameAll(FileBase(base), prepared, &lastNewName);
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

bool BatchRename::StillValid(const BatchNaming& prepared, const QString& base,
                             const std::vector<platform::FileName>& files) const {
  if (prepared.folder != context_.session.CurrentFolder || prepared.base != base ||
      prepared.seriesAtStart != context_.view.SeriesText() || prepared.files.size() != files.size()) {
    return false;
  }
  for (size_t i = 0; i < files.size(); ++i) {
    if (prepared.files[i].file.raw != files[i].raw) return false;
  }
  return true;
}

BatchRename::Ending BatchRename::RenameAll(const QString& base, const BatchNaming* prepared,
                                           QString* lastNewName) {
  RenameView& view = context_.view;
  view.SetSelectionLabel(texts::kProcessingFiles);
  shownPercent_ = -1;
  view.ShowProgress(true);
  const std::vector<platform::FileName> files = view.SelectedFiles();
  // The folder is held for the whole batch: events that run meanwhile may
  // change the window's current folder, never the files being renamed.
  FileRenamer renamer(context_, context_.session.CurrentFolder, files);
  // Every name is worked out first, so that a file can wait for the file
  // that holds its new name; random numbers are drawn once, so a preview's
  // names are the names given.
  const BatchNaming naming = prepared != nullptr && StillValid(*prepared, base, files)
                                 ? *prepared
                                 : NameBatch(context_, renamer, files, base, view.RandomSeries(), false);
  aside_.clear();
  const std::vector<Turn> turns = Turns(naming, renamer);
  // The plan costs a look at every file, so it is made only where it is kept.
  std::optional<RecordedOperation> recorded;
  if (context_.recorder != nullptr) recorded.emplace(context_.recorder, Plan(turns, naming, renamer));
  if (recorded && recorded->Error() != 0) {
    context_.messages.Notify(texts::kPlanNotKept.arg(platform::ErrorDescription(recorded->Error())),
                             platform::MessageIcon::Critical);
    return Ending::Stopped;
  }
  for (size_t i = 0; i < turns.size(); ++i) {
    ShowProgress(i, turns.size());
    if (TakeTurn(turns[i], naming, renamer, lastNewName) == Step::Stop) {
      PutBackAside(renamer);
      return Ending::Stopped;
    }
  }
  ShowProgress(turns.size(), turns.size());
  for (const NamedFile& named : naming.files) {
    if (named.seriesTaken) {
      view.SetSeriesText(naming.seriesAtEnd);
      break;
    }
  }
  return Ending::Finished;
}

// Files keep list order, except that the files that get new names take
// their places among themselves in the order of the plan.
std::vector<BatchRename::Turn> BatchRename::Turns(const BatchNaming& naming, FileRenamer& renamer) const {
  std::vector<RenameMove> moves;
  std::vector<size_t> moveFile;
  for (size_t i = 0; i < naming.files.size(); ++i) {
    const NamedFile& named = naming.files[i];
    if (named.travels || named.newName == named.file.Display()) continue;
    const QByteArray target = platform::FileName::TextToName(named.newName);
    moves.push_back({{named.file.raw, target}, renamer.Sets().Companions(named.file.raw, target)});
    moveFile.push_back(i);
  }
  const RenamePlan plan =
      PlanRenames(moves, [&renamer](const QByteArray& name) { return renamer.Index().Contains(name); });
  std::vector<Turn> placed;
  std::vector<PlannedRename> asides;
  for (const PlannedRename& step : plan) {
    if (step.kind == PlannedRename::Kind::ToTemporary) {
      asides.push_back(step);
    } else {
      placed.push_back({moveFile[static_cast<size_t>(step.move)], std::exchange(asides, {})});
    }
  }
  std::vector<Turn> turns;
  turns.reserve(naming.files.size());
  size_t next = 0;
  for (size_t i = 0; i < naming.files.size(); ++i) {
    if (next < moveFile.size() && moveFile[next] == i) {
      turns.push_back(std::move(placed[next++]));
    } else {
      turns.push_back({i, {}});
    }
  }
  return turns;
}

// The renames in the order the turns take them, hidden names included, so
// that Undo and the recovery after a crash find each file where the batch
// left it. Identities are taken now, before any file has moved.
OperationPlan BatchRename::Plan(const std::vector<Turn>& turns, const BatchNaming& naming,
                                FileRenamer& renamer) const {
  const QByteArray& folder = renamer.Folder();
  OperationPlan plan{OperationKind::BatchRename, folder, QDateTime::currentDateTimeUtc(), {}};
  std::vector<PlanStep> hidden;  // the steps to hidden names so far
  for (const Turn& turn : turns) {
    const NamedFile& named = naming.files[turn.file];
    if (named.travels || named.newName == named.file.Display()) continue;
    for (const PlannedRename& aside : turn.asides) {
      const size_t first = plan.steps.size();
      renamer.DescribeRename(aside.head.from, aside.head.to, &plan);
      hidden.insert(hidden.end(), plan.steps.begin() + static_cast<std::ptrdiff_t>(first), plan.steps.end());
    }
    OperationPlan own;
    renamer.DescribeRename(named.file.raw, platform::FileName::TextToName(named.newName), &own);
    for (PlanStep& step : own.steps) {
      // A file that stepped aside leaves from its hidden name.
      for (const PlanStep& aside : hidden) {
        if (aside.from == step.from) step.from = aside.to;
      }
      plan.steps.push_back(std::move(step));
    }
  }
  return plan;
}

BatchRename::Step BatchRename::TakeTurn(const Turn& turn, const BatchNaming& naming, FileRenamer& renamer,
                                        QString* lastNewName) {
  const NamedFile& named = naming.files[turn.file];
  if (named.travels) return Step::Next;
  context_.view.SetNewNameText(named.unexpanded);
  context_.view.ProcessEvents();
  for (const QString& message : named.messages) context_.messages.Notify(message);
  if (named.seriesTaken) {
    context_.session.SeriesUsed = true;
    context_.view.SetSeriesText(named.seriesAfter);
  }
  if (named.newName == named.file.Display()) return Step::Next;
  for (const PlannedRename& aside : turn.asides) {
    if (StepAside(aside, renamer) == Step::Stop) return Step::Stop;
  }
  platform::FileName current = named.file;
  for (auto it = aside_.begin(); it != aside_.end(); ++it) {
    if (it->from == named.file.raw) {
      current = platform::FileName{it->to};
      aside_.erase(it);
      break;
    }
  }
  const QByteArray target = platform::FileName::TextToName(named.newName);
  // A change of letter case alone is renamed without asking.
  const bool caseOnly = target.compare(current.raw, Qt::CaseInsensitive) == 0;
  const bool targetKnown = !caseOnly && renamer.Index().Contains(target);
  const OverwriteOutcome outcome = OverwritingRename(context_, renamer).Run(current, named.newName, targetKnown);
  if (outcome.kind != OverwriteOutcome::Kind::Renamed && current.raw != named.file.raw) {
    PutBack({named.file.raw, current.raw}, renamer);
  }
  return Settle(outcome, named, lastNewName);
}

// A file that steps aside for a cycle is renamed as at its own turn would
// be, with its set; a failure ends the batch like any failed rename.
BatchRename::Step BatchRename::StepAside(const PlannedRename& aside, FileRenamer& renamer) {
  const QByteArray& folder = renamer.Folder();
  const int error = renamer.RenameFile(folder + aside.head.from, folder + aside.head.to);
  if (error == 0) {
    aside_.push_back(aside.head);
    return Step::Next;
  }
  if (!renamer.FailureShown()) {
    context_.messages.Notify(BatchRenameFailureText(error), platform::MessageIcon::Critical);
  }
  return Step::Stop;
}

// A file that stepped aside but was not renamed after all gets its old name
// back; where that is taken meanwhile it stays, complete, under the hidden one.
void BatchRename::PutBackAside(FileRenamer& renamer) {
  for (const NamePair& pair : aside_) PutBack(pair, renamer);
  aside_.clear();
}

void BatchRename::PutBack(const NamePair& aside, FileRenamer& renamer) {
  const QByteArray& folder = renamer.Folder();
  renamer.RenameFile(folder + aside.to, folder + aside.from);
}

BatchRename::Step BatchRename::Settle(const OverwriteOutcome& outcome, const NamedFile& named,
                                      QString* lastNewName) {
  const QString& newName = named.newName;
  switch (outcome.kind) {
    case OverwriteOutcome::Kind::Renamed:
      *lastNewName = newName;
      return Step::Next;
    case OverwriteOutcome::Kind::Declined:
      return Step::Next;
    case OverwriteOutcome::Kind::Cancelled:
      if (named.seriesTaken) {
        ViewSeriesBox box(context_.view);
        SeriesCounter(box, context_.settings).StepBackSeries();
      }
      return Step::Stop;
    case OverwriteOutcome::Kind::Failed:
      break;
  }
  if (!outcome.failureShown) {
    QString text = BatchRenameFailureText(outcome.error);
    if (outcome.targetDeleted) {
      text += texts::kCr + texts::kTargetDeletedRenameFailed.arg(newName, named.file.Display());
    }
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

#include "core/BatchRename.h"

#include <deque>
#include <iterator>
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
// Renames recorded in the journal's first piece: few enough that the batch
// starts renaming at once, enough that the pieces stay few.
constexpr size_t kFirstPiece = 256;
constexpr size_t kPieceGrowth = 4;
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

BatchRename::BatchRename(const RenameContext& context, RandomSeriesPool::RandomSource random)
    : context_(context), random_(std::move(random)) {}

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
  aside_.clear();
  done_ = 0;
  total_ = files.size();
  seriesTaken_ = false;
  // A preview's names are the names given, random numbers included.
  const bool usePrepared = prepared != nullptr && StillValid(*prepared, base, files);
  Ending ending;
  {
    std::optional<RecordedOperation> recorded;
    if (context_.recorder != nullptr) {
      recorded.emplace(context_.recorder, OperationPlan{OperationKind::BatchRename, renamer.Folder(),
                                                        QDateTime::currentDateTimeUtc(), {}});
    }
    RecordedOperation* record = recorded ? &*recorded : nullptr;
    ending = usePrepared ? RenamePlanned(*prepared, renamer, record, lastNewName)
                         : RenameAsNamed(files, base, renamer, record, lastNewName);
  }
  if (ending == Ending::Stopped) {
    PutBackAside(renamer);
    return ending;
  }
  ShowProgress(files.size(), files.size());
  if (seriesTaken_) view.SetSeriesText(usePrepared ? prepared->seriesAtEnd : finalSeries_);
  return ending;
}

// Each file is named shortly before its turn, so the files are read ahead
// while earlier ones are renamed. A file whose new name a selected file
// not renamed yet still holds waits, and so does any file that needs the
// name of a waiting one; the waiting files go last, in the planner's order.
//
// Where a journal keeps the plan, the files are named a piece ahead of
// their turns and each piece's renames are recorded before the first of
// them is taken: one flush per piece, pieces growing four times as long
// each time (four pieces for 20,000 files), and the reading of the next
// piece goes on during the renames of this one.
BatchRename::Ending BatchRename::RenameAsNamed(const std::vector<platform::FileName>& files, const QString& base,
                                               FileRenamer& renamer, RecordedOperation* recorded,
                                               QString* lastNewName) {
  BatchNames names(context_, renamer, files, base, context_.view.RandomSeries(), false, random_);
  FoldedNames held(files.size());
  for (const platform::FileName& file : files) held.insert(file.raw);
  BatchNaming waiting{renamer.Folder(), base, {}, {}, {}};
  std::vector<NamedFile> piece;  // named, waiting for its piece to be recorded
  std::deque<NamedFile> ready;   // recorded, waiting for its turn
  size_t next = 0;               // files named so far
  size_t pieceSize = recorded != nullptr ? kFirstPiece : 1;
  const auto nameNext = [&] {
    NamedFile named = names.Next(files[next++]);
    // A file that goes with its picture holds its name for good: it moves
    // when its picture does, which may be among the waiting files.
    if (!named.travels) {
      if (const auto own = held.find(named.file.raw); own != held.end()) held.erase(own);
      if (MustWait(named, held, renamer)) {
        held.insert(named.file.raw);
        waiting.files.push_back(std::move(named));
        return;
      }
    }
    piece.push_back(std::move(named));
  };
  while (next < files.size() || !piece.empty() || !ready.empty()) {
    if (ready.empty()) {
      while (piece.size() < pieceSize && next < files.size()) nameNext();
      if (recorded != nullptr && Record(DescribePiece(piece, renamer), *recorded) == Step::Stop) return Ending::Stopped;
      ready.insert(ready.end(), std::make_move_iterator(piece.begin()), std::make_move_iterator(piece.end()));
      piece.clear();
      if (recorded != nullptr) pieceSize *= kPieceGrowth;
      continue;
    }
    if (TakeTurn({}, ready.front(), renamer, lastNewName) == Step::Stop) return Ending::Stopped;
    ready.pop_front();
    // The next piece is named by the time this one is renamed.
    for (size_t i = 0; recorded != nullptr && i < kPieceGrowth && piece.size() < pieceSize && next < files.size();
         ++i) {
      nameNext();
    }
  }
  finalSeries_ = names.SeriesText();
  return RenamePlanned(waiting, renamer, recorded, lastNewName);
}

// The renames of files that take their turns in list order, with no
// hidden names.
std::vector<PlanStep> BatchRename::DescribePiece(const std::vector<NamedFile>& piece, FileRenamer& renamer) const {
  OperationPlan plan;
  for (const NamedFile& named : piece) {
    if (named.travels || named.newName == named.file.Display()) continue;
    renamer.DescribeRename(named.file.raw, platform::FileName::TextToName(named.newName), &plan);
  }
  return std::move(plan.steps);
}

// A plan that cannot be kept stops the batch before any of its steps.
BatchRename::Step BatchRename::Record(const std::vector<PlanStep>& steps, RecordedOperation& recorded) {
  if (recorded.Add(steps) == 0) return Step::Next;
  context_.messages.Notify(texts::kPlanNotKept.arg(platform::ErrorDescription(recorded.Error())),
                           platform::MessageIcon::Critical);
  return Step::Stop;
}

bool BatchRename::MustWait(const NamedFile& named, const FoldedNames& held, const FileRenamer& renamer) const {
  if (named.newName == named.file.Display()) return false;
  const QByteArray target = platform::FileName::TextToName(named.newName);
  if (held.count(target) != 0) return true;
  for (const NamePair& companion : renamer.Sets().Companions(named.file.raw, target)) {
    if (held.count(companion.to) != 0) return true;
  }
  return false;
}


// Files keep list order, except that the files that get new names take
// their places among themselves in the order of the plan.
std::vector<PlannedTurn> BatchRename::Turns(const BatchNaming& naming, FileRenamer& renamer) const {
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
  return TurnsInListOrder(naming.files.size(), moveFile, plan);
}

// Where a journal keeps the plan, these renames are added to it before
// the first of them is taken.
BatchRename::Ending BatchRename::RenamePlanned(const BatchNaming& naming, FileRenamer& renamer,
                                               RecordedOperation* recorded, QString* lastNewName) {
  const std::vector<PlannedTurn> turns = Turns(naming, renamer);
  if (recorded != nullptr && Record(Plan(turns, naming, renamer).steps, *recorded) == Step::Stop) {
    return Ending::Stopped;
  }
  for (const PlannedTurn& turn : turns) {
    if (TakeTurn(turn.asides, naming.files[turn.file], renamer, lastNewName) == Step::Stop) return Ending::Stopped;
  }
  return Ending::Finished;
}

// The renames in the order the turns take them, hidden names included, so
// that Undo and the recovery after a crash find each file where the batch
// left it. Identities are taken now, before any file has moved.
OperationPlan BatchRename::Plan(const std::vector<PlannedTurn>& turns, const BatchNaming& naming,
                                FileRenamer& renamer) const {
  const QByteArray& folder = renamer.Folder();
  OperationPlan plan{OperationKind::BatchRename, folder, QDateTime::currentDateTimeUtc(), {}};
  std::vector<PlanStep> hidden;  // the steps to hidden names so far
  for (const PlannedTurn& turn : turns) {
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

BatchRename::Step BatchRename::TakeTurn(const std::vector<PlannedRename>& asides, const NamedFile& named,
                                        FileRenamer& renamer, QString* lastNewName) {
  ShowProgress(done_++, total_);
  if (named.travels) return Step::Next;
  context_.view.SetNewNameText(named.unexpanded);
  context_.view.ProcessEvents();
  for (const QString& message : named.messages) context_.messages.Notify(message);
  if (named.seriesTaken) {
    seriesTaken_ = true;
    context_.session.SeriesUsed = true;
    context_.view.SetSeriesText(named.seriesAfter);
  }
  if (named.newName == named.file.Display()) return Step::Next;
  for (const PlannedRename& aside : asides) {
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

#include "core/BatchRename.h"

#include <algorithm>
#include <chrono>
#include <optional>

#include "core/BatchBaseCheck.h"
#include "core/CoreTexts.h"
#include "core/FileNameRules.h"
#include "core/PieceRecorder.h"
#include "core/RecordedOperation.h"
#include "core/RenameFailureTexts.h"
#include "core/SeriesCounter.h"
#include "core/ViewSeriesBox.h"
#include "platform/ErrorNumbers.h"

namespace renvale::core {

namespace {

constexpr int kBatchTip = 15;
// The least a piece of the journal's plan holds (but the last): few enough
// that the batch starts renaming at once, enough that the pieces stay few.
constexpr size_t kFirstPiece = 256;
// Files named after each rename from values already read: more than the
// reading gives meanwhile, so the naming keeps up with it.
constexpr size_t kNamedPerTurn = 4;
// How far the naming may run ahead of the renames. A batch's three lists of
// named files are made this long at its start and never grow: lists that
// grew with the pieces would take fresh memory, page by page, for each
// larger piece.
constexpr size_t kMostAhead = 1024;
// Told when the person stops at a duplicate-name warning: the moment they
// look for a way to make every name unique.
constexpr int kUniqueNamesTip = 21;
// How old a file's identity, taken when its values were read, may be for
// the plan: the files are not asked again. A file changed after the read
// would be passed over by the recovery and by Undo, never lost; and a
// naming older than this (a preview window left open) is asked afresh.
constexpr std::chrono::seconds kReadIdentitiesKept{10};

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

// Most batches give names that no file of the folder has, in any letter
// case: then no file waits for another and the planner has nothing to
// order. Only an index that holds every file to be renamed can tell.
std::vector<QByteArray> RawNames(const std::vector<platform::FileName>& files) {
  std::vector<QByteArray> names;
  names.reserve(files.size());
  for (const platform::FileName& file : files) names.push_back(file.raw);
  return names;
}

bool NoneWaits(const BatchNaming& naming, const FileRenamer& renamer) {
  const FolderIndex& index = renamer.Index();
  for (const NamedFile& named : naming.files) {
    if (named.travels || named.sameName) continue;
    if (!index.Contains(named.file.raw) || !index.Spellings(named.target).isEmpty()) return false;
    for (const NamePair& companion : renamer.Sets().Companions(named.file.raw, named.target)) {
      if (!index.Contains(companion.from) || !index.Spellings(companion.to).isEmpty()) return false;
    }
  }
  return true;
}

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

// Names the files of a batch in list order and sorts out the ones that must
// wait: a file whose new name a selected file not named yet still holds
// waits, and so does any file that needs the name of a waiting one.
class BatchRename::Naming {
 public:
  Naming(const RenameContext& context, FileRenamer& renamer, const std::vector<platform::FileName>& files,
         const QString& base, RandomSeriesPool::RandomSource& random)
      : renamer_(renamer),
        files_(files),
        names_(context, renamer, files, base, context.view.RandomSeries(), false, random),
        held_(RawNames(files)),
        waiting_{renamer.Folder(), base, {}, {}, {}} {}

  bool More() const { return next_ < files_.size(); }
  // The next file can be named without waiting for its values.
  bool AtHand() const { return More() && names_.AtHand(files_[next_]); }

  // Names the next file; it joins `piece` unless it must wait.
  void Next(std::vector<NamedFile>* piece) {
    NamedFile named = names_.Next(files_[next_++]);
    // A file that goes with its picture holds its name for good: it moves
    // when its picture does, which may be among the waiting files.
    if (!named.travels) {
      held_.Remove(named.file.raw);
      if (MustWait(named)) {
        held_.Add(named.file.raw);
        waiting_.files.push_back(std::move(named));
        return;
      }
    }
    piece->push_back(std::move(named));
  }

  BatchNaming& Waiting() { return waiting_; }
  QString SeriesText() const { return names_.SeriesText(); }

 private:
  bool MustWait(const NamedFile& named) const {
    if (named.sameName) return false;
    if (!held_.Spellings(named.target).isEmpty()) return true;
    for (const NamePair& companion : renamer_.Sets().Companions(named.file.raw, named.target)) {
      if (!held_.Spellings(companion.to).isEmpty()) return true;
    }
    return false;
  }

  const FileRenamer& renamer_;
  const std::vector<platform::FileName>& files_;
  BatchNames names_;
  // The names still held by files of the batch: a flat table, because
  // every file asks it and most answers are no.
  FolderIndex held_;
  BatchNaming waiting_;
  size_t next_ = 0;
};

// Each file is named shortly before its turn, so the files are read ahead
// while earlier ones are renamed; the waiting files go last, in the
// planner's order.
BatchRename::Ending BatchRename::RenameAsNamed(const std::vector<platform::FileName>& files, const QString& base,
                                               FileRenamer& renamer, RecordedOperation* recorded,
                                               QString* lastNewName) {
  Naming naming(context_, renamer, files, base, random_);
  const Ending ending = recorded != nullptr ? RenameRecorded(naming, renamer, *recorded, lastNewName)
                                            : RenameUnrecorded(naming, renamer, lastNewName);
  if (ending == Ending::Stopped) return ending;
  finalSeries_ = naming.SeriesText();
  return RenamePlanned(naming.Waiting(), renamer, recorded, lastNewName);
}

BatchRename::Ending BatchRename::RenameUnrecorded(Naming& naming, FileRenamer& renamer, QString* lastNewName) {
  std::vector<NamedFile> named;
  while (naming.More()) {
    naming.Next(&named);
    if (!named.empty() && TakeTurn({}, named.front(), renamer, lastNewName) == Step::Stop) return Ending::Stopped;
    named.clear();
  }
  return Ending::Finished;
}

// Where a journal keeps the plan, the files are named ahead of their turns
// and each piece's renames are recorded before the first of them is
// taken: one flush per piece, never one per file. While one piece goes to
// the disk the one before it is renamed and the next one is named from
// the values already read, so that neither the renames wait for the flush
// nor the naming for the reading, as long as either can be helped.
BatchRename::Ending BatchRename::RenameRecorded(Naming& naming, FileRenamer& renamer, RecordedOperation& recorded,
                                                QString* lastNewName) {
  PieceRecorder pieces(recorded);
  // The three lists trade places instead of moving their files from one to
  // the next: a piece is handed over only when none is in flight, and one
  // becomes ready only when every ready file has had its turn.
  std::vector<NamedFile> piece;   // named, not handed over yet
  std::vector<NamedFile> flying;  // handed over, not durable yet
  std::vector<NamedFile> ready;   // durable; those from `turn` on wait for their turns
  size_t turn = 0;
  for (std::vector<NamedFile>* list : {&piece, &flying, &ready}) list->reserve(std::min(kMostAhead, total_));
  const auto handOver = [&] {
    pieces.Submit(DescribePiece(piece, renamer));
    flying.swap(piece);
  };
  for (;;) {
    if (turn < ready.size()) {
      if (TakeTurn({}, ready[turn++], renamer, lastNewName) == Step::Stop) return Ending::Stopped;
      for (size_t i = 0; i < kNamedPerTurn && piece.size() < kMostAhead && naming.AtHand(); ++i) naming.Next(&piece);
      if (!pieces.InFlight() && piece.size() >= kFirstPiece) handOver();
      continue;
    }
    if (pieces.InFlight()) {
      while (!pieces.Settled() && piece.size() < kMostAhead && naming.More()) naming.Next(&piece);
      if (pieces.Wait() != 0) return NotKept(recorded);
      ready.clear();
      ready.swap(flying);
      turn = 0;
      continue;
    }
    while (piece.size() < kFirstPiece && naming.More()) naming.Next(&piece);
    if (piece.empty()) return Ending::Finished;
    handOver();
  }
}

// The renames of files that take their turns in list order, with no
// hidden names.
std::vector<PlanStep> BatchRename::DescribePiece(const std::vector<NamedFile>& piece, FileRenamer& renamer) const {
  OperationPlan plan;
  plan.steps.reserve(piece.size());
  for (const NamedFile& named : piece) {
    if (named.travels || named.sameName) continue;
    renamer.DescribeRename(named.file.raw, named.target, &plan, named.identityRead ? &named.identity : nullptr);
  }
  return std::move(plan.steps);
}

// A plan that cannot be kept stops the batch before any of its steps; the
// files of the pieces kept before it may have been renamed already.
BatchRename::Ending BatchRename::NotKept(const RecordedOperation& recorded) {
  const QString& text = done_ == 0 ? texts::kPlanNotKept : texts::kPlanRestNotKept;
  context_.messages.Notify(text.arg(platform::ErrorDescription(recorded.Error())), platform::MessageIcon::Critical);
  return Ending::Stopped;
}


// Files keep list order, except that the files that get new names take
// their places among themselves in the order of the plan.
std::vector<PlannedTurn> BatchRename::Turns(const BatchNaming& naming, FileRenamer& renamer) const {
  if (NoneWaits(naming, renamer)) {
    std::vector<PlannedTurn> turns(naming.files.size());
    for (size_t i = 0; i < turns.size(); ++i) turns[i].file = i;
    return turns;
  }
  std::vector<RenameMove> moves;
  std::vector<size_t> moveFile;
  for (size_t i = 0; i < naming.files.size(); ++i) {
    const NamedFile& named = naming.files[i];
    if (named.travels || named.sameName) continue;
    moves.push_back({{named.file.raw, named.target}, renamer.Sets().Companions(named.file.raw, named.target)});
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
  if (recorded != nullptr && recorded->Add(Plan(turns, naming, renamer).steps) != 0) return NotKept(*recorded);
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
  plan.steps.reserve(turns.size());
  const bool readRecently = std::chrono::steady_clock::now() - naming.namedFrom < kReadIdentitiesKept;
  std::vector<PlanStep> hidden;  // the steps to hidden names so far
  for (const PlannedTurn& turn : turns) {
    const NamedFile& named = naming.files[turn.file];
    if (named.travels || named.sameName) continue;
    for (const PlannedRename& aside : turn.asides) {
      const size_t first = plan.steps.size();
      renamer.DescribeRename(aside.head.from, aside.head.to, &plan);
      hidden.insert(hidden.end(), plan.steps.begin() + static_cast<std::ptrdiff_t>(first), plan.steps.end());
    }
    OperationPlan own;
    renamer.DescribeRename(named.file.raw, named.target, &own,
                           readRecently && named.identityRead ? &named.identity : nullptr);
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
  if (named.sameName) {
    if (observer_) observer_(named, false);
    return Step::Next;
  }
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
  // A change of letter case alone is renamed without asking.
  const bool caseOnly = named.target.compare(current.raw, Qt::CaseInsensitive) == 0;
  const bool targetKnown = !caseOnly && renamer.Index().Contains(named.target);
  const OverwriteOutcome outcome = OverwritingRename(context_, renamer).Run(current, named.newName, named.target, targetKnown);
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
  const bool renamed = outcome.kind == OverwriteOutcome::Kind::Renamed;
  if (observer_ && (renamed || outcome.kind == OverwriteOutcome::Kind::Declined)) observer_(named, renamed);
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

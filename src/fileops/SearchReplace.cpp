#include "fileops/SearchReplace.h"

#include <QSet>
#include <QStringList>
#include <algorithm>

#include "core/CoreTexts.h"
#include "core/PieceRecorder.h"
#include "core/PlanIdentity.h"
#include "core/RecordedOperation.h"
#include "fileops/FileopsTexts.h"
#include "platform/ErrorNumbers.h"
#include "platform/FileNumbers.h"

namespace renvale::fileops {

namespace {

using platform::MessageAnswer;
using platform::MessageButtons;
using platform::MessageIcon;

constexpr QChar kQuote = u'"';
constexpr size_t kRunEnd = SIZE_MAX;  // the place of a line that ends the run

// Keeps the file list from taking clicks while the run lets window events
// through, and lets go on every way out.
class BusyScope {
 public:
  explicit BusyScope(core::RenameSession& session) : session_(session) { session_.Busy = true; }
  ~BusyScope() { session_.Busy = false; }
  BusyScope(const BusyScope&) = delete;
  BusyScope& operator=(const BusyScope&) = delete;

 private:
  core::RenameSession& session_;
};

class RunningScope {
 public:
  explicit RunningScope(SearchReplaceView& view) : view_(view) { view_.SetRunning(true); }
  ~RunningScope() { view_.SetRunning(false); }
  RunningScope(const RunningScope&) = delete;
  RunningScope& operator=(const RunningScope&) = delete;

 private:
  SearchReplaceView& view_;
};

QString Display(const QByteArray& name) { return platform::FileName{name}.Display(); }

// A line per renamed file: an ASCII name, the usual kind, goes in without a
// string of its own.
void AppendDisplay(QString& text, const QByteArray& name) {
  if (std::all_of(name.begin(), name.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; })) {
    text += QLatin1StringView(name);
  } else {
    text += Display(name);
  }
}

void AppendRenamedLine(QString& text, const QByteArray& from, const QByteArray& to) {
  text += texts::kLf;
  text += kQuote;
  AppendDisplay(text, from);
  text += kQuote;
  text += texts::kWasRenamedTo;
  text += kQuote;
  AppendDisplay(text, to);
  text += kQuote;
}

// Equal once both are lowered: such a rename cannot reach another file on
// the file systems the product was made for, so nothing is looked up first.
bool DiffersInCaseOnly(const QByteArray& a, const QByteArray& b) {
  return Display(a).compare(Display(b), Qt::CaseInsensitive) == 0;
}

QString NotRenamedLine(const platform::FileName& file, const QByteArray& newName, const QString& because) {
  return texts::kNotRenamedPrefix + file.Display() + texts::kNotRenamedMiddle + Display(newName) + because;
}

QString RenameErrorText(int error) {
  QString text;
  if (error == platform::kAccessViolation) {
    text = texts::kRenameError70;
  } else if (error == platform::kPathFileAccess) {
    text = texts::kRenameError75;
  } else {
    text = texts::kRenameErrorOtherPrefix + QString::number(error) + texts::kRenameErrorOtherSuffix;
  }
  for (const QString& line : texts::kRenameErrorLines) text += texts::kCr + line;
  return text;
}

QString OverwriteFailureText(int error) {
  const QString reason = error == platform::kPathFileAccess
                             ? texts::kReadOnlyOrProtected
                             : texts::kErrorNumberPrefix + QString::number(error);
  return QStringList{texts::kCouldNotOverwrite, reason, texts::kContinueOrCancel}.join(texts::kCr);
}

// Most runs give names that nothing in the folder holds in any letter case:
// then no file waits for another, the turns need no plan, and planning
// would only say so at the cost of a few hash tables. A selected
// name the folder no longer holds may still be another file's target, so
// it is planned too.
bool NeedsPlanning(const std::vector<core::RenameMove>& moves, const core::FolderIndex& index) {
  for (const core::RenameMove& move : moves) {
    if (!index.Contains(move.head.from) || !index.Spellings(move.head.to).isEmpty()) return true;
    for (const core::NamePair& companion : move.companions) {
      if (!index.Spellings(companion.to).isEmpty()) return true;
    }
  }
  return false;
}

// Whether the renames give the same outcome in any order: no file waits for
// another's name (NeedsPlanning says so), none takes companions along, and
// no two take one name in any letter case.
bool OrderFree(const std::vector<core::RenameMove>& moves) {
  core::FolderIndex targets;
  for (const core::RenameMove& move : moves) {
    if (!move.companions.empty() || !targets.Spellings(move.head.to).isEmpty()) return false;
    targets.Add(move.head.to);
  }
  return true;
}

// Each file's turn in the order the folder lists the names; a file the
// folder no longer holds goes first. Renames in that order cost the file
// system less: on ext4, which lists a large folder in the order of its name
// index, 10,000 took 155 ms against 174 ms in the order of their names.
std::vector<core::PlannedTurn> TurnsInFolderOrder(const std::vector<platform::FileName>& files,
                                                  const core::FolderIndex& index) {
  std::vector<core::PlannedTurn> turns;
  turns.reserve(files.size());
  std::vector<size_t> atPlace;  // the file at each place of the folder, or kNoFile
  constexpr size_t kNoFile = SIZE_MAX;
  for (size_t i = 0; i < files.size(); ++i) {
    const qsizetype place = index.Position(files[i].raw);
    if (place < 0) {
      turns.push_back({i, {}});
      continue;
    }
    if (static_cast<size_t>(place) >= atPlace.size()) atPlace.resize(static_cast<size_t>(place) + 1, kNoFile);
    atPlace[static_cast<size_t>(place)] = i;
  }
  for (size_t file : atPlace) {
    if (file != kNoFile) turns.push_back({file, {}});
  }
  return turns;
}

// A piece's renames as a plan lists them, each with its file's identity
// now; it runs on the thread that writes the piece.
std::vector<core::PlanStep> PieceSteps(platform::ReadableFolder& held, const QByteArray& folder, bool inodeStable,
                                       const std::vector<const core::RenameMove*>& piece) {
  std::vector<core::PlanStep> steps;
  steps.reserve(piece.size());
  const auto add = [&](const core::NamePair& pair) {
    const core::FileIdentity identity = core::IdentityOf(held, pair.from, inodeStable);
    steps.push_back({core::StepKind::Rename, folder + pair.from, folder + pair.to, identity});
  };
  for (const core::RenameMove* move : piece) {
    add(move->head);
    for (const core::NamePair& companion : move->companions) add(companion);
  }
  return steps;
}

}  // namespace

SearchReplace::SearchReplace(const core::RenameContext& context, SearchReplaceView& view)
    : context_(context), view_(view) {}

bool SearchReplace::SelectionAllowsSearch(const core::RenameContext& context) {
  if (!context.view.SelectedFiles().empty()) return true;
  context.messages.Notify(texts::kSelectFilesToSearch);
  return false;
}

void SearchReplace::Execute(const SearchTerms& terms) {
  if (context_.session.Busy) return;
  if (!terms.AnyFilled()) {
    context_.messages.Notify(texts::kFillInSearchTerm);
    return;
  }
  results_.clear();
  lines_.clear();
  reordered_ = false;
  anyRenamed_ = false;
  folderChanged_ = false;
  {
    BusyScope busy(context_.session);
    RunningScope running(view_);
    RunOver(terms);
    view_.ProcessEvents();
  }
  Finish();
}

void SearchReplace::RunOver(const SearchTerms& terms) {
  const std::vector<platform::FileName> files = context_.view.SelectedFiles();
  maximum_ = std::max(1, static_cast<int>(files.size()));
  progress_ = 0;
  view_.SetProgressMaximum(maximum_);
  view_.SetProgress(progress_);
  // The folder is held for the whole run: events that run meanwhile may
  // change the window's folder, never the files being renamed.
  const QByteArray folder = context_.session.CurrentFolder;
  // The journal readies its file while the moves are worked out. The
  // pieces take identities through `held`: they are made after it and go
  // before it.
  core::RecordedOperation recorded(context_.recorder,
                                   {core::OperationKind::SearchReplace, folder, QDateTime::currentDateTimeUtc(), {}});
  const std::unique_ptr<platform::ReadableFolder> held = context_.fs.HoldFolder(folder);
  core::PieceRecorder pieces(recorded);
  pieces.Prepare();
  core::FileRenamer renamer(context_, folder, files);
  std::vector<QByteArray> newNames;
  newNames.reserve(files.size());
  for (const platform::FileName& file : files) newNames.push_back(terms.Apply(file.raw));
  aside_.clear();
  const Moves moves = FindMoves(files, newNames, renamer);
  const bool inListOrder = !NeedsPlanning(moves.moves, renamer.Index());
  reordered_ = inListOrder && moves.moves.size() > 1 && OrderFree(moves.moves);
  std::vector<core::PlannedTurn> turns;
  if (reordered_) {
    turns = TurnsInFolderOrder(files, renamer.Index());
  } else {
    turns = inListOrder ? core::TurnsInListOrder(files.size(), {}, {}) : PlannedTurns(files.size(), moves, renamer);
  }
  const Run run{files, newNames, turns, renamer};
  if (context_.recorder != nullptr && inListOrder) {
    RunInPieces(run, moves, *held, pieces);
    // A piece a stopped run left in flight reads the moves, which go first.
    pieces.Wait();
    return;
  }
  if (context_.recorder != nullptr) {
    pieces.Submit(Plan(turns, files, newNames, renamer).steps);
    PredictResults(moves, renamer);
    if (!PlanKept(pieces.Wait())) return;
  } else {
    PredictResults(moves, renamer);
  }
  TakeTurns(run, 0, turns.size());
}

// Where no file waits for another (the turns are the list's order or the
// folder's) the plan is kept a piece of turns at a time,
// each piece durable before its first rename and written while the pieces
// before it are renamed: the flushes and the identities then cost the run
// next to nothing. That is safe because in such a run no rename puts a file
// at a name another step leaves from (no new name is held by any file of
// the folder, in any letter case): the file found at a step's source,
// however late its identity is taken, is the file that step moves.
// A piece is handed over as soon as the one before it is durable, not when
// the renames reach it, so the writing keeps ahead; pieces double, so a
// long run flushes a dozen times at most, and the first is short, so that
// renaming starts soon.
void SearchReplace::RunInPieces(const Run& run, const Moves& moves, platform::ReadableFolder& held,
                                core::PieceRecorder& pieces) {
  constexpr size_t kFirstPiece = 128;
  const bool inodeStable = platform::FileNumbersStable(run.renamer.Folder());
  const size_t count = run.turns.size();
  size_t handed = 0;   // turns whose piece was handed over
  size_t durable = 0;  // turns whose piece is durable
  size_t length = kFirstPiece / 2;
  std::vector<const core::RenameMove*> moveOf(run.files.size(), nullptr);  // each file's move, if any
  for (size_t m = 0; m < moves.moves.size(); ++m) moveOf[moves.file[m]] = &moves.moves[m];
  const auto handOver = [&] {
    length *= 2;
    const size_t end = std::min(handed + length, count);
    std::vector<const core::RenameMove*> piece;
    for (size_t t = handed; t < end; ++t) {
      const core::RenameMove* move = moveOf[run.turns[t].file];
      if (move != nullptr && !run.renamer.Sets().TravelsWithSelectedHead(move->head.from)) piece.push_back(move);
    }
    pieces.Submit([&held, folder = run.renamer.Folder(), inodeStable, piece = std::move(piece)] {
      return PieceSteps(held, folder, inodeStable, piece);
    });
    handed = end;
  };
  if (count > 0) handOver();
  PredictResults(moves, run.renamer);  // while the first piece is made durable
  int refused = 0;  // why the piece after the durable ones could not be kept
  for (size_t t = 0; t < count; ++t) {
    if (refused == 0 && pieces.InFlight() && (t == durable || pieces.Settled())) {
      refused = pieces.Wait();
      if (refused == 0) durable = handed;
      if (refused == 0 && handed < count) handOver();
    }
    // The files of the pieces kept are renamed before a refusal stops the run.
    if (t == durable) {
      PlanKept(refused);
      return;
    }
    if (TakeTurns(run, t, t + 1) == Step::Stop) return;
  }
}

SearchReplace::Step SearchReplace::TakeTurns(const Run& run, size_t begin, size_t end) {
  for (size_t t = begin; t < end; ++t) {
    const core::PlannedTurn& turn = run.turns[t];
    turnFile_ = turn.file;
    if (TakeTurn(turn, run.files[turn.file], run.newNames[turn.file], run.renamer) == Step::Stop) {
      PutBackAside(run.renamer);
      return Step::Stop;
    }
    if (progress_ < maximum_) view_.SetProgress(++progress_);
    view_.ProcessEvents();
  }
  return Step::Next;
}

// The results as they are when every file is renamed, handed to the view
// before the first rename so that it lays them out while the renames wait
// on the disk; most runs end that way. A file that travels with a selected
// picture has no line of its own.
void SearchReplace::PredictResults(const Moves& moves, const core::FileRenamer& renamer) {
  QString predicted;
  for (const core::RenameMove& move : moves.moves) {
    if (!renamer.Sets().TravelsWithSelectedHead(move.head.from)) {
      AppendRenamedLine(predicted, move.head.from, move.head.to);
    }
  }
  if (!predicted.isEmpty()) view_.ResultsReady(predicted);
}

// A piece that cannot be kept stops the run before any of its files; the
// pieces kept before it may have been renamed, and the results say where
// the run stopped.
bool SearchReplace::PlanKept(int error) {
  if (error == platform::kNoError) return true;
  const QString& text = folderChanged_ ? core::texts::kPlanRestNotKept : core::texts::kPlanNotKept;
  context_.messages.Notify(text.arg(platform::ErrorDescription(error)), MessageIcon::Critical);
  if (folderChanged_) AddLine(texts::kRunCancelled);
  return false;
}

// The renames in the order the turns take them, hidden names included, so
// that Undo and the recovery after a crash find each file where the run
// left it. Identities are taken now, before any file has moved.
core::OperationPlan SearchReplace::Plan(const std::vector<core::PlannedTurn>& turns,
                                        const std::vector<platform::FileName>& files,
                                        const std::vector<QByteArray>& newNames, core::FileRenamer& renamer) const {
  core::OperationPlan plan{core::OperationKind::SearchReplace, renamer.Folder(), QDateTime::currentDateTimeUtc(),
                           {}};
  plan.steps.reserve(files.size());
  std::vector<core::PlanStep> hidden;
  core::OperationPlan own;
  for (const core::PlannedTurn& turn : turns) {
    const platform::FileName& file = files[turn.file];
    if (newNames[turn.file] == file.raw || renamer.Sets().TravelsWithSelectedHead(file.raw)) continue;
    for (const core::PlannedRename& aside : turn.asides) {
      const size_t first = plan.steps.size();
      renamer.DescribeRename(aside.head.from, aside.head.to, &plan);
      hidden.insert(hidden.end(), plan.steps.begin() + static_cast<std::ptrdiff_t>(first), plan.steps.end());
    }
    own.steps.clear();
    renamer.DescribeRename(file.raw, newNames[turn.file], &own);
    for (core::PlanStep& step : own.steps) {
      // A file that stepped aside leaves from its hidden name.
      for (const core::PlanStep& aside : hidden) {
        if (aside.from == step.from) step.from = aside.to;
      }
      plan.steps.push_back(std::move(step));
    }
  }
  return plan;
}

SearchReplace::Moves SearchReplace::FindMoves(const std::vector<platform::FileName>& files,
                                              const std::vector<QByteArray>& newNames,
                                              const core::FileRenamer& renamer) const {
  Moves found;
  found.moves.reserve(files.size());
  found.file.reserve(files.size());
  for (size_t i = 0; i < files.size(); ++i) {
    if (newNames[i] == files[i].raw) continue;
    found.moves.push_back({{files[i].raw, newNames[i]}, renamer.Sets().Companions(files[i].raw, newNames[i])});
    found.file.push_back(i);
  }
  return found;
}

// Names that another file of the run leaves are taken after it has left
// them, through a hidden name where names form a cycle: no question, no loss.
// A file that moves with a renamed picture keeps its turn and finds itself gone.
std::vector<core::PlannedTurn> SearchReplace::PlannedTurns(size_t fileCount, const Moves& moves,
                                                           const core::FileRenamer& renamer) const {
  QSet<QByteArray> companions;
  for (const core::RenameMove& move : moves.moves) {
    for (const core::NamePair& pair : move.companions) companions.insert(pair.from);
  }
  std::vector<core::RenameMove> planned;
  std::vector<size_t> plannedFile;
  for (size_t m = 0; m < moves.moves.size(); ++m) {
    if (companions.contains(moves.moves[m].head.from)) continue;
    planned.push_back(moves.moves[m]);
    plannedFile.push_back(moves.file[m]);
  }
  const core::RenamePlan plan =
      core::PlanRenames(planned, [&renamer](const QByteArray& name) { return renamer.Index().Contains(name); });
  return core::TurnsInListOrder(fileCount, plannedFile, plan);
}

SearchReplace::Step SearchReplace::TakeTurn(const core::PlannedTurn& turn, const platform::FileName& file,
                                            const QByteArray& newName, core::FileRenamer& renamer) {
  for (const core::PlannedRename& aside : turn.asides) {
    const int error = renamer.RenameInFolder(aside.head.from, aside.head.to);
    if (error != platform::kNoError) return Failed(error, renamer.FailureShown());
    aside_.push_back(aside.head);
  }
  QByteArray from = file.raw;
  for (auto it = aside_.begin(); it != aside_.end(); ++it) {
    if (it->from == file.raw) {
      from = it->to;
      aside_.erase(it);
      break;
    }
  }
  const Step step = ProcessFile(file, from, newName, renamer);
  if (from != file.raw && renamer.Index().Contains(from)) PutBack({file.raw, from}, renamer);
  return step;
}

void SearchReplace::PutBackAside(core::FileRenamer& renamer) {
  for (const core::NamePair& pair : aside_) PutBack(pair, renamer);
  aside_.clear();
}

// A file that stepped aside but was not renamed after all gets its old name
// back; where that is taken meanwhile it stays, complete, under the hidden one.
void SearchReplace::PutBack(const core::NamePair& aside, core::FileRenamer& renamer) {
  renamer.RenameInFolder(aside.to, aside.from);
}

// `from` is the file's present name: its own, or the hidden one it stepped
// aside to.
SearchReplace::Step SearchReplace::ProcessFile(const platform::FileName& file, const QByteArray& from,
                                               const QByteArray& newName, core::FileRenamer& renamer) {
  // Gone already: it went along with its picture, or it was the file
  // replaced for another one.
  if (!renamer.Index().Contains(from)) return Step::Next;
  if (newName == file.raw) return Step::Next;
  // The index answers first: most new names are free, and the case test
  // would decode both names for every file.
  if (renamer.Index().Contains(newName) && !DiffersInCaseOnly(from, newName)) {
    return AskAboutClash(file, from, newName, renamer);
  }
  return Rename(file, from, newName, renamer, true);
}

// `mayAsk`: a target the no-replace rename finds (a distinct file whose name
// differs only in letter case, or one made meanwhile) is asked about like
// one found beforehand; after the user's Yes it is not asked again.
SearchReplace::Step SearchReplace::Rename(const platform::FileName& file, const QByteArray& from,
                                          const QByteArray& newName, core::FileRenamer& renamer, bool mayAsk) {
  const int error = renamer.RenameInFolder(from, newName);
  if (error == platform::kNoError) {
    anyRenamed_ = true;
    folderChanged_ = true;
    MarkLine(turnFile_);
    AppendRenamedLine(results_, file.raw, newName);
    return Step::Next;
  }
  if (error == platform::kFileAlreadyExists && mayAsk && !renamer.FailureShown()) {
    return AskAboutClash(file, from, newName, renamer);
  }
  return Failed(error, renamer.FailureShown());
}

SearchReplace::Step SearchReplace::AskAboutClash(const platform::FileName& file, const QByteArray& from,
                                                 const QByteArray& newName, core::FileRenamer& renamer) {
  const QString question = texts::kClashPrefix + Display(newName) + texts::kClashSuffix + texts::kCr +
                           texts::kClashWarning;
  view_.ShowProgressNow();
  const MessageAnswer answer =
      context_.messages.AskBeforeLoss(question, MessageButtons::YesNoCancel, MessageIcon::Warning);
  if (answer == MessageAnswer::Yes) return ReplaceTarget(file, from, newName, renamer);
  if (answer == MessageAnswer::No) {
    AddFileLine(NotRenamedLine(file, newName, texts::kBecauseExisted));
    return Step::Next;
  }
  if (context_.messages.Ask(texts::kCancelQuestion, MessageButtons::YesNo, MessageIcon::Question) ==
      MessageAnswer::Yes) {
    return Cancel();
  }
  return Step::Next;
}

SearchReplace::Step SearchReplace::ReplaceTarget(const platform::FileName& file, const QByteArray& from,
                                                 const QByteArray& newName, core::FileRenamer& renamer) {
  // Where letter case is folded "Photo.jpg" is the very file "photo.jpg":
  // deleting the target would delete the file being renamed.
  if (DiffersInCaseOnly(from, newName) && !renamer.HasSeparateEntries(from, newName)) {
    return Failed(platform::kFileAlreadyExists, false);
  }
  // A set whose companions could not follow is left whole; the renamer has
  // said why.
  if (renamer.CheckCompanionTargets(from, newName) != platform::kNoError) {
    AddFileLine(NotRenamedLine(file, newName, texts::kBecauseNotOverwritten));
    return Step::Next;
  }
  const int error = context_.fs.RemoveFile(renamer.Folder() + newName);
  if (error != platform::kNoError) return NotOverwritten(file, newName, error);
  renamer.Forget(newName);
  folderChanged_ = true;
  return Rename(file, from, newName, renamer, false);
}

SearchReplace::Step SearchReplace::NotOverwritten(const platform::FileName& file, const QByteArray& newName,
                                                  int error) {
  view_.ShowProgressNow();
  if (context_.messages.Ask(OverwriteFailureText(error), MessageButtons::OkCancel, MessageIcon::Warning) !=
      MessageAnswer::Ok) {
    return Cancel();
  }
  AddFileLine(NotRenamedLine(file, newName, texts::kBecauseNotOverwritten));
  return Step::Next;
}

SearchReplace::Step SearchReplace::Failed(int error, bool failureShown) {
  view_.ShowProgressNow();
  if (!failureShown) context_.messages.Notify(RenameErrorText(error), MessageIcon::Critical);
  AddLine(texts::kRunCancelledNotWritable);
  return Step::Stop;
}

SearchReplace::Step SearchReplace::Cancel() {
  AddLine(texts::kRunCancelled);
  return Step::Stop;
}

void SearchReplace::AddLine(const QString& line) {
  MarkLine(kRunEnd);
  results_ += texts::kLf + line;
}

void SearchReplace::AddFileLine(const QString& line) {
  MarkLine(turnFile_);
  results_ += texts::kLf + line;
}

void SearchReplace::MarkLine(size_t file) {
  if (reordered_) lines_.push_back({file, results_.size(), 0});
}

// A run in the folder's order wrote each line as its file came; they are
// put in the list's order, and a line that ended the run stays last.
void SearchReplace::PutLinesInListOrder() {
  for (size_t k = 0; k < lines_.size(); ++k) {
    lines_[k].end = k + 1 < lines_.size() ? lines_[k + 1].begin : results_.size();
  }
  std::stable_sort(lines_.begin(), lines_.end(), [](const Line& a, const Line& b) { return a.file < b.file; });
  QString ordered;
  ordered.reserve(results_.size());
  for (const Line& line : lines_) ordered += QStringView(results_).sliced(line.begin, line.end - line.begin);
  results_ = std::move(ordered);
}

void SearchReplace::Finish() {
  if (reordered_) PutLinesInListOrder();
  if (anyRenamed_) view_.ResultsReady(results_);
  context_.messages.Notify(anyRenamed_ ? texts::kRenamingComplete
                                       : texts::kNothingMatched + texts::kLf + texts::kCheckTerms);
  // The list is read again also when only a replaced file went away.
  if (folderChanged_) {
    core::RenameView& main = context_.view;
    main.ResetPreview(QString());
    main.RefreshFileList();
    main.LeaveBatchMode();
    main.SetSelectionLabel(texts::kNoFileSelectedCaption);
    context_.session.SelectedFileName = platform::FileName{};
  }
  if (anyRenamed_) view_.ShowResults(results_);
}

}  // namespace renvale::fileops

#include "fileops/SearchReplace.h"

#include <QStringList>
#include <algorithm>

#include "core/CoreTexts.h"
#include "core/RecordedOperation.h"
#include "fileops/FileopsTexts.h"
#include "platform/ErrorNumbers.h"

namespace renvale::fileops {

namespace {

using platform::MessageAnswer;
using platform::MessageButtons;
using platform::MessageIcon;

const QString kQuote = QStringLiteral("\"");

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
  const int maximum = std::max(1, static_cast<int>(files.size()));
  int progress = 0;
  view_.SetProgressMaximum(maximum);
  view_.SetProgress(progress);
  // The folder is held for the whole run: events that run meanwhile may
  // change the window's folder, never the files being renamed.
  core::FileRenamer renamer(context_, context_.session.CurrentFolder, files);
  const core::RecordedOperation recorded(context_.recorder, Plan(files, terms, renamer));
  if (recorded.Error() != platform::kNoError) {
    context_.messages.Notify(core::texts::kPlanNotKept.arg(platform::ErrorDescription(recorded.Error())),
                             MessageIcon::Critical);
    return;
  }
  for (const platform::FileName& file : files) {
    if (ProcessFile(file, terms, renamer) == Step::Stop) return;
    if (progress < maximum) view_.SetProgress(++progress);
    view_.ProcessEvents();
  }
}

core::OperationPlan SearchReplace::Plan(const std::vector<platform::FileName>& files, const SearchTerms& terms,
                                        core::FileRenamer& renamer) const {
  core::OperationPlan plan{core::OperationKind::SearchReplace, renamer.Folder(), QDateTime::currentDateTimeUtc(),
                           {}};
  for (const platform::FileName& file : files) {
    if (renamer.Sets().TravelsWithSelectedHead(file.raw)) continue;
    const QByteArray newName = terms.Apply(file.raw);
    if (newName != file.raw) renamer.DescribeRename(file.raw, newName, &plan);
  }
  return plan;
}

SearchReplace::Step SearchReplace::ProcessFile(const platform::FileName& file, const SearchTerms& terms,
                                               core::FileRenamer& renamer) {
  // Gone already: it went along with its picture, or it was the file
  // replaced for another one.
  if (!renamer.Index().Contains(file.raw)) return Step::Next;
  const QByteArray newName = terms.Apply(file.raw);
  if (newName == file.raw) return Step::Next;
  if (!DiffersInCaseOnly(file.raw, newName) && renamer.Index().Contains(newName)) {
    return AskAboutClash(file, newName, renamer);
  }
  return Rename(file, newName, renamer, true);
}

// `mayAsk`: a target the no-replace rename finds (a distinct file whose name
// differs only in letter case, or one made meanwhile) is asked about like
// one found beforehand; after the user's Yes it is not asked again.
SearchReplace::Step SearchReplace::Rename(const platform::FileName& file, const QByteArray& newName,
                                          core::FileRenamer& renamer, bool mayAsk) {
  const QByteArray& folder = renamer.Folder();
  const int error = renamer.RenameFile(folder + file.raw, folder + newName);
  if (error == platform::kNoError) {
    anyRenamed_ = true;
    folderChanged_ = true;
    AddLine(kQuote + file.Display() + kQuote + texts::kWasRenamedTo + kQuote + Display(newName) + kQuote);
    return Step::Next;
  }
  if (error == platform::kFileAlreadyExists && mayAsk && !renamer.FailureShown()) {
    return AskAboutClash(file, newName, renamer);
  }
  return Failed(error, renamer.FailureShown());
}

SearchReplace::Step SearchReplace::AskAboutClash(const platform::FileName& file, const QByteArray& newName,
                                                 core::FileRenamer& renamer) {
  const QString question = texts::kClashPrefix + Display(newName) + texts::kClashSuffix + texts::kCr +
                           texts::kClashWarning;
  const MessageAnswer answer =
      context_.messages.AskBeforeLoss(question, MessageButtons::YesNoCancel, MessageIcon::Warning);
  if (answer == MessageAnswer::Yes) return ReplaceTarget(file, newName, renamer);
  if (answer == MessageAnswer::No) {
    AddLine(NotRenamedLine(file, newName, texts::kBecauseExisted));
    return Step::Next;
  }
  if (context_.messages.Ask(texts::kCancelQuestion, MessageButtons::YesNo, MessageIcon::Question) ==
      MessageAnswer::Yes) {
    return Cancel();
  }
  return Step::Next;
}

SearchReplace::Step SearchReplace::ReplaceTarget(const platform::FileName& file, const QByteArray& newName,
                                                 core::FileRenamer& renamer) {
  // Where letter case is folded "Photo.jpg" is the very file "photo.jpg":
  // deleting the target would delete the file being renamed.
  if (DiffersInCaseOnly(file.raw, newName) && !renamer.HasSeparateEntries(file.raw, newName)) {
    return Failed(platform::kFileAlreadyExists, false);
  }
  // A set whose companions could not follow is left whole; the renamer has
  // said why.
  if (renamer.CheckCompanionTargets(file.raw, newName) != platform::kNoError) {
    AddLine(NotRenamedLine(file, newName, texts::kBecauseNotOverwritten));
    return Step::Next;
  }
  const int error = context_.fs.RemoveFile(renamer.Folder() + newName);
  if (error != platform::kNoError) return NotOverwritten(file, newName, error);
  renamer.Forget(newName);
  folderChanged_ = true;
  return Rename(file, newName, renamer, false);
}

SearchReplace::Step SearchReplace::NotOverwritten(const platform::FileName& file, const QByteArray& newName,
                                                  int error) {
  if (context_.messages.Ask(OverwriteFailureText(error), MessageButtons::OkCancel, MessageIcon::Warning) !=
      MessageAnswer::Ok) {
    return Cancel();
  }
  AddLine(NotRenamedLine(file, newName, texts::kBecauseNotOverwritten));
  return Step::Next;
}

SearchReplace::Step SearchReplace::Failed(int error, bool failureShown) {
  if (!failureShown) context_.messages.Notify(RenameErrorText(error), MessageIcon::Critical);
  AddLine(texts::kRunCancelledNotWritable);
  return Step::Stop;
}

SearchReplace::Step SearchReplace::Cancel() {
  AddLine(texts::kRunCancelled);
  return Step::Stop;
}

void SearchReplace::AddLine(const QString& line) { results_ += texts::kLf + line; }

void SearchReplace::Finish() {
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

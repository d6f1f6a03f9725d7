#include "cli/BatchCommand.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <iterator>
#include <memory>
#include <random>
#include <unordered_set>

#include "cli/CliTexts.h"
#include "cli/PlainReport.h"
#include "core/AsciiFoldedName.h"
#include "core/BatchBaseCheck.h"
#include "core/BatchRename.h"
#include "core/CoreTexts.h"
#include "core/FileSetFinder.h"
#include "core/FileSelection.h"
#include "core/SeriesCounter.h"
#include "core/TokenExpansion.h"
#include "core/ViewSeriesBox.h"
#include "fileops/FileopsTexts.h"
#include "fileops/OperationHistory.h"
#include "fileops/PlanReplay.h"
#include "fileops/SearchReplace.h"
#include "fileops/SilentSearchReplaceView.h"
#include "fileops/SearchTerms.h"

namespace renvale::cli {

namespace {

// From this many files of one folder on, reading the whole folder once is
// quicker than looking at each file.
constexpr int kListFrom = 32;

// How many characters of a dry run's lines are put together before they
// go out: as many as the stream holds before it writes.
constexpr qsizetype kPlainLinesAtOnce = 16384;

bool SameFile(const platform::FileInfo& a, const platform::FileInfo& b) {
  return a.device == b.device && a.inode == b.inode;
}

// A note saying the file would not get its name because the name is taken.
bool IsClashNote(const QString& note) {
  static const QString sameName = core::texts::kNoteSameNewName.section(QLatin1Char('%'), 0, 0);
  return note == core::texts::kNoteExistingFile || note.startsWith(sameName);
}

core::RandomSeriesPool::RandomSource SeededSource(quint32 seed) {
  auto engine = std::make_shared<std::mt19937>(seed);
  return [engine] { return std::generate_canonical<double, 53>(*engine); };
}

std::vector<OutputRow> Joined(std::vector<std::vector<OutputRow>> groups) {
  if (groups.size() == 1) return std::move(groups.front());
  std::vector<OutputRow> rows;
  for (std::vector<OutputRow>& group : groups) std::move(group.begin(), group.end(), std::back_inserter(rows));
  return rows;
}

QByteArray Stem(const QByteArray& journalPath) {
  QByteArray name = journalPath.mid(journalPath.lastIndexOf('/') + 1);
  return name.left(name.indexOf('.'));
}

}  // namespace

BatchCommand::BatchCommand(const BatchServices& services, QTextStream& out, QTextStream& err)
    : services_(services), out_(out), err_(err), tokens_(services.fs, port_, services.settings) {}

int BatchCommand::Run(const BatchArguments& args) {
  if (!args.error.isEmpty()) return Fail(args.error);
  switch (args.action) {
    case Action::Help:
      out_ << texts::kHelp;
      return kEveryFileNamed;
    case Action::Name: {
      GroupFiles(args.files);
      ReadAhead(args);
      MakeRoom();
      const int status = AllThere(true) ? RunName(args) : kFailed;
      // The process ends right after: no file may still be being read then.
      tokens_.StopReadingAhead();
      return status;
    }
    case Action::Replace:
      MakeRoom();
      GroupFiles(args.files);
      return AllThere(false) ? RunReplace(args) : kFailed;
    case Action::History:
      return RunHistory(args);
    case Action::Undo:
      return RunUndo(args);
    case Action::None:
      break;
  }
  return Fail(texts::kNoAction);
}

void BatchCommand::MakeRoom() {
  if (services_.makeRoom) services_.makeRoom();
}

int BatchCommand::Fail(const QString& line) {
  FlushMessages();
  err_ << texts::kErrorPrefix << line << '\n';
  return kFailed;
}

// The files of each folder, in the order given.
void BatchCommand::GroupFiles(const std::vector<QByteArray>& files) {
  size_t at = 0;  // the group of the file before, which the next file mostly shares
  for (const QByteArray& given : files) {
    Place place = PlaceOf(given);
    if (groups_.empty() || groups_[at].folder != place.folder) {
      auto group = std::find_if(groups_.begin(), groups_.end(), [&](const Group& g) { return g.folder == place.folder; });
      if (group == groups_.end()) {
        group = groups_.insert(groups_.end(), Group{place.folder, {}, {}, {}, false});
        // A card's files mostly share the first file's folder.
        if (groups_.size() == 1) {
          group->files.reserve(files.size());
          group->given.reserve(files.size());
        }
      }
      at = static_cast<size_t>(group - groups_.begin());
    }
    groups_[at].files.push_back(platform::FileName{std::move(place.name)});
    groups_[at].given.push_back(given);
  }
}

// Every file must be there before anything is renamed: a typing mistake in
// the tenth name must not leave nine files renamed. A card's worth of files
// from one folder is checked against one reading of the folder, not a look
// at each file; a name missing from it is looked at on its own, for the
// exact reason (or because it appeared since).
//
// One folder's listing that holds every file goes on to the batch's own
// index of the folder: nothing is renamed before the batch reads it.
bool BatchCommand::AllThere(bool keepListing) {
  for (Group& group : groups_) {
    std::vector<QByteArray> names;
    group.listed = group.files.size() >= kListFrom && services_.fs.ListFiles(group.folder, &names) == 0;
    const bool keep = keepListing && group.listed && groups_.size() == 1;
    core::FolderIndex listing(names, keep ? core::FileSetFinder::CompanionSuffixes() : std::vector<QByteArray>{});
    bool allListed = group.listed;
    for (size_t i = 0; i < group.files.size(); ++i) {
      const Place place{group.folder, group.files[i].raw};
      if (group.listed && listing.Contains(place.name)) continue;
      allListed = false;
      if (!Found(group.given[i], place)) return false;
    }
    if (keep && allListed) listing_ = std::move(listing);
  }
  return true;
}

// A bare name, as a card's files are mostly given, lies in the current folder
// and is its own name: it needs no path made for it.
BatchCommand::Place BatchCommand::PlaceOf(const QByteArray& given) const {
  if (!given.contains('/')) return {services_.currentDirectory, given};
  const QByteArray path = given.startsWith('/') ? given : services_.currentDirectory + given;
  const qsizetype slash = path.lastIndexOf('/');
  return {path.left(slash + 1), path.mid(slash + 1)};
}

bool BatchCommand::Found(const QByteArray& given, const Place& place) {
  platform::FileInfo info;
  if (services_.fs.Stat(place.folder + place.name, &info) != 0) {
    Fail(texts::kMissingFile.arg(platform::FileName::NameToText(given)));
    return false;
  }
  if (info.isDir) {
    Fail(texts::kNotAFile.arg(platform::FileName::NameToText(given)));
    return false;
  }
  return true;
}

core::RenameContext BatchCommand::Context(core::RenameSession& session, core::RenameView& view) {
  return core::RenameContext{session, services_.settings, view, port_, services_.fs, tokens_, services_.journal};
}

// As the window's selection of the group's files, the first one current.
void BatchCommand::Select(core::RenameSession& session, const Group& group) {
  session.CurrentFolder = group.folder;
  // Kept by AllThere for the one folder of the run.
  session.FreshListing = std::move(listing_);
  listing_.reset();
  core::ApplySelection(session, static_cast<int>(group.files.size()), &group.files.front(), services_.settings);
  session.BatchMode = true;
}

// ---- --name ----------------------------------------------------------------

// The series box as the window shows it: the number in the digits of the
// "Placeholders" setting.
QString BatchCommand::SeriesBox(qint64 number) {
  HeadlessRenameView view({}, {}, QString::number(number));
  core::ViewSeriesBox box(view);
  core::SeriesCounter(box, services_.settings).ReformatSeriesBox();
  return view.SeriesText();
}

// Works out every group's names before any file is touched; the series runs
// on from one folder to the next. A random series shuffles each folder's
// own numbers, so that every number is still handed out once; one source
// draws for all folders, so one seed repeats the whole run.
bool BatchCommand::PreviewAll(const BatchArguments& args, std::vector<std::unique_ptr<GroupRun>>* runs) {
  const QString& base = args.name;
  qint64 number = args.series.value_or(1);
  QString series = SeriesBox(number);
  const core::RandomSeriesPool::RandomSource random =
      args.seed ? SeededSource(*args.seed) : core::RandomSeriesPool::TimeSeededSource();
  for (Group& group : groups_) {
    auto run = std::make_unique<GroupRun>(group, base, series, args.randomSeries);
    Select(run->session, group);
    run->preview = core::PreviewBatch(Context(run->session, run->view), random);
    if (args.randomSeries) {
      const auto& named = run->preview.naming.files;
      number += std::count_if(named.begin(), named.end(), [](const core::NamedFile& f) { return f.seriesTaken; });
      series = SeriesBox(number);
    } else {
      series = run->preview.naming.seriesAtEnd;
    }
    runs->push_back(std::move(run));
  }
  return true;
}

// The preview's rows are handed over: the batch itself works from the
// preview's naming, never from its rows.
std::vector<OutputRow> BatchCommand::TakeRows(GroupRun& run) const {
  std::vector<OutputRow> rows;
  rows.reserve(run.preview.rows.size());
  for (size_t i = 0; i < run.preview.rows.size(); ++i) {
    core::PreviewRow& shown = run.preview.rows[i];
    rows.push_back(OutputRow{run.group.given[i], std::move(shown.current), std::move(shown.newName),
                             std::move(shown.dateSource), std::move(shown.notes), OutputRow::Status::Planned});
  }
  return rows;
}

int BatchCommand::RunName(const BatchArguments& args) {
  if (!BasesUsable(args.name)) return kFailed;
  if (NamesAsItGoes(args)) return RenameAsNamed(args);
  std::vector<std::unique_ptr<GroupRun>>& runs = runs_;
  if (!PreviewAll(args, &runs)) return kFailed;
  std::vector<std::vector<OutputRow>> planned;
  planned.reserve(runs.size());
  for (const auto& run : runs) planned.push_back(TakeRows(*run));
  if (args.dryRun) {
    for (const auto& run : runs) {
      for (const QString& warning : run->preview.warnings) {
        port_.lines << texts::kWarningPrefix + HeadlessMessagePort::OneLine(warning);
      }
    }
    return Report(Joined(std::move(planned)), true, args.json);
  }
  if (args.failOnClash) {
    for (const std::vector<OutputRow>& rows : planned) {
      if (ClashFound(rows)) return kSomeSkipped;
    }
  }
  for (size_t g = 0; g < runs.size(); ++g) {
    GroupRun& run = *runs[g];
    Remember(run.group, planned[g]);
    core::BatchRename(Context(run.session, run.view)).StartBatchRename(&run.preview.naming);
    Settle(run.group, &planned[g]);
    if (port_.failed) {  // the batch stopped at a failure; so does the run
      planned.resize(g + 1);
      break;
    }
  }
  return Report(Joined(std::move(planned)), false, args.json);
}

// A plain run needs no name before the file's turn: each file is named just
// before it, as in the window, so that the files are read while earlier
// ones are renamed. Besides the runs that name every file first, a file
// that travels with another needs its head's name beforehand.
bool BatchCommand::NamesAsItGoes(const BatchArguments& args) const {
  if (NamesEveryFileFirst(args)) return false;
  return std::none_of(groups_.begin(), groups_.end(), [](const Group& group) {
    return std::any_of(group.files.begin(), group.files.end(),
                       [](const platform::FileName& file) { return core::FileSetFinder::MayTravel(file.raw); });
  });
}

// The first folder's files are read from the start, while the files are
// looked for and the batch gets ready; the batch or the preview then takes
// the values from that reading. Worked out first, every name comes with
// its date's source, which is read even where the name has no date.
void BatchCommand::ReadAhead(const BatchArguments& args) {
  if (NamesAsItGoes(args) && !core::MentionsExifToken(args.name)) return;
  tokens_.ExpectExifValues(groups_.front().folder, groups_.front().files, services_.journal != nullptr);
}

// The series runs on from one folder to the next, as in the preview. The
// files are told of folder by folder, as they end.
int BatchCommand::RenameAsNamed(const BatchArguments& args) {
  qint64 number = args.series.value_or(1);
  QString series = SeriesBox(number);
  const core::RandomSeriesPool::RandomSource random =
      args.seed ? SeededSource(*args.seed) : core::RandomSeriesPool::TimeSeededSource();
  bool everyFileNamed = true;
  for (Group& group : groups_) {
    runs_.push_back(std::make_unique<GroupRun>(group, args.name, series, args.randomSeries));
    qint64 taken = 0;
    QString after = series;
    PlainReport report(out_, port_.lines, group.given);
    if (!port_.failed) RenameGroup(*runs_.back(), random, &report, &taken, &after);
    number += taken;
    series = args.randomSeries ? SeriesBox(number) : after;
    everyFileNamed = report.Finish() && everyFileNamed;
  }
  FlushMessages();
  if (port_.failed) return kFailed;
  return everyFileNamed ? kEveryFileNamed : kSomeSkipped;
}

// Every folder's base is checked before the first file is renamed: a base
// one folder cannot take must not leave the folders before it renamed.
bool BatchCommand::BasesUsable(const QString& base) {
  for (const Group& group : groups_) {
    const QString& first = group.files.front().Display();
    const core::BatchBaseVerdict verdict = core::CheckBatchBase(base, first, services_.settings.exifTime);
    if (!verdict.Stops()) continue;
    // The window's words point at its Help button; the one way to meet
    // them here is a name that is the first file's own.
    const bool ownName = base.compare(first, Qt::CaseInsensitive) == 0;
    Fail(ownName ? texts::kNameIsFirstFile.arg(base) : HeadlessMessagePort::OneLine(verdict.text));
    return false;
  }
  return true;
}

// A plain run's report names each file as it was given; its old name is
// not worked out.
void BatchCommand::RenameGroup(GroupRun& run, const core::RandomSeriesPool::RandomSource& random,
                               PlainReport* report, qint64* seriesTaken, QString* seriesAfter) {
  const Group& group = run.group;
  // Files end in list order, except those that waited for a name to be
  // left: only then is a file's place looked up.
  size_t next = 0;
  QHash<QByteArray, size_t> placeOf;
  const auto placeFor = [&](const QByteArray& raw) {
    if (next >= group.files.size() || group.files[next].raw != raw) {
      if (placeOf.isEmpty()) {
        for (size_t i = group.files.size(); i-- > 0;) placeOf.insert(group.files[i].raw, i);
      }
      next = placeOf.value(raw);
    }
    return next++;
  };
  Select(run.session, group);
  const core::RenameContext context = Context(run.session, run.view);
  core::BatchRename batch(context, random);
  batch.ObserveTurns([&](const core::NamedFile& named, bool renamed) {
    const OutputRow::Status status = renamed          ? OutputRow::Status::Renamed
                                     : named.sameName ? OutputRow::Status::Unchanged
                                                      : OutputRow::Status::Skipped;
    report->Ended(placeFor(named.file.raw), status, named.newName);
    if (named.seriesTaken) {
      ++*seriesTaken;
      *seriesAfter = named.seriesAfter;
    }
  });
  batch.StartBatchRename();
}

// ---- --replace -------------------------------------------------------------

std::vector<OutputRow> BatchCommand::ReplaceRows(const Group& group, const std::vector<QByteArray>& newNames) {
  std::vector<OutputRow> rows;
  for (size_t i = 0; i < group.files.size(); ++i) {
    const platform::FileName& file = group.files[i];
    OutputRow row{group.given[i], file.Display(), platform::FileName::NameToText(newNames[i]), {}, {},
                  OutputRow::Status::Planned};
    if (newNames[i] == file.raw) {
      row.notes << core::texts::kNoteUnchanged;
    } else if (newNames[i].compare(file.raw, Qt::CaseInsensitive) != 0 &&
               services_.fs.Exists(group.folder + newNames[i]) &&
               std::find_if(group.files.begin(), group.files.end(), [&](const platform::FileName& other) {
                 return other.raw == newNames[i];
               }) == group.files.end()) {
      row.notes << core::texts::kNoteExistingFile;
    }
    rows.push_back(std::move(row));
  }
  return rows;
}

int BatchCommand::RunReplace(const BatchArguments& args) {
  fileops::SearchTerms terms;
  for (size_t i = 0; i < args.replacements.size(); ++i) {
    terms.Set(static_cast<int>(i), args.replacements[i].first, args.replacements[i].second);
  }
  std::vector<OutputRow> rows;
  std::vector<std::vector<OutputRow>> planned;
  for (const Group& group : groups_) {
    std::vector<QByteArray> newNames;
    for (const platform::FileName& file : group.files) newNames.push_back(terms.Apply(file.raw));
    planned.push_back(ReplaceRows(group, newNames));
    rows.insert(rows.end(), planned.back().begin(), planned.back().end());
  }
  if (args.dryRun) return Report(rows, true, args.json);
  if (args.failOnClash && ClashFound(rows)) return kSomeSkipped;
  rows.clear();
  for (size_t g = 0; g < groups_.size(); ++g) {
    const Group& group = groups_[g];
    core::RenameSession session;
    HeadlessRenameView view({}, group.files, {});
    Select(session, group);
    Remember(groups_[g], planned[g]);
    fileops::SilentSearchReplaceView quiet;
    fileops::SearchReplace(Context(session, view), quiet).Execute(terms);
    // The dialog's closing notice; here each file's line says it.
    for (const QString& notice : {fileops::texts::kRenamingComplete,
                                  fileops::texts::kNothingMatched + fileops::texts::kLf + fileops::texts::kCheckTerms}) {
      port_.lines.removeAll(texts::kErrorPrefix + HeadlessMessagePort::OneLine(notice));
    }
    Settle(group, &planned[g]);
    rows.insert(rows.end(), planned[g].begin(), planned[g].end());
    if (port_.failed) break;
  }
  return Report(rows, false, args.json);
}

// ---- outcome ---------------------------------------------------------------

// Whether a file got its name is read from the disk afterwards. Mostly the
// names tell: its new name is there and its old one gone. Where the old
// name is one another file of the batch takes (a chain or a swap), or a
// few files sit in a large folder, the file itself is looked at now and
// known again by its identity.
void BatchCommand::Remember(Group& group, const std::vector<OutputRow>& rows) {
  group.before.assign(group.files.size(), std::nullopt);
  std::unordered_set<QByteArray, core::AsciiFoldedName, core::AsciiFoldedName> taken;
  taken.reserve(rows.size());
  for (const OutputRow& row : rows) taken.insert(platform::FileName::TextToName(row.newName));
  for (size_t i = 0; i < rows.size(); ++i) {
    if (group.listed && !taken.contains(group.files[i].raw)) continue;
    platform::FileInfo info;
    if (services_.fs.Stat(group.folder + group.files[i].raw, &info) == 0) group.before[i] = info;
  }
}

void BatchCommand::Settle(const Group& group, std::vector<OutputRow>* rows) {
  QSet<QByteArray> present;
  if (group.listed) {
    std::vector<QByteArray> names;
    services_.fs.ListFiles(group.folder, &names);
    present = QSet<QByteArray>(names.begin(), names.end());
  }
  for (size_t i = 0; i < rows->size(); ++i) {
    OutputRow& row = (*rows)[i];
    if (row.newName == row.oldName) {
      row.status = OutputRow::Status::Unchanged;
      continue;
    }
    const QByteArray newName = platform::FileName::TextToName(row.newName);
    bool renamed = false;
    if (group.before[i]) {
      platform::FileInfo now;
      renamed = services_.fs.Stat(group.folder + newName, &now) == 0 && SameFile(now, *group.before[i]);
    } else {
      renamed = present.contains(newName) && !present.contains(group.files[i].raw);
    }
    row.status = renamed ? OutputRow::Status::Renamed : OutputRow::Status::Skipped;
  }
}

bool BatchCommand::ClashFound(const std::vector<OutputRow>& rows) {
  for (const OutputRow& row : rows) {
    for (const QString& note : row.notes) {
      if (IsClashNote(note)) {
        FlushMessages();
        err_ << texts::kErrorPrefix
             << texts::kClashNothingRenamed.arg(platform::FileName::NameToText(row.given), row.newName) << '\n';
        return true;
      }
    }
  }
  return false;
}

int BatchCommand::Report(const std::vector<OutputRow>& rows, bool dryRun, bool json) {
  bool skipped = false;
  // A dry run's lines go out many at a time: a card's worth of lines
  // written one by one cost a string and a trip through the stream each.
  QString lines;
  for (const OutputRow& row : rows) {
    if (json) out_ << JsonLine(row) << '\n';
    if (dryRun) {
      if (!json) AppendPlainLine(row, &lines);
      if (lines.size() >= kPlainLinesAtOnce) {
        out_ << lines;
        lines.resize(0);  // keeps its room for the next lines
      }
      skipped = skipped || std::any_of(row.notes.begin(), row.notes.end(), IsClashNote);
    } else {
      const bool named = PlainReport::TellOne(json ? nullptr : &out_, port_.lines, row.given, row.status, row.newName);
      skipped = skipped || !named;
    }
  }
  out_ << lines;
  FlushMessages();
  if (port_.failed) return kFailed;
  return skipped ? kSomeSkipped : kEveryFileNamed;
}

// Each line once: every folder's batch asks the same base-name questions.
void BatchCommand::FlushMessages() {
  for (const QString& line : std::as_const(port_.lines)) {
    if (shownLines_.contains(line)) continue;
    shownLines_ << line;
    err_ << line << '\n';
  }
  port_.lines.clear();
  for (const QString& notice : std::as_const(port_.notices)) out_ << notice << '\n';
  port_.notices.clear();
  out_.flush();
  err_.flush();
}

// ---- --history and --undo --------------------------------------------------

int BatchCommand::RunHistory(const BatchArguments& args) {
  if (services_.journal == nullptr) return kEveryFileNamed;
  for (const fileops::JournalEntry& entry : services_.journal->Entries()) {
    const QString id = QString::fromLatin1(Stem(entry.path));
    const QString what = fileops::OperationHistory::Describe(entry.plan);
    const QString folder = platform::FileName::NameToText(entry.plan.folder);
    const bool undone = entry.state == fileops::JournalEntry::State::Undone;
    if (args.json) {
      const QJsonObject object{{QStringLiteral("id"), id},
                               {QStringLiteral("when"), entry.plan.started.toString(Qt::ISODate)},
                               {QStringLiteral("what"), what},
                               {QStringLiteral("folder"), folder},
                               {QStringLiteral("undone"), undone}};
      out_ << QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)) << '\n';
    } else {
      const QString when = entry.plan.started.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
      out_ << id << "  " << when << "  " << what << "  " << folder << (undone ? texts::kUndoneMark : QString())
           << '\n';
    }
  }
  FlushMessages();
  return kEveryFileNamed;
}

int BatchCommand::RunUndo(const BatchArguments& args) {
  if (services_.journal == nullptr) return Fail(texts::kNoHistory);
  if (args.undoId.isEmpty()) {
    fileops::OperationHistory history(*services_.journal, services_.fs, port_);
    if (!history.UndoNewest()) return Fail(texts::kNoHistory);
  } else {
    std::vector<fileops::JournalEntry> entries = services_.journal->Entries();
    auto entry = std::find_if(entries.begin(), entries.end(), [&](const fileops::JournalEntry& e) {
      return QString::fromLatin1(Stem(e.path)) == args.undoId;
    });
    if (entry == entries.end()) return Fail(texts::kUnknownId.arg(args.undoId));
    if (entry->state == fileops::JournalEntry::State::Undone) return Fail(texts::kAlreadyUndone.arg(args.undoId));
    const fileops::ReplayResult result = fileops::PlanReplay(services_.fs, port_).Undo(entry->plan);
    services_.journal->Mark(*entry, fileops::JournalEntry::State::Undone);
    port_.notices << fileops::texts::kUndoDone.arg(fileops::OperationHistory::Describe(entry->plan))
                         .arg(result.carriedOut);
    for (const QString& line : result.passedOver) port_.lines << texts::kErrorPrefix + line;
  }
  const bool passedOver = !port_.lines.isEmpty();
  FlushMessages();
  if (port_.failed) return kFailed;
  return passedOver ? kSomeSkipped : kEveryFileNamed;
}

}  // namespace renvale::cli

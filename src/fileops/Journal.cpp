#include "fileops/Journal.h"

#include <algorithm>
#include <cerrno>

#include "fileops/FileopsTexts.h"
#include "fileops/JournalFormat.h"
#include "platform/ErrorNumbers.h"

namespace renvale::fileops {

namespace {

using State = JournalEntry::State;

constexpr qint64 kMaxJournalBytes = 256 << 20;
const QByteArray kTemporarySuffix = QByteArrayLiteral(".tmp");
const QByteArray kDamaged = QByteArrayLiteral("damaged/");

QByteArray Suffix(State state) {
  switch (state) {
    case State::Open:
      return QByteArrayLiteral(".open");
    case State::Done:
      return QByteArrayLiteral(".done");
    case State::Undone:
      return QByteArrayLiteral(".undone");
  }
  return {};
}

bool StateOfName(const QByteArray& name, State* state) {
  for (const State candidate : {State::Open, State::Done, State::Undone}) {
    if (name.endsWith(Suffix(candidate))) {
      *state = candidate;
      return true;
    }
  }
  return false;
}

QByteArray Stem(const QByteArray& path) { return path.left(path.lastIndexOf('.')); }

}  // namespace

Journal::Journal(platform::FileSystem& fs, const QByteArray& folder, platform::MessagePort& messages,
                 WrittenPlans written)
    : fs_(fs), folder_(folder), messages_(messages), keep_(written) {}

QByteArray Journal::NameFor(const core::OperationPlan& plan, int sequence) const {
  return folder_ + QByteArray::number(plan.started.toMSecsSinceEpoch()).rightJustified(15, '0') + '-' +
         QByteArray::number(sequence).rightJustified(4, '0');
}

// One stem per operation, whatever state its file is in.
bool Journal::StemTaken(const QByteArray& stem) const {
  if (fs_.Exists(stem + kTemporarySuffix)) return true;
  for (const State state : {State::Open, State::Done, State::Undone}) {
    if (fs_.Exists(stem + Suffix(state))) return true;
  }
  return false;
}

// The stem of the first sequence number from `*sequence` on that no file
// of the folder takes, or an empty one when all are taken.
QByteArray Journal::FreeStem(const core::OperationPlan& plan, int* sequence) const {
  for (; *sequence < 10000; ++*sequence) {
    QByteArray stem = NameFor(plan, *sequence);
    if (!StemTaken(stem)) return stem;
  }
  return {};
}

void Journal::Prepare(const core::OperationPlan& start) {
  DropPrepared();
  const core::OperationPlan head{start.kind, start.folder, start.started, {}};
  int sequence = 0;
  const QByteArray stem = FreeStem(head, &sequence);
  if (stem.isEmpty()) return;
  const QByteArray bytes = JournalFormat::Write(head);
  if (fs_.WriteWholeFile(stem + kTemporarySuffix, bytes) == 0) {
    prepared_ = {stem, head, bytes.size()};
  } else {
    fs_.RemoveFile(stem + kTemporarySuffix);
  }
}

// False when the readied file cannot be used: Begin then goes the usual
// way, and End removes it.
bool Journal::BeginPrepared(const core::OperationPlan& plan, int* error) {
  const core::OperationPlan& start = prepared_.start;
  if (prepared_.size < 0 || start.kind != plan.kind || start.folder != plan.folder || start.started != plan.started) {
    return false;
  }
  const QByteArray temporary = prepared_.stem + kTemporarySuffix;
  const QByteArray open = prepared_.stem + Suffix(State::Open);
  const QByteArray addition = JournalFormat::Addition(plan.steps);
  if (fs_.AppendToFile(temporary, addition) != 0 || fs_.RenameNoReplace(temporary, open) != 0) return false;
  const qint64 size = prepared_.size + addition.size();
  prepared_ = {};
  *error = Opened(open, plan, size);
  return true;
}

// The plan counts from here on.
int Journal::Opened(const QByteArray& path, const core::OperationPlan& plan, qint64 size) {
  current_ = path;
  running_.Acquire(current_);
  RememberWritten(current_, plan, size);
  // The new name must outlive a power cut, not only the file's contents.
  return fs_.FlushFolder(folder_);
}

void Journal::DropPrepared() {
  if (prepared_.size >= 0) fs_.RemoveFile(prepared_.stem + kTemporarySuffix);
  prepared_ = {};
}

int Journal::Begin(const core::OperationPlan& plan) {
  if (int error = 0; BeginPrepared(plan, &error)) return error;
  const QByteArray bytes = JournalFormat::Write(plan);
  for (int sequence = 0;; ++sequence) {
    const QByteArray stem = FreeStem(plan, &sequence);
    if (stem.isEmpty()) return platform::kFileAlreadyExists;
    if (const int error = fs_.WriteWholeFile(stem + kTemporarySuffix, bytes)) return error;
    const int error = fs_.RenameNoReplace(stem + kTemporarySuffix, stem + Suffix(State::Open));
    if (error == platform::kFileAlreadyExists) {
      fs_.RemoveFile(stem + kTemporarySuffix);
      continue;
    }
    if (error != 0) {
      fs_.RemoveFile(stem + kTemporarySuffix);
      return error;
    }
    return Opened(stem + Suffix(State::Open), plan, bytes.size());
  }
}

int Journal::Extend(std::vector<core::PlanStep> steps) {
  if (current_.isEmpty()) return platform::ErrorNumberFromErrno(EINVAL);
  const QByteArray addition = JournalFormat::Addition(steps);
  const int error = fs_.AppendToFile(current_, addition);
  if (error != 0 || written_.stem != Stem(current_)) {
    written_ = {};
    return error;
  }
  written_.size += addition.size();
  written_.pieces.push_back(std::move(steps));
  return 0;
}

void Journal::RememberWritten(const QByteArray& path, const core::OperationPlan& plan, qint64 size) {
  if (keep_ == WrittenPlans::Forgotten) return;
  written_ = {Stem(path), size, {plan.kind, plan.folder, plan.started, {}}, {}};
  written_.pieces.push_back(plan.steps);
}

bool Journal::FromWritten(const QByteArray& path, core::OperationPlan* plan) {
  if (written_.size < 0 || Stem(path) != written_.stem) return false;
  platform::FileInfo info;
  if (fs_.StatIdentity(path, &info) != 0 || info.size != written_.size) return false;
  *plan = written_.start;
  size_t count = 0;
  for (const std::vector<core::PlanStep>& piece : written_.pieces) count += piece.size();
  plan->steps.reserve(count);
  for (const std::vector<core::PlanStep>& piece : written_.pieces) {
    plan->steps.insert(plan->steps.end(), piece.begin(), piece.end());
  }
  return true;
}

void Journal::End() {
  DropPrepared();
  if (current_.isEmpty()) return;
  fs_.RenameNoReplace(current_, Stem(current_) + Suffix(State::Done));
  running_.Release();
  current_.clear();
  Prune();
}

int Journal::Mark(JournalEntry& entry, State state) {
  const QByteArray to = Stem(entry.path) + Suffix(state);
  if (to == entry.path) return 0;
  const int error = fs_.RenameNoReplace(entry.path, to);
  if (error == 0) {
    entry.path = to;
    entry.state = state;
  }
  return error;
}

std::vector<JournalEntry> Journal::Entries(size_t most, bool undone) {
  std::vector<QByteArray> names;
  fs_.ListFiles(folder_, &names);
  std::sort(names.begin(), names.end(), std::greater<>());
  std::vector<JournalEntry> entries;
  for (const QByteArray& name : names) {
    if (entries.size() >= most) break;
    JournalEntry entry;
    if (!StateOfName(name, &entry.state) || (!undone && entry.state == State::Undone)) continue;
    entry.path = folder_ + name;
    if (FromWritten(entry.path, &entry.plan)) {
      entries.push_back(std::move(entry));
      continue;
    }
    QByteArray bytes;
    const int error = fs_.ReadWholeFile(entry.path, kMaxJournalBytes, &bytes);
    const JournalRead read = JournalFormat::Read(bytes.constData(), bytes.size());
    if (error != 0 || read.status != JournalStatus::Ok) {
      SetAside(name, static_cast<int>(read.status));
      continue;
    }
    entry.plan = std::move(read.plan);
    entries.push_back(std::move(entry));
  }
  return entries;
}

// Another program sharing the folder may be writing its plan right now;
// only a temporary an hour old is one that a kill left behind.
void Journal::RemoveStaleTemporaries() {
  std::vector<QByteArray> names;
  fs_.ListFiles(folder_, &names);
  const QDateTime stale = QDateTime::currentDateTimeUtc().addSecs(-3600);
  for (const QByteArray& name : names) {
    platform::FileInfo info;
    if (name.endsWith(kTemporarySuffix) && fs_.Stat(folder_ + name, &info) == 0 && info.modified < stale) {
      fs_.RemoveFile(folder_ + name);
    }
  }
}

void Journal::SetAside(const QByteArray& name, int status) {
  const QString shown = platform::FileName::NameToText(folder_ + name);
  const QString aside = platform::FileName::NameToText(folder_ + kDamaged + name);
  QString text = status == static_cast<int>(JournalStatus::Newer)     ? texts::kJournalNewer
                 : status == static_cast<int>(JournalStatus::Truncated) ? texts::kJournalTruncated
                                                                        : texts::kJournalGarbled;
  const int error = fs_.RenameNoReplace(folder_ + name, folder_ + kDamaged + name);
  text = text.arg(shown) + texts::kCr +
         (error == 0 ? texts::kJournalSetAside.arg(aside) : texts::kJournalNotSetAside.arg(platform::ErrorDescription(error)));
  messages_.Notify(text, platform::MessageIcon::Warning);
}

// Only finished plans go, by their names alone; an open one waits for the
// person's decision.
void Journal::Prune() {
  std::vector<QByteArray> names;
  fs_.ListFiles(folder_, &names);
  std::sort(names.begin(), names.end(), std::greater<>());
  size_t kept = 0;
  for (const QByteArray& name : names) {
    State state = State::Open;
    if (!StateOfName(name, &state) || state == State::Open) continue;
    if (++kept > kKept) fs_.RemoveFile(folder_ + name);
  }
}

}  // namespace renvale::fileops

#pragma once

#include <QByteArray>
#include <cstdint>
#include <vector>

#include "core/OperationRecorder.h"
#include "platform/FileLock.h"
#include "platform/FileSystem.h"
#include "platform/MessagePort.h"

namespace renvale::fileops {

// One operation as its journal file holds it.
struct JournalEntry {
  enum class State { Open, Done, Undone };
  QByteArray path;  // the journal file
  State state = State::Open;
  core::OperationPlan plan;
};

// The journals of the operations, one file each in a folder of this
// computer, shared by every program that changes names for the person.
// A plan is written under a temporary name, flushed, and named "*.open":
// that rename is the moment it counts. Steps added later are appended and
// flushed, each addition before its steps are taken. At the end it is renamed "*.done"
// with no flush, because the disk itself tells a finished plan. The files
// carry the start time in their names, so their order is their age.
class Journal : public core::OperationRecorder {
 public:
  static constexpr size_t kKept = 200;

  // Whether the plans this journal writes are also kept in memory: the
  // window asks for the newest after every operation, while a process that
  // makes one operation and ends would only fill fresh memory with them.
  enum class WrittenPlans { Kept, Forgotten };

  // `folder` ends in '/' and holds a "damaged/" folder for journals that
  // cannot be read.
  Journal(platform::FileSystem& fs, const QByteArray& folder, platform::MessagePort& messages,
          WrittenPlans written = WrittenPlans::Kept);

  int Begin(const core::OperationPlan& plan) override;
  void Prepare(const core::OperationPlan& start) override;
  int Extend(std::vector<core::PlanStep> steps) override;
  void End() override;
  bool WritesFromAnyThread() const override { return fs_.WritableFromAnyThread(); }

  // Every journal, newest first. One that cannot be read (cut short,
  // changed, or of a newer version) is moved to "damaged/" and told about
  // once.
  // `most` limits how many are read; `undone` false leaves undone ones out.
  std::vector<JournalEntry> Entries(size_t most = SIZE_MAX, bool undone = true);

  // Removes plans that a kill stopped before they got their name: nothing
  // of them was done.
  void RemoveStaleTemporaries();

  // Records a new state for `entry` (a finished, undone or recovered plan).
  int Mark(JournalEntry& entry, JournalEntry::State state);

 private:
  bool StemTaken(const QByteArray& stem) const;
  QByteArray FreeStem(const core::OperationPlan& plan, int* sequence) const;
  int Opened(const QByteArray& path, const core::OperationPlan& plan, qint64 size);
  bool BeginPrepared(const core::OperationPlan& plan, int* error);
  void DropPrepared();
  QByteArray NameFor(const core::OperationPlan& plan, int sequence) const;
  void SetAside(const QByteArray& name, int status);
  void Prune();

  bool FromWritten(const QByteArray& path, core::OperationPlan* plan);
  void RememberWritten(const QByteArray& path, const core::OperationPlan& plan, qint64 size);

  platform::FileSystem& fs_;
  QByteArray folder_;
  platform::MessagePort& messages_;
  const WrittenPlans keep_;
  QByteArray current_;  // the open journal of the running operation
  // The file readied for the next plan: its head written and flushed under
  // the temporary name. Begin then only adds the first steps and gives the
  // name; a new file's first flush is the slowest wait of a journal.
  struct Prepared {
    QByteArray stem;
    core::OperationPlan start;
    qint64 size = -1;
  } prepared_;
  // The plan this journal wrote last, kept as written: the Undo caption asks
  // for the newest plan after every operation, and reading back the
  // megabyte a large batch wrote would cost a good part of the batch again.
  // Whether its file is still the one written is told by its stem and size:
  // journals are only ever appended to. The steps stay in the pieces they
  // came in: joining them as they come would copy a long batch's plan into
  // fresh memory while the batch runs, for a caption asked for after it.
  struct Written {
    QByteArray stem;
    qint64 size = -1;
    core::OperationPlan start;  // without steps
    std::vector<std::vector<core::PlanStep>> pieces;
  } written_;
  // Held on `current_` while the operation runs, so that another program
  // sharing the journal does not take a running plan for one cut short.
  platform::FileLock running_;
};

}  // namespace renvale::fileops

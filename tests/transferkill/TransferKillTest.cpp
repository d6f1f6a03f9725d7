#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include <algorithm>
#include <random>

#include "fileops/Journal.h"
#include "fileops/PlanReplay.h"
#include "support/ScriptedMessagePort.h"

namespace renvale {
namespace {

constexpr int kFiles = 1000;
constexpr int kRuns = 12;
constexpr char kNeverOverwrite[] = "1";

QString Name(int i) { return QString::asprintf("IMG_%04d.JPG", i); }
QByteArray Contents(int i) { return QByteArray(2000 + (i * 37) % 9000, static_cast<char>('a' + i % 26)) + Name(i).toUtf8(); }

void MakeFiles(const QString& folder) {
  QDir(folder).removeRecursively();
  QDir().mkpath(folder);
  for (int i = 0; i < kFiles; ++i) {
    QFile file(folder + '/' + Name(i));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(Contents(i));
  }
}

// Every file complete exactly where it is wanted, and nothing half-made
// (no temporary, no partial file) in the destination.
void ExpectWhole(const QString& source, const QString& destination, bool atSource, bool atDestination) {
  for (int i = 0; i < kFiles; ++i) {
    for (const auto& [folder, wanted] : {std::pair{source, atSource}, std::pair{destination, atDestination}}) {
      QFile file(folder + '/' + Name(i));
      ASSERT_EQ(file.open(QIODevice::ReadOnly), wanted) << file.fileName().toStdString();
      if (wanted) {
        ASSERT_EQ(file.readAll(), Contents(i)) << file.fileName().toStdString();
      }
    }
  }
  EXPECT_EQ(QDir(destination).entryList(QDir::Files | QDir::Hidden | QDir::System).size(), atDestination ? kFiles : 0);
}

// From a tmpfs to the disk, as from a memory card; two folders on one file
// system only when there is no tmpfs to use. After each kill the run's
// journal is finished (even runs) or undone (odd runs), as the start-up
// check would.
void KillAndReplay(const QString& mode) {
  const bool move = mode == QStringLiteral("move");
  QTemporaryDir disk;
  QTemporaryDir memory(QDir("/dev/shm").exists() ? QStringLiteral("/dev/shm/renvale-kill-XXXXXX") : QString());
  const QString source = memory.path() + "/card";
  const QString destination = disk.path() + "/pictures";
  const QString state = disk.path() + "/state";
  QDir().mkpath(state + "/damaged");
  // Undone copies go to a trash inside the scratch folder.
  qputenv("XDG_DATA_HOME", QFile::encodeName(disk.path() + "/share"));
  test::ScriptedMessagePort port;
  platform::FileSystem& fs = platform::RealFileSystem();
  fileops::Journal journal(fs, QFile::encodeName(state) + '/', port);
  const auto reset = [&] {
    QDir(destination).removeRecursively();
    QDir().mkpath(destination);
    MakeFiles(source);
    for (const fileops::JournalEntry& entry : journal.Entries()) QFile::remove(QFile::decodeName(entry.path));
    journal.RemoveStaleTemporaries();
  };
  const auto start = [&](QProcess& victim) {
    victim.start(QStringLiteral(RENVALE_VICTIM), {source, destination, kNeverOverwrite, state, mode});
    ASSERT_TRUE(victim.waitForStarted(5000));
    ASSERT_TRUE(victim.waitForReadyRead(5000));
  };
  reset();
  QProcess whole;
  start(whole);
  QElapsedTimer clock;
  clock.start();
  ASSERT_TRUE(whole.waitForFinished(60000));
  ASSERT_EQ(whole.exitCode(), 0) << whole.readAllStandardError().toStdString();
  qint64 latest = clock.nsecsElapsed() / 1000;
  ExpectWhole(source, destination, !move, true);

  std::mt19937 random(20261125);
  int recovered = 0;
  for (int run = 0; run < kRuns; ++run) {
    reset();
    QProcess victim;
    start(victim);
    const qint64 delay = std::uniform_int_distribution<qint64>(0, latest)(random);
    QThread::usleep(static_cast<unsigned long>(delay));
    victim.kill();
    ASSERT_TRUE(victim.waitForFinished(5000));
    const std::vector<fileops::JournalEntry> entries = journal.Entries();
    if (entries.empty()) {  // killed before its plan was kept: nothing changed
      ExpectWhole(source, destination, true, false);
    } else if (entries.front().state == fileops::JournalEntry::State::Open) {
      ++recovered;
      const bool finish = run % 2 == 0;
      port.Clear();
      port.Script(platform::MessageAnswer::Yes);  // the copies may go to the trash
      fileops::PlanReplay replay(fs, port);
      const fileops::ReplayResult result = finish ? replay.Finish(entries.front().plan) : replay.Undo(entries.front().plan);
      EXPECT_TRUE(result.passedOver.isEmpty()) << result.passedOver.join('\n').toStdString();
      ExpectWhole(source, destination, !finish || !move, finish);
    } else {
      ExpectWhole(source, destination, !move, true);
      latest = std::max<qint64>(delay, 1000);  // too late: aim earlier
    }
  }
  std::printf("%s of %d files: %d of %d kills landed inside it\n", qPrintable(mode), kFiles, recovered, kRuns);
  EXPECT_GE(recovered, kRuns / 3) << "too few kills landed inside the transfer to prove anything";
}

TEST(TransferKill, AKilledMoveIsFinishedOrUndoneFromItsJournal) { KillAndReplay(QStringLiteral("move")); }

TEST(TransferKill, AKilledCopyIsFinishedOrUndoneFromItsJournal) { KillAndReplay(QStringLiteral("copy")); }

}  // namespace
}  // namespace renvale

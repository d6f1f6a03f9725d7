#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include <algorithm>
#include <cstdio>
#include <random>

#include "fileops/Journal.h"
#include "fileops/PlanReplay.h"
#include "support/ScriptedMessagePort.h"

namespace renvale {
namespace {

constexpr int kFiles = 1000;
constexpr int kRuns = 16;

QString OldName(int i) { return QString::asprintf("f%04d.dat", i); }
QString NewName(int i) { return QString::asprintf("g%04d.dat", i); }
QByteArray Contents(int i) { return QByteArray::number(i * 7919).repeated(1 + i % 5); }

// Every file under `wanted(i)` with its own contents, and nothing else.
void ExpectAllUnder(const QString& folder, QString (*wanted)(int)) {
  const QStringList entries = QDir(folder).entryList(QDir::Files | QDir::Hidden | QDir::System);
  ASSERT_EQ(entries.size(), kFiles);
  for (int i = 0; i < kFiles; ++i) {
    QFile file(folder + '/' + wanted(i));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << wanted(i).toStdString();
    ASSERT_EQ(file.readAll(), Contents(i)) << wanted(i).toStdString();
  }
}

// After each kill the run's journal is finished (even runs) or undone (odd
// runs) as the start-up check would; both must reach a whole state.
TEST(JournalKill, AKilledRunIsFinishedOrUndoneFromItsJournal) {
  QTemporaryDir root;
  const QString folder = root.path() + "/card";
  const QByteArray journalFolder = QFile::encodeName(root.path()) + "/state/";
  QDir().mkpath(folder);
  QDir().mkpath(QFile::decodeName(journalFolder) + "damaged");
  for (int i = 0; i < kFiles; ++i) {
    QFile file(folder + '/' + OldName(i));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(Contents(i));
  }
  test::ScriptedMessagePort port;
  fileops::Journal journal(platform::RealFileSystem(), journalFolder, port);
  const QStringList arguments{folder, QFile::decodeName(journalFolder.chopped(1))};
  // An undisturbed run first, to learn how long it takes.
  QProcess whole;
  whole.start(QStringLiteral(RENVALE_JOURNAL_VICTIM), arguments);
  ASSERT_TRUE(whole.waitForStarted(5000));
  ASSERT_TRUE(whole.waitForReadyRead(5000));
  QElapsedTimer clock;
  clock.start();
  ASSERT_TRUE(whole.waitForFinished(20000));
  qint64 latest = clock.nsecsElapsed() / 1000;
  const qint64 wholeMicros = latest;
  ExpectAllUnder(folder, NewName);
  for (const fileops::JournalEntry& entry : journal.Entries()) QFile::remove(QFile::decodeName(entry.path));
  for (int i = 0; i < kFiles; ++i) QFile::rename(folder + '/' + NewName(i), folder + '/' + OldName(i));

  std::mt19937 random(20261125);
  int recovered = 0;
  int early = 0;
  for (int run = 0; run < kRuns; ++run) {
    QProcess victim;
    victim.start(QStringLiteral(RENVALE_JOURNAL_VICTIM), arguments);
    ASSERT_TRUE(victim.waitForStarted(5000));
    ASSERT_TRUE(victim.waitForReadyRead(5000));
    const qint64 delay = std::uniform_int_distribution<qint64>(0, latest)(random);
    QThread::usleep(static_cast<unsigned long>(delay));
    victim.kill();
    ASSERT_TRUE(victim.waitForFinished(5000));

    std::vector<fileops::JournalEntry> entries = journal.Entries();
    const bool finish = run % 2 == 0;
    if (!entries.empty() && entries.front().state == fileops::JournalEntry::State::Open) {
      ++recovered;
      fileops::PlanReplay replay(platform::RealFileSystem(), port);
      const fileops::ReplayResult result =
          finish ? replay.Finish(entries.front().plan) : replay.Undo(entries.front().plan);
      EXPECT_TRUE(result.passedOver.isEmpty()) << result.passedOver.join('\n').toStdString();
      ExpectAllUnder(folder, finish ? NewName : OldName);
    } else if (entries.empty()) {
      ++early;
      ExpectAllUnder(folder, OldName);  // killed before its plan counted
    } else {
      ExpectAllUnder(folder, NewName);
      latest = std::max<qint64>(delay, 1000);  // too late: aim earlier
    }
    for (const fileops::JournalEntry& entry : entries) QFile::remove(QFile::decodeName(entry.path));
    // Back to the old names for the next run.
    for (int i = 0; i < kFiles; ++i) QFile::rename(folder + '/' + NewName(i), folder + '/' + OldName(i));
  }
  std::printf("run of %d files took %lld us; of %d kills %d landed inside it, %d before its plan was kept\n",
              kFiles, static_cast<long long>(wholeMicros), kRuns, recovered, early);
  EXPECT_TRUE(port.messages.empty());
  EXPECT_GE(recovered, kRuns / 3) << "too few kills landed inside the run to prove anything";
}

}  // namespace
}  // namespace renvale

#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include <algorithm>
#include <random>

namespace {

constexpr int kFiles = 1000;
constexpr int kRuns = 20;
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

// Every file complete under its source or its destination name (a file in
// both places is complete in both). Returns how many reached the destination.
int CountMoved(const QString& source, const QString& destination) {
  int moved = 0;
  for (int i = 0; i < kFiles; ++i) {
    int copies = 0;
    for (const QString& folder : {source, destination}) {
      QFile file(folder + '/' + Name(i));
      if (!file.open(QIODevice::ReadOnly)) continue;
      ++copies;
      EXPECT_EQ(file.readAll(), Contents(i)) << file.fileName().toStdString();
    }
    EXPECT_GT(copies, 0) << "lost " << Name(i).toStdString();
    moved += QFile::exists(destination + '/' + Name(i)) ? 1 : 0;
  }
  return moved;
}

QStringList Hidden(const QString& folder) {
  return QDir(folder).entryList({QStringLiteral(".*")}, QDir::Files | QDir::Hidden | QDir::System);
}

void StartVictim(QProcess& victim, const QString& source, const QString& destination) {
  victim.start(QStringLiteral(RENVALE_VICTIM), {source, destination, kNeverOverwrite});
  ASSERT_TRUE(victim.waitForStarted(5000));
  ASSERT_TRUE(victim.waitForReadyRead(5000));
}

void RunToEnd(const QString& source, const QString& destination) {
  QProcess victim;
  StartVictim(victim, source, destination);
  ASSERT_TRUE(victim.waitForFinished(60000));
  ASSERT_EQ(victim.exitCode(), 0) << victim.readAllStandardError().toStdString();
}

// From a tmpfs to the disk, as from a memory card; two folders on one
// file system only when there is no tmpfs to use.
TEST(TransferKill, KilledAnywhereEveryFileIsCompleteUnderItsSourceOrDestinationName) {
  QTemporaryDir disk;
  QTemporaryDir memory(QDir("/dev/shm").exists() ? QStringLiteral("/dev/shm/renvale-kill-XXXXXX") : QString());
  const QString source = memory.path() + "/card";
  const QString destination = disk.path() + "/pictures";
  QDir().mkpath(destination);
  MakeFiles(source);
  QElapsedTimer clock;
  clock.start();
  RunToEnd(source, destination);
  const qint64 moveMicros = clock.nsecsElapsed() / 1000;
  ASSERT_EQ(CountMoved(source, destination), kFiles);

  std::mt19937 random(20261125);
  qint64 latest = moveMicros;
  std::vector<int> movedAtKill;
  int leftTemporaries = 0;
  int midMove = 0;
  for (int run = 0; run < kRuns; ++run) {
    QDir(destination).removeRecursively();
    QDir().mkpath(destination);
    MakeFiles(source);
    QProcess victim;
    StartVictim(victim, source, destination);
    QThread::usleep(static_cast<unsigned long>(std::uniform_int_distribution<qint64>(0, latest)(random)));
    victim.kill();
    ASSERT_TRUE(victim.waitForFinished(5000));
    movedAtKill.push_back(CountMoved(source, destination));
    if (movedAtKill.back() == kFiles) latest = latest * 3 / 4;
    const bool temporaries = !Hidden(destination).isEmpty();
    leftTemporaries += temporaries ? 1 : 0;
    // Copies without their names yet count too: the kill cut the move.
    midMove += temporaries || (movedAtKill.back() > 0 && movedAtKill.back() < kFiles) ? 1 : 0;
    // The next transfer into the folder finishes the move and sweeps up.
    RunToEnd(source, destination);
    EXPECT_EQ(CountMoved(source, destination), kFiles);
    EXPECT_EQ(Hidden(destination), QStringList{});
  }
  std::sort(movedAtKill.begin(), movedAtKill.end());
  std::printf("move of %d files took %lld us; %d kills, %d inside the move, %d left temporaries; "
              "moved at kill: min %d, median %d, max %d\n",
              kFiles, static_cast<long long>(moveMicros), kRuns, midMove, leftTemporaries,
              movedAtKill.front(), movedAtKill[kRuns / 2], movedAtKill.back());
  EXPECT_GE(midMove, kRuns / 3) << "too few kills landed inside the move to prove anything";
}

}  // namespace

#include <QTemporaryDir>
#include <algorithm>
#include <random>

#include "KillRun.h"

namespace renvale::test {
namespace {

constexpr int kRuns = 25;

QString NewName(int i) { return QString::asprintf("f%04d %04d.dat", i, i + 1); }

// Every file under exactly its old or its new name with its own contents,
// and nothing else in the folder. Returns how many carry the new name.
int CountRenamed(const QString& folder) {
  const QStringList entries = QDir(folder).entryList(QDir::Files | QDir::Hidden | QDir::System);
  EXPECT_EQ(entries.size(), kFiles) << "stray or lost files in " << folder.toStdString();
  int renamed = 0;
  for (int i = 0; i < kFiles; ++i) {
    const bool old = entries.contains(OldName(i));
    const bool now = entries.contains(NewName(i));
    EXPECT_NE(old, now) << OldName(i).toStdString();
    QFile file(folder + '/' + (now ? NewName(i) : OldName(i)));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), Contents(i)) << OldName(i).toStdString();
    renamed += now ? 1 : 0;
  }
  return renamed;
}

// Puts every file back under its old name for the next run.
void Restore(const QString& folder) {
  for (int i = 0; i < kFiles; ++i) {
    if (QFile::exists(folder + '/' + NewName(i))) {
      ASSERT_TRUE(QFile::rename(folder + '/' + NewName(i), folder + '/' + OldName(i)));
    }
  }
}

TEST(BatchKill, KilledAnywhereEveryFileKeepsItsOldOrItsNewName) {
  QTemporaryDir root;
  const QString folder = root.path() + "/batch";
  MakeFiles(folder);
  const qint64 batchMicros = WholeRunMicros(QStringLiteral(RENVALE_VICTIM), {folder});
  ASSERT_EQ(CountRenamed(folder), kFiles);

  std::mt19937 random(20240611);
  qint64 latest = batchMicros;
  std::vector<int> renamedAtKill;
  for (int run = 0; run < kRuns; ++run) {
    Restore(folder);
    const qint64 delay = std::uniform_int_distribution<qint64>(0, latest)(random);
    KillAfter(QStringLiteral(RENVALE_VICTIM), {folder}, delay);
    renamedAtKill.push_back(CountRenamed(folder));
    // A kill that came too late to find the batch running: aim earlier.
    if (renamedAtKill.back() == kFiles) latest = latest * 3 / 4;
  }
  std::sort(renamedAtKill.begin(), renamedAtKill.end());
  const auto midBatch = std::count_if(renamedAtKill.begin(), renamedAtKill.end(),
                                      [](int n) { return n > 0 && n < kFiles; });
  std::printf("batch of %d files took %lld us; %d kills, %ld inside the batch; renamed at kill: min %d, median %d, max %d\n",
              kFiles, static_cast<long long>(batchMicros), kRuns, static_cast<long>(midBatch), renamedAtKill.front(),
              renamedAtKill[kRuns / 2], renamedAtKill.back());
  EXPECT_GE(midBatch, kRuns / 2) << "too few kills landed inside the batch to prove anything";
}

}  // namespace
}  // namespace renvale::test

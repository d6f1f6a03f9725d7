#include <QSet>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <random>

#include "KillRun.h"
#include "fileops/Journal.h"
#include "fileops/PlanReplay.h"
#include "support/ScriptedMessagePort.h"

namespace renvale::test {
namespace {

constexpr int kRuns = 16;

QString NewName(int i) { return QString::asprintf("g%04d.dat", i); }

// Every file under `wanted(i)` with its own contents, and nothing else.
void ExpectAllUnder(const QString& folder, const std::function<QString(int)>& wanted) {
  const QStringList entries = QDir(folder).entryList(QDir::Files | QDir::Hidden | QDir::System);
  ASSERT_EQ(entries.size(), kFiles);
  for (int i = 0; i < kFiles; ++i) {
    QFile file(folder + '/' + wanted(i));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << wanted(i).toStdString();
    ASSERT_EQ(file.readAll(), Contents(i)) << wanted(i).toStdString();
  }
}

// After each kill the run's journal is finished (even runs) or undone (odd
// runs) as the start-up check would; both must reach a whole state. A
// batch records its plan in pieces: a file its journal does not name yet
// must not have moved, so finishing gives it no new name.
// `kind` is empty for search and replace, "batch" for the batch rename.
void KillAndRecover(const QString& kind) {
  QTemporaryDir root;
  const QString folder = root.path() + "/card";
  const QByteArray journalFolder = QFile::encodeName(root.path()) + "/state/";
  MakeFiles(folder);
  QDir().mkpath(QFile::decodeName(journalFolder) + "damaged");
  ScriptedMessagePort port;
  fileops::Journal journal(platform::RealFileSystem(), journalFolder, port);
  QStringList arguments{folder, QFile::decodeName(journalFolder.chopped(1))};
  if (!kind.isEmpty()) arguments << kind;
  qint64 latest = WholeRunMicros(QStringLiteral(RENVALE_VICTIM), arguments);
  ExpectAllUnder(folder, NewName);
  // Back to the old names and no journal, for the next run.
  const auto reset = [&] {
    for (const fileops::JournalEntry& entry : journal.Entries()) QFile::remove(QFile::decodeName(entry.path));
    for (int i = 0; i < kFiles; ++i) QFile::rename(folder + '/' + NewName(i), folder + '/' + OldName(i));
  };
  reset();

  std::mt19937 random(20261125);
  int recovered = 0;
  int partial = 0;  // kills that landed before the plan was whole
  for (int run = 0; run < kRuns; ++run) {
    const qint64 delay = std::uniform_int_distribution<qint64>(0, latest)(random);
    KillAfter(QStringLiteral(RENVALE_VICTIM), arguments, delay);

    std::vector<fileops::JournalEntry> entries = journal.Entries();
    const bool finish = run % 2 == 0;
    if (!entries.empty() && entries.front().state == fileops::JournalEntry::State::Open) {
      ++recovered;
      fileops::PlanReplay replay(platform::RealFileSystem(), port);
      const fileops::ReplayResult result =
          finish ? replay.Finish(entries.front().plan) : replay.Undo(entries.front().plan);
      EXPECT_TRUE(result.passedOver.isEmpty()) << result.passedOver.join('\n').toStdString();
      QSet<QString> planned;
      for (const core::PlanStep& step : entries.front().plan.steps) planned.insert(QFile::decodeName(step.from));
      partial += planned.size() < kFiles;
      ExpectAllUnder(folder, [&](int i) {
        return finish && planned.contains(folder + '/' + OldName(i)) ? NewName(i) : OldName(i);
      });
    } else {
      ExpectAllUnder(folder, NewName);
      latest = std::max<qint64>(delay, 1000);  // too late: aim earlier
    }
    reset();
  }
  std::printf("%d of %d kills landed inside a run of %d files, %d before its plan was whole\n", recovered, kRuns,
              kFiles, partial);
  EXPECT_TRUE(port.messages.empty());
  EXPECT_GE(recovered, kRuns / 3) << "too few kills landed inside the run to prove anything";
}

TEST(JournalKill, AKilledSearchAndReplaceIsFinishedOrUndoneFromItsJournal) { KillAndRecover(QString()); }

TEST(JournalKill, AKilledBatchIsFinishedOrUndoneFromItsJournal) { KillAndRecover(QStringLiteral("batch")); }

}  // namespace
}  // namespace renvale::test

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "fileops/Journal.h"
#include "fileops/JournalFormat.h"
#include "support/ScriptedMessagePort.h"

namespace renvale::fileops {
namespace {

using State = JournalEntry::State;

class JournalStore : public ::testing::Test {
 protected:
  JournalStore() { QDir().mkpath(dir.path() + "/damaged"); }

  core::OperationPlan Plan(qint64 ms) {
    return core::OperationPlan{core::OperationKind::Rename, "/card/", QDateTime::fromMSecsSinceEpoch(ms, Qt::UTC),
                               {{core::StepKind::Rename, "/card/a", "/card/b", {}}}};
  }
  void Put(const QByteArray& name, const QByteArray& bytes) {
    platform::RealFileSystem().WriteWholeFile(folder + name, bytes);
  }

  QTemporaryDir dir;
  QByteArray folder = QFile::encodeName(dir.path()) + '/';
  test::ScriptedMessagePort port;
  Journal journal{platform::RealFileSystem(), folder, port};
};

TEST_F(JournalStore, PlansAreListedNewestFirstWithTheirStates) {
  ASSERT_EQ(journal.Begin(Plan(2000)), 0);
  journal.End();
  ASSERT_EQ(journal.Begin(Plan(3000)), 0);  // a run that never ended
  ASSERT_EQ(journal.Extend(Plan(0).steps), 0);
  Put("000000000001000-0000.tmp", "half");  // being written, or killed before its plan counted
  std::vector<JournalEntry> entries = journal.Entries();
  ASSERT_EQ(entries.size(), 2u);
  EXPECT_EQ(entries[0].state, State::Open);
  EXPECT_EQ(entries[0].plan.started.toMSecsSinceEpoch(), 3000);
  EXPECT_EQ(entries[0].plan.steps.size(), 2u);
  // What the writing journal keeps of its plan is what another one reads.
  test::ScriptedMessagePort otherPort;
  const std::vector<JournalEntry> read = Journal(platform::RealFileSystem(), folder, otherPort).Entries(1);
  ASSERT_EQ(read.size(), 1u);
  EXPECT_EQ(JournalFormat::Write(read[0].plan), JournalFormat::Write(entries[0].plan));
  EXPECT_EQ(entries[1].state, State::Done);
  EXPECT_EQ(journal.Mark(entries[1], State::Undone), 0);
  EXPECT_EQ(journal.Entries()[1].state, State::Undone);
  Put("000000000000500-0000.tmp", "left by a kill a day ago");
  QFile stale(dir.path() + "/000000000000500-0000.tmp");
  ASSERT_TRUE(stale.open(QIODevice::ReadWrite));
  stale.setFileTime(QDateTime::currentDateTimeUtc().addDays(-1), QFileDevice::FileModificationTime);
  journal.RemoveStaleTemporaries();  // the young one may still be being written
  EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files).size(), 3);
  EXPECT_FALSE(stale.exists());
  EXPECT_TRUE(port.messages.empty());
}

// The file readied while an operation works out its steps becomes its
// journal; one readied for another start, or never begun, leaves nothing.
TEST_F(JournalStore, AReadiedFileBecomesThePlansJournal) {
  const auto files = [this] { return QDir(dir.path()).entryList(QDir::Files); };
  const auto inode = [this](const QByteArray& name) {
    struct stat st {};
    return ::stat(folder + name, &st) == 0 ? st.st_ino : 0;
  };
  journal.Prepare(Plan(4000));
  EXPECT_EQ(files(), QStringList{"000000000004000-0000.tmp"});
  const ino_t readied = inode("000000000004000-0000.tmp");
  ASSERT_EQ(journal.Begin(Plan(4000)), 0);
  ASSERT_EQ(journal.Extend(Plan(0).steps), 0);
  EXPECT_EQ(files(), QStringList{"000000000004000-0000.open"});
  EXPECT_EQ(inode("000000000004000-0000.open"), readied);
  test::ScriptedMessagePort otherPort;
  const std::vector<JournalEntry> read = Journal(platform::RealFileSystem(), folder, otherPort).Entries();
  ASSERT_EQ(read.size(), 1u);
  EXPECT_EQ(read[0].plan.steps.size(), 2u);
  EXPECT_EQ(JournalFormat::Write(read[0].plan), JournalFormat::Write(journal.Entries()[0].plan));
  journal.End();
  journal.Prepare(Plan(5000));
  journal.End();
  journal.Prepare(Plan(6000));
  ASSERT_EQ(journal.Begin(Plan(4000)), 0);  // a second plan of the same millisecond takes the next number
  journal.End();
  EXPECT_EQ(files(), (QStringList{"000000000004000-0000.done", "000000000004000-0001.done"}));
  EXPECT_TRUE(port.messages.empty());
}

TEST_F(JournalStore, AnUnreadableJournalIsToldAboutAndKeptAside) {
  const QByteArray good = JournalFormat::Write(Plan(1000));
  const struct { QByteArray bytes; QString says; } cases[] = {
      {good.left(good.size() - 3), "is incomplete: it was cut short while being written."},
      {QByteArray(good).replace("kind r", "kind b"), "is damaged."},
      {QByteArray(good).replace("JOURNAL 2", "JOURNAL 7"), "was written by a newer version of Renvale."},
  };
  for (const auto& c : cases) {
    Put("000000000001000-0000.done", c.bytes);
    port.Clear();
    EXPECT_TRUE(journal.Entries().empty());
    const QString aside = dir.path() + "/damaged/000000000001000-0000.done";
    ASSERT_EQ(port.messages.size(), 1u) << c.says.toStdString();
    EXPECT_TRUE(port.Last().text.contains(c.says)) << port.Last().text.toStdString();
    EXPECT_TRUE(port.Last().text.endsWith("It has been kept aside as '" + aside + "'."));
    EXPECT_TRUE(QFile::remove(aside));
  }
}

}  // namespace
}  // namespace renvale::fileops

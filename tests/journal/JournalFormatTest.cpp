#include "fileops/JournalFormat.h"

#include <gtest/gtest.h>

namespace renvale::fileops {
namespace {

core::OperationPlan SamplePlan() {
  core::OperationPlan plan{core::OperationKind::BatchRename, "/card/DCIM\xff/",
                           QDateTime::fromMSecsSinceEpoch(1764082800123, Qt::UTC), {}};
  plan.steps.push_back({core::StepKind::Rename, "/card/a b\n.jpg", "/card/.rv-tmp", {12, 1764082800123456789, 2049, 77, false}});
  plan.steps.push_back({core::StepKind::Trash, "/card/\xff.THM", "", {0, -5, 0, 0, true}});
  return plan;
}

// A file cut anywhere reads as cut short; any flipped bit is never taken
// for a good plan; a later version is told as such, not as damage.
TEST(JournalFormat, DamageIsToldApartAndNeverReadAsAPlan) {
  const QByteArray bytes = JournalFormat::Write(SamplePlan());
  for (qsizetype cut = 0; cut < bytes.size(); ++cut) {
    EXPECT_EQ(JournalFormat::Read(bytes.constData(), cut).status, JournalStatus::Truncated) << cut;
  }
  for (qsizetype at = 0; at < bytes.size(); ++at) {
    for (const char bit : {'\x01', '\x20', '\x80'}) {
      QByteArray flipped = bytes;
      flipped[at] = static_cast<char>(flipped[at] ^ bit);
      EXPECT_NE(JournalFormat::Read(flipped.constData(), flipped.size()).status, JournalStatus::Ok) << at;
    }
  }
  QByteArray newer = bytes;
  newer.replace("RENVALE-JOURNAL 2\n", "RENVALE-JOURNAL 3\nwhatever\n");
  EXPECT_EQ(JournalFormat::Read(newer.constData(), newer.size()).status, JournalStatus::Newer);
  EXPECT_EQ(JournalFormat::Read("PK\x03\x04", 4).status, JournalStatus::Garbled);
}

// Steps added later read after the first ones, every field of both byte
// for byte, raw names with line breaks and stray bytes included. An addition cut short
// anywhere is left out, its steps never taken, and the rest still reads;
// anything but steps after the last checksum is damage.
TEST(JournalFormat, AdditionsReadOnlyWhenWhole) {
  core::OperationPlan plan = SamplePlan();
  const core::PlanStep added = plan.steps.back();
  plan.steps.pop_back();
  const QByteArray first = JournalFormat::Write(plan);
  const QByteArray whole = first + JournalFormat::Addition({added});
  const JournalRead read = JournalFormat::Read(whole.constData(), whole.size());
  ASSERT_EQ(read.status, JournalStatus::Ok);
  plan.steps.push_back(added);
  EXPECT_EQ(JournalFormat::Write(read.plan), JournalFormat::Write(plan));
  for (qsizetype cut = first.size(); cut < whole.size(); ++cut) {
    const JournalRead torn = JournalFormat::Read(whole.constData(), cut);
    EXPECT_EQ(torn.status, JournalStatus::Ok) << cut;
    EXPECT_EQ(torn.plan.steps.size(), 1u) << cut;
  }
  for (const QByteArray& damaged : {first + "kind b\n", first + "sum 0\n"}) {
    EXPECT_EQ(JournalFormat::Read(damaged.constData(), damaged.size()).status, JournalStatus::Garbled) << damaged.constData();
  }
}

// A journal of the first version, with its single checksum, still reads;
// additions came later, so one in such a file is damage.
TEST(JournalFormat, FirstVersionJournalsRead) {
  const QByteArray old =
      "RENVALE-JOURNAL 1\nkind b\nfolder 2f612f\nstarted 1764082800123\n"
      "step R 2f612f78 2f612f79 12 1764082800123456789 2049 77 1\nsum e44aee04a9b5d782\n";
  const JournalRead read = JournalFormat::Read(old.constData(), old.size());
  ASSERT_EQ(read.status, JournalStatus::Ok);
  ASSERT_EQ(read.plan.steps.size(), 1u);
  EXPECT_EQ(read.plan.steps[0].to, "/a/y");
  const QByteArray added = old + JournalFormat::Addition({read.plan.steps[0]});
  EXPECT_EQ(JournalFormat::Read(added.constData(), added.size()).status, JournalStatus::Garbled);
}

}  // namespace
}  // namespace renvale::fileops

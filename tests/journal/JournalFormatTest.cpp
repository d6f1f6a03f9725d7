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

TEST(JournalFormat, APlanReadsBackByteForByte) {
  const core::OperationPlan plan = SamplePlan();
  const QByteArray bytes = JournalFormat::Write(plan);
  const JournalRead read = JournalFormat::Read(bytes.constData(), bytes.size());
  ASSERT_EQ(read.status, JournalStatus::Ok);
  EXPECT_EQ(read.plan.kind, plan.kind);
  EXPECT_EQ(read.plan.folder, plan.folder);
  EXPECT_EQ(read.plan.started, plan.started);
  ASSERT_EQ(read.plan.steps.size(), 2u);
  for (size_t i = 0; i < 2; ++i) {
    const core::PlanStep& a = read.plan.steps[i];
    const core::PlanStep& b = plan.steps[i];
    EXPECT_EQ(a.kind, b.kind);
    EXPECT_EQ(a.from, b.from);
    EXPECT_EQ(a.to, b.to);
    EXPECT_EQ(a.identity.size, b.identity.size);
    EXPECT_EQ(a.identity.modifiedNs, b.identity.modifiedNs);
    EXPECT_EQ(a.identity.device, b.identity.device);
    EXPECT_EQ(a.identity.inode, b.identity.inode);
    EXPECT_EQ(a.identity.inodeStable, b.identity.inodeStable);
  }
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
  newer.replace("RENVALE-JOURNAL 1\n", "RENVALE-JOURNAL 2\nwhatever\n");
  EXPECT_EQ(JournalFormat::Read(newer.constData(), newer.size()).status, JournalStatus::Newer);
  EXPECT_EQ(JournalFormat::Read("PK\x03\x04", 4).status, JournalStatus::Garbled);
}

}  // namespace
}  // namespace renvale::fileops

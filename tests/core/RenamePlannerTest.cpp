#include <gtest/gtest.h>

#include <QByteArrayList>
#include <algorithm>
#include <set>

#include "core/RenamePlanner.h"

namespace renvale::test {
namespace {

using core::NamePair;
using core::RenameMove;

// "a>b" is one file, "a>b+c>d" a file with a companion.
std::vector<RenameMove> Moves(const char* text) {
  std::vector<RenameMove> moves;
  for (const QByteArray& word : QByteArray(text).split(' ')) {
    const QByteArrayList members = word.split('+');
    RenameMove move;
    for (qsizetype i = 0; i < members.size(); ++i) {
      const QByteArrayList pair = members[i].split('>');
      (i == 0 ? move.head : move.companions.emplace_back()) = NamePair{pair[0], pair[1]};
    }
    moves.push_back(move);
  }
  return moves;
}

// Plays the plan over the folder's names as ext4 keeps them: no step may
// land on a name in use (the renames refuse to replace), and every file
// must end where the moves said.
void ExpectSafeAndComplete(const std::vector<RenameMove>& moves, const core::RenamePlan& plan,
                           const std::set<QByteArray>& others) {
  std::set<QByteArray> present;
  for (const QByteArray& other : others) present.insert((other));
  for (const RenameMove& move : moves) {
    present.insert((move.head.from));
    for (const NamePair& c : move.companions) present.insert((c.from));
  }
  for (const core::PlannedRename& step : plan) {
    std::vector<NamePair> members{step.head};
    members.insert(members.end(), step.companions.begin(), step.companions.end());
    for (const NamePair& pair : members) {
      ASSERT_EQ(present.erase((pair.from)), 1u) << pair.from.toStdString();
      if (others.count(pair.to) == 0) {
        ASSERT_EQ(present.count((pair.to)), 0u) << pair.to.toStdString();
      }
      present.insert((pair.to));
    }
  }
  for (const RenameMove& move : moves) EXPECT_EQ(present.count((move.head.to)), 1u);
  const auto temporaries = [](const std::set<QByteArray>& names) {
    return std::count_if(names.begin(), names.end(), [](const QByteArray& n) { return n.startsWith(".renvale-swap-"); });
  };
  EXPECT_EQ(temporaries(present), temporaries(others)) << "a temporary name was left behind";
}

QByteArray Shown(const core::RenamePlan& plan) {
  QByteArrayList steps;
  for (const core::PlannedRename& step : plan) {
    QByteArray text = step.head.from + '>' + step.head.to;
    for (const NamePair& c : step.companions) text += '+' + c.from + '>' + c.to;
    steps << text;
  }
  return steps.join(' ');
}

TEST(RenamePlanner, FreesEachNameBeforeItIsTakenAndStepsAsideOnlyInCycles) {
  const struct {
    const char* moves;
    std::set<QByteArray> others;  // names in the folder outside the moves
    const char* plan;
  } rows[] = {
      // Independent moves, and a target held outside the batch, keep list
      // order: the batch asks about that one at its turn.
      {"a.jpg>x.jpg b.jpg>c.jpg", {"x.jpg"}, "a.jpg>x.jpg b.jpg>c.jpg"},
      // A name left earlier in the list is free already.
      {"a.jpg>x.jpg b.jpg>a.jpg", {}, "a.jpg>x.jpg b.jpg>a.jpg"},
      // A series that starts at 2 over 01, 02, 03.
      {"01.jpg>02.jpg 02.jpg>03.jpg 03.jpg>04.jpg", {}, "03.jpg>04.jpg 02.jpg>03.jpg 01.jpg>02.jpg"},
      {"a.jpg>b.jpg b.jpg>a.jpg", {},
       "a.jpg>.renvale-swap-1.jpg b.jpg>a.jpg .renvale-swap-1.jpg>b.jpg"},
      {"a.jpg>b.jpg b.jpg>c.jpg c.jpg>a.jpg z.jpg>y.jpg", {},
       "a.jpg>.renvale-swap-1.jpg c.jpg>a.jpg b.jpg>c.jpg .renvale-swap-1.jpg>b.jpg z.jpg>y.jpg"},
      // Two files whose names differ only in letter case trade them (ext4).
      {"a.jpg>A.jpg A.jpg>a.jpg", {},
       "a.jpg>.renvale-swap-1.jpg A.jpg>a.jpg .renvale-swap-1.jpg>A.jpg"},
      // A change of letter case alone waits for nothing.
      {"photo.jpg>Photo.jpg", {}, "photo.jpg>Photo.jpg"},
      // A set steps aside whole, in the shape the set finder pairs, avoiding
      // a temporary left by an earlier run.
      {"A.CRW>B.CRW+A.THM>B.THM+A.CRW.xmp>B.CRW.xmp B.CRW>A.CRW+B.THM>A.THM", {".renvale-swap-1.THM"},
       "A.CRW>.renvale-swap-2.CRW+A.THM>.renvale-swap-2.THM+A.CRW.xmp>.renvale-swap-2.CRW.xmp "
       "B.CRW>A.CRW+B.THM>A.THM "
       ".renvale-swap-2.CRW>B.CRW+.renvale-swap-2.THM>B.THM+.renvale-swap-2.CRW.xmp>B.CRW.xmp"},
      // Only the companion's name is held by the other file.
      {"a.jpg>b.jpg+a.xmp>b.xmp b.xmp>c.xmp", {}, "b.xmp>c.xmp a.jpg>b.jpg+a.xmp>b.xmp"},
  };
  for (const auto& row : rows) {
    const std::vector<RenameMove> moves = Moves(row.moves);
    const core::RenamePlan plan =
        core::PlanRenames(moves, [&](const QByteArray& name) { return row.others.count(name) != 0; });
    EXPECT_EQ(Shown(plan), row.plan) << row.moves;
    ExpectSafeAndComplete(moves, plan, row.others);
  }
}

}  // namespace
}  // namespace renvale::test

#include "core/RenamePlanner.h"

#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "core/AsciiFoldedName.h"

namespace renvale::core {

namespace {

const QByteArray kTemporaryBase = QByteArrayLiteral(".renvale-swap-");

using Owners = std::unordered_multimap<QByteArray, int, AsciiFoldedName, AsciiFoldedName>;

// The part of a member's name after its head's base, so that a set that
// steps aside keeps its shape: "IMG_1.CRW" and "IMG_1.THM" become
// ".renvale-swap-1.CRW" and ".renvale-swap-1.THM", as the set finder pairs them.
QByteArray TailAfterBase(const QByteArray& head, const QByteArray& member) {
  const qsizetype dot = head.lastIndexOf('.');
  const QByteArray base = dot > 0 ? head.left(dot) : head;
  if (member.size() >= base.size() && AsciiFoldedName{}(QByteArrayView(member).first(base.size()), base)) {
    return member.mid(base.size());
  }
  const qsizetype memberDot = member.lastIndexOf('.');
  return memberDot > 0 ? member.mid(memberDot) : QByteArray();
}

class Planner {
 public:
  Planner(const std::vector<RenameMove>& moves, const std::function<bool(const QByteArray&)>& taken)
      : moves_(moves), taken_(taken), current_(moves), state_(moves.size(), State::Waiting) {
    for (int i = 0; i < static_cast<int>(moves.size()); ++i) {
      for (const NamePair& pair : Members(moves[i])) {
        owners_.emplace(pair.from, i);
        used_.insert(pair.from);
        used_.insert(pair.to);
      }
    }
  }

  RenamePlan Run() {
    for (int i = 0; i < static_cast<int>(moves_.size()); ++i) {
      if (state_[i] == State::Waiting) Visit(i);
    }
    return std::move(plan_);
  }

 private:
  enum class State { Waiting, Visiting, Done };

  static std::vector<NamePair> Members(const RenameMove& move) {
    std::vector<NamePair> members{move.head};
    members.insert(members.end(), move.companions.begin(), move.companions.end());
    return members;
  }

  // Depth first without recursion: a series shifted by one over ten
  // thousand files is one chain ten thousand moves long.
  void Visit(int first) {
    std::vector<int> stack{first};
    while (!stack.empty()) {
      const int move = stack.back();
      state_[move] = State::Visiting;
      const int holder = Holder(move);
      if (holder < 0) {
        Finish(move);
        stack.pop_back();
      } else if (state_[holder] == State::Waiting) {
        stack.push_back(holder);
      } else {
        StepAside(holder);  // a cycle: the holder waits further down the stack
      }
    }
  }

  // A pending move other than `move` that holds one of its targets, or -1.
  int Holder(int move) const {
    for (const NamePair& pair : Members(current_[move])) {
      const auto [begin, end] = owners_.equal_range(pair.to);
      for (auto it = begin; it != end; ++it) {
        if (it->second != move) return it->second;
      }
    }
    return -1;
  }

  void Release(int move) {
    for (const NamePair& pair : Members(current_[move])) {
      const auto [begin, end] = owners_.equal_range(pair.from);
      for (auto it = begin; it != end; ++it) {
        if (it->second == move) {
          owners_.erase(it);
          break;
        }
      }
    }
  }

  void Finish(int move) {
    Release(move);
    const RenameMove& now = current_[move];
    const bool fromTemporary = now.head.from != moves_[move].head.from;
    plan_.push_back({move, fromTemporary ? PlannedRename::Kind::FromTemporary : PlannedRename::Kind::Direct,
                     now.head, now.companions});
    state_[move] = State::Done;
  }

  void StepAside(int move) {
    Release(move);
    RenameMove& now = current_[move];
    const QByteArray base = FreeTemporaryBase(now);
    RenameMove aside{{now.head.from, base + TailAfterBase(now.head.from, now.head.from)}, {}};
    for (const NamePair& companion : now.companions) {
      aside.companions.push_back({companion.from, base + TailAfterBase(now.head.from, companion.from)});
    }
    plan_.push_back({move, PlannedRename::Kind::ToTemporary, aside.head, aside.companions});
    now.head.from = aside.head.to;
    for (size_t i = 0; i < now.companions.size(); ++i) now.companions[i].from = aside.companions[i].to;
    for (const NamePair& pair : Members(now)) {
      owners_.emplace(pair.from, move);
      used_.insert(pair.from);
    }
  }

  QByteArray FreeTemporaryBase(const RenameMove& move) {
    for (;;) {
      const QByteArray base = kTemporaryBase + QByteArray::number(++temporaries_);
      bool free = true;
      for (const NamePair& pair : Members(move)) {
        const QByteArray name = base + TailAfterBase(move.head.from, pair.from);
        if (used_.count(name) != 0 || taken_(name)) free = false;
      }
      if (free) return base;
    }
  }

  const std::vector<RenameMove>& moves_;
  const std::function<bool(const QByteArray&)>& taken_;
  std::vector<RenameMove> current_;  // names as they stand after the steps planned so far
  std::vector<State> state_;
  Owners owners_;  // present name -> pending move that holds it
  std::unordered_set<QByteArray, AsciiFoldedName, AsciiFoldedName> used_;
  int temporaries_ = 0;
  RenamePlan plan_;
};

}  // namespace

RenamePlan PlanRenames(const std::vector<RenameMove>& moves,
                       const std::function<bool(const QByteArray&)>& taken) {
  return Planner(moves, taken).Run();
}

std::vector<PlannedTurn> TurnsInListOrder(size_t fileCount, const std::vector<size_t>& moveFile,
                                          const RenamePlan& plan) {
  std::vector<PlannedTurn> placed;
  std::vector<PlannedRename> asides;
  for (const PlannedRename& step : plan) {
    if (step.kind == PlannedRename::Kind::ToTemporary) {
      asides.push_back(step);
    } else {
      placed.push_back({moveFile[static_cast<size_t>(step.move)], std::exchange(asides, {})});
    }
  }
  std::vector<PlannedTurn> turns;
  turns.reserve(fileCount);
  size_t next = 0;
  for (size_t i = 0; i < fileCount; ++i) {
    if (next < moveFile.size() && moveFile[next] == i) {
      turns.push_back(std::move(placed[next++]));
    } else {
      turns.push_back({i, {}});
    }
  }
  return turns;
}

}  // namespace renvale::core

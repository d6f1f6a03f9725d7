#pragma once

#include <QtGlobal>
#include <functional>
#include <optional>
#include <vector>

namespace renvale::core {

// The numbers v .. v+n-1 of a randomised batch, each handed out once in a
// random order. A draw takes a random number r in [0, 1) and removes the
// k-th remaining entry, k = floor(size * r) + 1, counted in ascending order;
// so a source that always answers 0 gives v, v+1, v+2, ...
// Each draw costs O(log n), keeping a batch of many files linear in practice.
class RandomSeriesPool {
 public:
  // Answers a number in [0, 1); values outside are clamped.
  using RandomSource = std::function<double()>;

  RandomSeriesPool(qint64 first, int count, RandomSource random);

  // A source seeded from the time of day, as each batch starts a new one.
  static RandomSource TimeSeededSource();

  // The next number, or nothing when every number has been handed out.
  std::optional<qint64> Draw();
  int Size() const { return remaining_; }

 private:
  int TakeKth(int k);

  qint64 first_;
  int count_;
  int remaining_;
  // Fenwick tree over the positions 1..count_: how many are still in the pool.
  std::vector<int> tree_;
  RandomSource random_;
};

}  // namespace renvale::core

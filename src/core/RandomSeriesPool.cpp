#include "core/RandomSeriesPool.h"

#include <QTime>
#include <cmath>
#include <memory>
#include <random>

namespace renvale::core {

RandomSeriesPool::RandomSeriesPool(qint64 first, int count, RandomSource random)
    : first_(first), count_(qMax(count, 0)), remaining_(count_), tree_(count_ + 1, 0),
      random_(std::move(random)) {
  // Every position starts present: node i covers (i - lowbit(i), i].
  for (int i = 1; i <= count_; ++i) tree_[i] = i & -i;
}

RandomSeriesPool::RandomSource RandomSeriesPool::TimeSeededSource() {
  const auto seed =
      static_cast<std::mt19937::result_type>(QTime::currentTime().msecsSinceStartOfDay());
  auto engine = std::make_shared<std::mt19937>(seed);
  return [engine] { return std::generate_canonical<double, 53>(*engine); };
}

std::optional<qint64> RandomSeriesPool::Draw() {
  if (remaining_ == 0) return std::nullopt;
  double r = random_ ? random_() : 0.0;
  if (!(r >= 0.0)) r = 0.0;  // also catches NaN
  const double scaled = std::floor(static_cast<double>(remaining_) * r);
  const int k = scaled >= remaining_ ? remaining_ : static_cast<int>(scaled) + 1;
  return first_ + TakeKth(k) - 1;
}

// Finds the position of the k-th present entry and removes it.
int RandomSeriesPool::TakeKth(int k) {
  int position = 0;
  int step = 1;
  while (step * 2 <= count_) step *= 2;
  for (; step > 0; step /= 2) {
    if (position + step <= count_ && tree_[position + step] < k) {
      position += step;
      k -= tree_[position];
    }
  }
  const int found = position + 1;
  for (int i = found; i <= count_; i += i & -i) --tree_[i];
  --remaining_;
  return found;
}

}  // namespace renvale::core

#include "core/RenameRelay.h"

namespace renvale::core {

namespace {

// The first thread sleeps while it waits; waking it for every file would
// cost more than the renames save.
constexpr size_t kWakeEvery = 32;

}  // namespace

RenameRelay::RenameRelay(platform::FileSystem& fs, const QByteArray& folder) : fs_(fs), folder_(folder) {}

RenameRelay::~RenameRelay() { Join(); }

void RenameRelay::Join() {
  if (worker_.joinable()) worker_.join();
}

void RenameRelay::Start(std::vector<NamePair> pairs) {
  Join();
  pairs_ = std::move(pairs);
  errors_.assign(pairs_.size(), 0);
  settled_.store(0, std::memory_order_relaxed);
  worker_ = std::thread([this] { Work(); });
}

void RenameRelay::Work() {
  for (size_t i = 0; i < pairs_.size(); ++i) {
    errors_[i] = fs_.RenameNoReplace(folder_ + pairs_[i].from, folder_ + pairs_[i].to);
    const bool last = errors_[i] != 0 || i + 1 == pairs_.size();
    settled_.store(i + 1, std::memory_order_release);
    if (last || (i + 1) % kWakeEvery == 0) settled_.notify_all();
    if (errors_[i] != 0) return;
  }
}

size_t RenameRelay::WaitPast(size_t seen) {
  for (;;) {
    const size_t settled = settled_.load(std::memory_order_acquire);
    if (settled > seen) return settled;
    if (settled == pairs_.size() || (settled > 0 && errors_[settled - 1] != 0)) return settled;
    settled_.wait(settled, std::memory_order_acquire);
  }
}

}  // namespace renvale::core

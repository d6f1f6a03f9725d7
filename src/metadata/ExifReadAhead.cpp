#include "metadata/ExifReadAhead.h"

#include <algorithm>

namespace renvale::metadata {

ExifReadAhead::ExifReadAhead(platform::FileSystem& fs, const QByteArray& folder,
                             const std::vector<QByteArray>& rawNames, const ExifDateFormats& formats)
    : fs_(fs), folder_(folder), names_(rawNames), formats_(formats), results_(rawNames.size()),
      taken_(rawNames.size(), false) {
  positions_.reserve(static_cast<qsizetype>(names_.size()));
  // A name listed twice is read at its first place.
  for (qsizetype i = static_cast<qsizetype>(names_.size()) - 1; i >= 0; --i) positions_.insert(names_[i], i);
  reader_ = std::jthread([this](const std::stop_token& stop) { Work(stop); });
}

ExifReadAhead::~ExifReadAhead() { Drop(); }

// Far enough ahead, the reader waits rather than hold the values of a whole
// folder of a hundred thousand files at once; it goes on when half its lead
// is used up, so that it wakes once per many files, not once per file.
void ExifReadAhead::Work(const std::stop_token& stop) {
  for (size_t i = 0; i < names_.size() && !stop.stop_requested(); ++i) {
    const auto at = static_cast<qsizetype>(i);
    {
      std::unique_lock<std::mutex> hold(lock_);
      if (at >= wanted_ + kLead) {
        readerWaiting_ = true;
        mayRead_.wait(hold, [&] { return dropped_ || at < wanted_ + kLead / 2; });
        readerWaiting_ = false;
      }
      if (dropped_) return;
    }
    Result result;
    result.values = ReadExifTokenValuesQuietly(fs_, folder_, names_[i], formats_, &result.errorMessage,
                                               &result.identity, &result.identityKnown);
    const std::lock_guard<std::mutex> hold(lock_);
    results_[i] = std::move(result);
    read_ = at + 1;
    if (takerWaiting_ && read_ >= wakeAt_) fileRead_.notify_all();
  }
}

bool ExifReadAhead::Take(const QByteArray& folder, const QByteArray& rawName, const ExifDateFormats& formats,
                         Result* out) {
  if (folder != folder_ || formats.date != formats_.date || formats.time != formats_.time) return false;
  const auto found = positions_.constFind(rawName);
  if (found == positions_.cend()) return false;
  const qsizetype at = *found;
  std::unique_lock<std::mutex> hold(lock_);
  // Asking for a file lets the reader go on to it however far it lies.
  wanted_ = std::max(wanted_, at + 1);
  if (readerWaiting_ && read_ < wanted_ + kLead / 2) mayRead_.notify_all();
  // A taker that has caught up waits for a run of files rather than for
  // the next one: woken per file, the two threads would hand over at every
  // file, which costs more than the reads.
  if (read_ <= at) {
    wakeAt_ = std::min(at + kWakeRun, static_cast<qsizetype>(names_.size()));
    takerWaiting_ = true;
    fileRead_.wait(hold, [&] { return dropped_ || read_ >= wakeAt_; });
    takerWaiting_ = false;
  }
  if (dropped_ || taken_[static_cast<size_t>(at)]) return false;
  taken_[static_cast<size_t>(at)] = true;
  *out = std::move(results_[static_cast<size_t>(at)]);
  return true;
}

bool ExifReadAhead::Ready(const QByteArray& rawName) {
  const auto found = positions_.constFind(rawName);
  if (found == positions_.cend()) return true;
  const std::lock_guard<std::mutex> hold(lock_);
  return dropped_ || read_ > *found;
}

void ExifReadAhead::Drop() {
  {
    const std::lock_guard<std::mutex> hold(lock_);
    if (dropped_) return;
    dropped_ = true;
    mayRead_.notify_all();
    fileRead_.notify_all();
  }
  reader_.request_stop();
  if (reader_.joinable()) reader_.join();
}

}  // namespace renvale::metadata

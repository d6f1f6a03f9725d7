#include "metadata/ExifReadAhead.h"

#include <algorithm>

namespace renvale::metadata {

ExifReadAhead::ExifReadAhead(platform::FileSystem& fs, const QByteArray& folder,
                             std::vector<QByteArray> rawNames, const ExifDateFormats& formats,
                             ExifReader::Identity identity)
    : fs_(fs), folder_(folder), held_(fs.HoldFolder(folder)), names_(std::move(rawNames)), formats_(formats),
      identity_(identity),
      results_(names_.size()), done_(names_.size(), 0), taken_(names_.size(), false) {
  reader_ = std::jthread([this](const std::stop_token& stop) { Work(stop); });
}

qsizetype ExifReadAhead::PositionOf(const QByteArray& rawName, bool taking) {
  const auto next = static_cast<size_t>(lastTaken_ + 1);
  qsizetype at = -1;
  if (next < names_.size() && names_[next] == rawName) {
    at = lastTaken_ + 1;
  } else {
    if (positions_.isEmpty()) {
      positions_.reserve(static_cast<qsizetype>(names_.size()));
      // A name listed twice is found at its first place.
      for (qsizetype i = static_cast<qsizetype>(names_.size()) - 1; i >= 0; --i) positions_.insert(names_[i], i);
    }
    at = positions_.value(rawName, -1);
  }
  if (taking && at >= 0) lastTaken_ = at;
  return at;
}

ExifReadAhead::~ExifReadAhead() { Drop(); }

// Far enough ahead, the reader waits rather than hold the values of a whole
// folder of a hundred thousand files at once; it goes on when half its lead
// is used up, so that it wakes once per many files, not once per file.
void ExifReadAhead::Work(const std::stop_token& stop) {
  std::unique_lock<std::mutex> hold(lock_);
  while (!stop.stop_requested()) {
    if (next_ >= wanted_ + kReaderLead) {
      readerWaiting_ = true;
      mayRead_.wait(hold, [&] { return dropped_ || next_ < wanted_ + kReaderLead / 2; });
      readerWaiting_ = false;
    }
    if (!ReadNext(hold, std::clamp<qsizetype>(wanted_ + kReaderLead - next_, 1, kReaderClaims))) return;
  }
}

// Files are claimed in list order, so that every file before those being
// read is done. Each claim and each hand-over takes the lock the taker
// takes for every file, and passing it between the processors costs about
// as much as reading a small file's head: the reader claims several files
// at once, the taker, which reads only while its own file is not there
// yet, one.
bool ExifReadAhead::ReadNext(std::unique_lock<std::mutex>& hold, qsizetype most) {
  if (dropped_ || next_ >= static_cast<qsizetype>(names_.size())) return false;
  const qsizetype from = next_;
  const qsizetype count = std::min({most, kReaderClaims, static_cast<qsizetype>(names_.size()) - from});
  next_ += count;
  std::unique_ptr<Result> results[kReaderClaims];
  for (qsizetype i = 0; i < count && !spare_.empty(); ++i) {
    results[i] = std::move(spare_.back());
    spare_.pop_back();
  }
  hold.unlock();
  // Reading dropped meanwhile stops at the file at hand: on a slow share the
  // rest of the claim could keep the batch waiting.
  qsizetype read = 0;
  for (; read < count && (read == 0 || !reader_.get_stop_token().stop_requested()); ++read) {
    if (results[read] == nullptr) results[read] = std::make_unique<Result>();
    Read(static_cast<size_t>(from + read), results[read].get());
  }
  hold.lock();
  for (qsizetype i = 0; i < read; ++i) {
    const auto at = static_cast<size_t>(from + i);
    results_[at] = std::move(results[i]);
    done_[at] = 1;
  }
  if (waitingFor_ >= from && waitingFor_ < from + read) fileRead_.notify_all();
  return true;
}

void ExifReadAhead::Read(size_t at, Result* result) const {
  *result = Result();
  platform::FileInfo* identity = identity_ == ExifReader::Identity::Wanted ? &result->identity : nullptr;
  result->values = ReadExifTokenValuesQuietly(fs_, *held_, folder_, names_[at], formats_, &result->errorMessage,
                                              identity, &result->identityKnown);
}

bool ExifReadAhead::Take(const QByteArray& folder, const QByteArray& rawName, const ExifDateFormats& formats,
                         Result* out) {
  if (folder != folder_ || formats.date != formats_.date || formats.time != formats_.time) return false;
  const qsizetype at = PositionOf(rawName, true);
  if (at < 0) return false;
  std::unique_lock<std::mutex> hold(lock_);
  // Asking for a file lets the reader go on to it however far it lies.
  wanted_ = std::max(wanted_, at + 1);
  if (readerWaiting_ && next_ < wanted_ + kReaderLead / 2) mayRead_.notify_all();
  // Sleeping until the reader gets there would leave this thread's
  // processor idle; the reader is then busy with the file asked for or one
  // before it, so this thread reads the ones after. It sleeps only for the
  // last files, or when the reader is stuck on one file (a slow disk) and
  // this thread has got a lead ahead of it.
  const auto isDone = [&] { return dropped_ || done_[static_cast<size_t>(at)] != 0; };
  while (!isDone() && next_ < at + kTakerLead && ReadNext(hold, 1)) {
  }
  if (!isDone()) {
    waitingFor_ = at;
    fileRead_.wait(hold, isDone);
    waitingFor_ = -1;
  }
  if (dropped_ || taken_[static_cast<size_t>(at)]) return false;
  taken_[static_cast<size_t>(at)] = true;
  *out = std::move(*results_[static_cast<size_t>(at)]);
  spare_.push_back(std::move(results_[static_cast<size_t>(at)]));
  return true;
}

bool ExifReadAhead::Ready(const QByteArray& rawName) {
  const qsizetype at = PositionOf(rawName, false);
  if (at < 0) return true;
  const std::lock_guard<std::mutex> hold(lock_);
  return dropped_ || done_[static_cast<size_t>(at)] != 0;
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

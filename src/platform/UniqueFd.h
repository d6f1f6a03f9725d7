#pragma once

namespace renvale::platform {

// Owns one open file descriptor and closes it when it goes out of scope.
// Release() hands the descriptor back when its close result matters.
class UniqueFd {
 public:
  explicit UniqueFd(int fd = -1) : fd_(fd) {}
  ~UniqueFd();
  UniqueFd(const UniqueFd&) = delete;
  UniqueFd& operator=(const UniqueFd&) = delete;
  UniqueFd(UniqueFd&& other) noexcept : fd_(other.Release()) {}
  UniqueFd& operator=(UniqueFd&& other) noexcept;

  int get() const { return fd_; }
  bool valid() const { return fd_ >= 0; }
  int Release();

 private:
  int fd_;
};

}  // namespace renvale::platform

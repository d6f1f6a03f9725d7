#include "platform/UniqueFd.h"

#include <unistd.h>

namespace renvale::platform {

UniqueFd::~UniqueFd() {
  if (fd_ >= 0) ::close(fd_);
}

UniqueFd& UniqueFd::operator=(UniqueFd&& other) noexcept {
  if (this != &other) {
    if (fd_ >= 0) ::close(fd_);
    fd_ = other.Release();
  }
  return *this;
}

int UniqueFd::Release() {
  const int fd = fd_;
  fd_ = -1;
  return fd;
}

}  // namespace renvale::platform

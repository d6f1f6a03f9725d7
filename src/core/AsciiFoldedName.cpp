#include "core/AsciiFoldedName.h"

#include <cstdint>

namespace renvale::core {

namespace {

constexpr unsigned char Fold(char c) {
  const auto u = static_cast<unsigned char>(c);
  return u >= 'A' && u <= 'Z' ? static_cast<unsigned char>(u + ('a' - 'A')) : u;
}

}  // namespace

std::size_t AsciiFoldedName::operator()(QByteArrayView name) const {
  // FNV-1a: names are short, and it needs no set-up.
  std::uint64_t hash = 14695981039346656037ull;
  for (char c : name) {
    hash ^= Fold(c);
    hash *= 1099511628211ull;
  }
  return static_cast<std::size_t>(hash);
}

bool AsciiFoldedName::operator()(QByteArrayView a, QByteArrayView b) const noexcept {
  if (a.size() != b.size()) return false;
  for (qsizetype i = 0; i < a.size(); ++i) {
    if (Fold(a[i]) != Fold(b[i])) return false;
  }
  return true;
}

bool AsciiFoldedName::EndsWith(QByteArrayView name, QByteArrayView lowerSuffix) noexcept {
  return name.size() >= lowerSuffix.size() &&
         AsciiFoldedName()(name.last(lowerSuffix.size()), lowerSuffix);
}

}  // namespace renvale::core

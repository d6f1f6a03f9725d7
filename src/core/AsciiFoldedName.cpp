#include "core/AsciiFoldedName.h"

#include <cstdint>
#include <cstring>

namespace renvale::core {

namespace {

constexpr unsigned char Fold(char c) {
  const auto u = static_cast<unsigned char>(c);
  return u >= 'A' && u <= 'Z' ? static_cast<unsigned char>(u + ('a' - 'A')) : u;
}

constexpr std::uint64_t kEveryByte = 0x0101010101010101ull;

// Eight bytes at once, their ASCII capitals made small. A byte's low seven
// bits plus 0x3f reach its top bit from "A" on, plus 0x25 from past "Z";
// neither sum carries into the next byte, and a byte whose own top bit is
// set is no ASCII letter.
constexpr std::uint64_t FoldWord(std::uint64_t word) {
  const std::uint64_t low = word & (0x7f * kEveryByte);
  const std::uint64_t capital = (low + 0x3f * kEveryByte) & ~(low + 0x25 * kEveryByte) & ~word & (0x80 * kEveryByte);
  return word | (capital >> 2);
}

// The bytes from `at` on, at most eight, as one word; zeros past the end.
std::uint64_t WordAt(QByteArrayView name, qsizetype at) {
  std::uint64_t word = 0;
  const qsizetype left = name.size() - at;
  if (left >= 8) {
    std::memcpy(&word, name.data() + at, sizeof word);
    return word;
  }
  for (qsizetype i = 0; i < left; ++i) {
    word |= static_cast<std::uint64_t>(static_cast<unsigned char>(name[at + i])) << (8 * i);
  }
  return word;
}

}  // namespace

// A word at a time: every file of a card is looked up by name several times.
std::size_t AsciiFoldedName::operator()(QByteArrayView name) const {
  std::uint64_t hash = 14695981039346656037ull ^ static_cast<std::uint64_t>(name.size());
  for (qsizetype at = 0; at < name.size(); at += 8) {
    hash = (hash ^ FoldWord(WordAt(name, at))) * 0x9e3779b97f4a7c15ull;
    hash ^= hash >> 29;
  }
  return static_cast<std::size_t>(hash);
}

bool AsciiFoldedName::operator()(QByteArrayView a, QByteArrayView b) const noexcept {
  if (a.size() != b.size()) return false;
  qsizetype at = 0;
  for (; at + 8 <= a.size(); at += 8) {
    if (FoldWord(WordAt(a, at)) != FoldWord(WordAt(b, at))) return false;
  }
  for (; at < a.size(); ++at) {
    if (Fold(a[at]) != Fold(b[at])) return false;
  }
  return true;
}

bool AsciiFoldedName::EndsWith(QByteArrayView name, QByteArrayView lowerSuffix) noexcept {
  return name.size() >= lowerSuffix.size() &&
         AsciiFoldedName()(name.last(lowerSuffix.size()), lowerSuffix);
}

}  // namespace renvale::core

#include "core/NaturalOrder.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace renvale::core {

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
char Fold(char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c + ('a' - 'A')) : c; }

int CompareBytes(const char* a, size_t aLength, const char* b, size_t bLength) {
  const int c = std::memcmp(a, b, std::min(aLength, bLength));
  if (c != 0) return c;
  return aLength < bLength ? -1 : (aLength > bLength ? 1 : 0);
}

int CompareRaw(const QByteArray& a, const QByteArray& b) {
  return CompareBytes(a.constData(), size_t(a.size()), b.constData(), size_t(b.size()));
}

// The first eight key bytes, big-endian, so most comparisons during the sort
// settle on one integer without touching the key buffer.
uint64_t KeyPrefix(const char* key, size_t length) {
  uint64_t prefix = 0;
  for (size_t i = 0; i < 8; ++i) {
    prefix <<= 8;
    if (i < length) prefix |= static_cast<unsigned char>(key[i]);
  }
  return prefix;
}

struct SortEntry {
  uint64_t prefix;
  uint32_t offset;
  uint32_t length;
  uint32_t index;
};

}  // namespace

void AppendNaturalKey(const QByteArray& name, std::string* key) {
  const char* p = name.constData();
  const char* const end = p + name.size();
  while (p < end) {
    if (!IsDigit(*p)) {
      key->push_back(Fold(*p++));
      continue;
    }
    const char* significant = p;
    while (p < end && IsDigit(*p)) ++p;
    while (significant < p && *significant == '0') ++significant;
    // Longer runs than 255 digits cannot occur in a 255-byte file name.
    const size_t count = std::min<size_t>(size_t(p - significant), 255);
    key->push_back('0');
    key->push_back(static_cast<char>(count));
    key->append(significant, count);
  }
}

std::vector<size_t> NaturalOrder(const std::vector<QByteArray>& names) {
  std::string keys;
  keys.reserve(names.size() * 24);
  std::vector<SortEntry> entries(names.size());
  for (size_t i = 0; i < names.size(); ++i) {
    const size_t offset = keys.size();
    AppendNaturalKey(names[i], &keys);
    entries[i] = {0, uint32_t(offset), uint32_t(keys.size() - offset), uint32_t(i)};
  }
  for (SortEntry& entry : entries) entry.prefix = KeyPrefix(keys.data() + entry.offset, entry.length);
  const char* base = keys.data();
  std::sort(entries.begin(), entries.end(), [&](const SortEntry& a, const SortEntry& b) {
    if (a.prefix != b.prefix) return a.prefix < b.prefix;
    const int byKey = CompareBytes(base + a.offset, a.length, base + b.offset, b.length);
    if (byKey != 0) return byKey < 0;
    return CompareRaw(names[a.index], names[b.index]) < 0;
  });
  std::vector<size_t> order(entries.size());
  for (size_t i = 0; i < entries.size(); ++i) order[i] = entries[i].index;
  return order;
}

bool NaturalLess(const QByteArray& a, const QByteArray& b) {
  std::string aKey;
  std::string bKey;
  AppendNaturalKey(a, &aKey);
  AppendNaturalKey(b, &bKey);
  const int byKey = CompareBytes(aKey.data(), aKey.size(), bKey.data(), bKey.size());
  return byKey != 0 ? byKey < 0 : CompareRaw(a, b) < 0;
}

}  // namespace renvale::core

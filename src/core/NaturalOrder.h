#pragma once

#include <QByteArray>
#include <string>
#include <vector>

namespace renvale::core {

// The file list's order: ASCII letter case ignored, runs of digits compared
// by their value (IMG_9 before IMG_10), and names that still tie (IMG_01
// and IMG_1, photo and PHOTO) ordered by their raw bytes so the order never
// depends on the order the folder was read in. Bytes beyond ASCII compare
// by value.
//
// Each name is turned once into a key that compares correctly with plain
// memcmp: letters folded to lower case, and every digit run written as a
// '0' (so it sorts against other characters as any digit would), the count
// of its significant digits as one byte, then those digits.
void AppendNaturalKey(const QByteArray& name, std::string* key);

// Indices into `names`, in display order.
std::vector<size_t> NaturalOrder(const std::vector<QByteArray>& names);

bool NaturalLess(const QByteArray& a, const QByteArray& b);

}  // namespace renvale::core

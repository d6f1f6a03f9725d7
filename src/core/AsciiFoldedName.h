#pragma once

#include <QByteArrayView>
#include <cstddef>

namespace renvale::core {

// Hashes and compares raw file names as if ASCII letters were lower case,
// so that hash containers can look names up without regard to case without
// first making a lower-cased copy of every name. It serves as both the hash
// and the equality of such a container; it accepts any byte view, so a
// lookup needs no QByteArray either.
struct AsciiFoldedName {
  using is_transparent = void;

  // Deliberately not noexcept: the standard library then keeps each name's
  // hash beside it instead of hashing every name it passes in a bucket.
  std::size_t operator()(QByteArrayView name) const;
  bool operator()(QByteArrayView a, QByteArrayView b) const noexcept;

  // True when `name` ends with `lowerSuffix` (given in lower case).
  static bool EndsWith(QByteArrayView name, QByteArrayView lowerSuffix) noexcept;
};

}  // namespace renvale::core

#pragma once

#include <QByteArray>
#include <QString>
#include <array>

namespace renvale::fileops {

// The six search-and-replace pairs of one run, as the bytes they stand for
// in a name: names are bytes, the terms are typed text, so a term becomes
// bytes the way a shown name does (UTF-8, and a stray byte copied from the
// list back to that byte), and every byte of a name that no term touches
// stays as it was, even where the name is not valid UTF-8.
class SearchTerms {
 public:
  static constexpr int kCount = 6;

  // Pair `index` (0 to 5) from the dialog's fields.
  void Set(int index, const QString& search, const QString& replacement);

  // False when every search field is empty. A field of blanks is not empty.
  bool AnyFilled() const;

  // `name` after each filled pair in turn: a later pair sees what the ones
  // before it made, also what they inserted.
  QByteArray Apply(const QByteArray& name) const;

 private:
  std::array<QByteArray, kCount> search_;
  std::array<QByteArray, kCount> replacement_;
};

}  // namespace renvale::fileops

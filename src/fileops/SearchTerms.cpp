#include "fileops/SearchTerms.h"

#include "fileops/ReplaceAll.h"
#include "platform/FileName.h"

namespace renvale::fileops {

void SearchTerms::Set(int index, const QString& search, const QString& replacement) {
  if (index < 0 || index >= kCount) return;
  search_[static_cast<size_t>(index)] = platform::FileName::TextToName(search);
  replacement_[static_cast<size_t>(index)] = platform::FileName::TextToName(replacement);
}

bool SearchTerms::AnyFilled() const {
  for (const QByteArray& search : search_) {
    if (!search.isEmpty()) return true;
  }
  return false;
}

QByteArray SearchTerms::Apply(const QByteArray& name) const {
  QByteArray working = name;
  for (size_t k = 0; k < search_.size(); ++k) {
    if (!search_[k].isEmpty()) working = ReplaceAll(working, search_[k], replacement_[k]);
  }
  return working;
}

}  // namespace renvale::fileops

#include "fileops/ReplaceAll.h"

namespace renvale::fileops {

QByteArray ReplaceAll(const QByteArray& text, const QByteArray& search, const QByteArray& replacement) {
  if (search.isEmpty()) return text;
  qsizetype found = text.indexOf(search);
  if (found < 0) return text;
  QByteArray result;
  result.reserve(text.size() + replacement.size());
  qsizetype from = 0;
  while (found >= 0) {
    result.append(text.constData() + from, found - from);
    result.append(replacement);
    from = found + search.size();
    found = text.indexOf(search, from);
  }
  result.append(text.constData() + from, text.size() - from);
  return result;
}

}  // namespace renvale::fileops

#include "platform/PathParts.h"

namespace renvale::platform {

namespace {

qsizetype EndWithoutSlashes(const QByteArray& path) {
  qsizetype end = path.size();
  while (end > 1 && path[end - 1] == '/') --end;
  return end;
}

}  // namespace

QByteArray BaseName(const QByteArray& path) {
  const qsizetype end = EndWithoutSlashes(path);
  const qsizetype slash = path.lastIndexOf('/', end - 1);
  if (end == 1 && path.startsWith('/')) return QByteArray("/");
  return path.mid(slash + 1, end - slash - 1);
}

QByteArray ParentFolder(const QByteArray& path) {
  const qsizetype end = EndWithoutSlashes(path);
  const qsizetype slash = path.lastIndexOf('/', end - 1);
  if (slash < 0) return QByteArray("./");
  return path.left(slash + 1);
}

}  // namespace renvale::platform

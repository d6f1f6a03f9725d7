#include "shell/StartPath.h"

#include <vector>

#include "platform/ErrorNumbers.h"
#include "platform/FileSystem.h"

namespace renvale::shell {
namespace {

// "/a/./b//c/../" -> "/a/b/": the folder pane shows the path as it is kept,
// so it is kept without the dots a shell or a relative argument leaves.
// Works on the bytes, which need not be valid UTF-8.
QByteArray CleanAbsolute(const QByteArray& path) {
  std::vector<QByteArray> parts;
  for (const QByteArray& part : path.split('/')) {
    if (part.isEmpty() || part == ".") continue;
    if (part == "..") {
      if (!parts.empty()) parts.pop_back();
      continue;
    }
    parts.push_back(part);
  }
  QByteArray clean;
  for (const QByteArray& part : parts) clean += '/' + part;
  return clean.isEmpty() ? QByteArrayLiteral("/") : clean;
}

bool CanList(platform::FileSystem& fs, const QByteArray& folder) {
  std::vector<QByteArray> names;
  return fs.ListFiles(folder, &names) == platform::kNoError;
}

}  // namespace

StartPlace ResolveStartPath(platform::FileSystem& fs, const QByteArray& path) {
  if (!path.startsWith('/')) return {};
  const QByteArray clean = CleanAbsolute(path);
  platform::FileInfo info;
  if (fs.Stat(clean, &info) != platform::kNoError) return {};
  if (info.isDir) {
    const QByteArray folder = clean.endsWith('/') ? clean : clean + '/';
    return CanList(fs, folder) ? StartPlace{folder, {}} : StartPlace{};
  }
  const qsizetype slash = clean.lastIndexOf('/');
  const QByteArray folder = clean.left(slash + 1);
  return CanList(fs, folder) ? StartPlace{folder, clean.mid(slash + 1)} : StartPlace{};
}

}  // namespace renvale::shell

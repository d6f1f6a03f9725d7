#include "shell/FolderBrowsing.h"

#include <QFile>

#include "platform/ErrorNumbers.h"
#include "platform/FileSystem.h"
#include "shell/ShellTexts.h"

namespace renvale::shell {

QByteArray WithTrailingSlash(QByteArray folder) {
  if (!folder.endsWith('/')) folder.append('/');
  return folder;
}

FolderChoice ResolvePickedFolder(const QString& pickerResult) {
  if (pickerResult.isEmpty()) return {};
  if (pickerResult.startsWith(QStringLiteral("::"))) return {{}, texts::kInvalidFolderChosen};
  return {WithTrailingSlash(QFile::encodeName(pickerResult)), {}};
}

FolderChoice ResolveDrop(platform::FileSystem& fs, const QList<QUrl>& urls) {
  if (urls.isEmpty()) return {};
  const QUrl& first = urls.front();
  if (!first.isLocalFile()) return {{}, texts::kOnlyDrivesOrFolders};
  QByteArray path = QFile::encodeName(first.toLocalFile());
  if (path.isEmpty()) return {};
  platform::FileInfo info;
  if (fs.Stat(path, &info) != platform::kNoError) return {{}, texts::kOnlyDrivesOrFolders};
  if (!info.isDir) {
    while (path.size() > 1 && path.endsWith('/')) path.chop(1);
    path.truncate(path.lastIndexOf('/') + 1);
  }
  return {WithTrailingSlash(path), {}};
}

QByteArray NearestExistingFolder(platform::FileSystem& fs, const QByteArray& folder) {
  QByteArray candidate = WithTrailingSlash(folder);
  while (candidate.size() > 1) {
    platform::FileInfo info;
    if (fs.Stat(candidate, &info) == platform::kNoError && info.isDir) return candidate;
    candidate.chop(1);
    candidate.truncate(candidate.lastIndexOf('/') + 1);
  }
  return QByteArrayLiteral("/");
}

std::vector<FolderRow> FolderRowsFor(const QByteArray& folder, const std::vector<QByteArray>& subfolders) {
  std::vector<FolderRow> rows;
  rows.push_back({QByteArrayLiteral("/"), QStringLiteral("/"), 0, folder == "/"});
  QByteArray path = QByteArrayLiteral("/");
  int depth = 0;
  for (const QByteArray& part : folder.split('/')) {
    if (part.isEmpty()) continue;
    path += part + '/';
    rows.push_back({path, platform::FileName::NameToText(part), ++depth, path == folder});
  }
  for (const QByteArray& name : subfolders) {
    rows.push_back({folder + name + '/', platform::FileName::NameToText(name), depth + 1, false});
  }
  return rows;
}

}  // namespace renvale::shell

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QByteArray>
#include <QFile>
#include <QStandardPaths>
#include <vector>

#include "platform/ErrorNumbers.h"
#include "platform/FileSystem.h"
#include "platform/NoReplaceRename.h"
#include "platform/PathParts.h"
#include "platform/Trash.h"

namespace renvale::platform {

namespace {

struct TrashItem {
  QByteArray file;  // in the trash's files/ folder
  QByteArray info;  // its .trashinfo
  QByteArray deleted;  // DeletionDate, ISO text: sorts by time
};

// The folder that starts the medium `path` lies on: the highest parent on
// the same device.
QByteArray MediumTop(const QByteArray& path) {
  struct stat start {};
  QByteArray top = ParentFolder(path);
  if (::stat(top.constData(), &start) != 0) return {};
  while (top.size() > 1) {
    const QByteArray parent = ParentFolder(top.chopped(1));
    struct stat up {};
    if (parent.isEmpty() || ::stat(parent.constData(), &up) != 0 || up.st_dev != start.st_dev) break;
    top = parent;
  }
  return top;
}

std::vector<QByteArray> TrashFolders(const QByteArray& path) {
  const QByteArray uid = QByteArray::number(::getuid());
  std::vector<QByteArray> folders{
      QFile::encodeName(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)) + "/Trash/"};
  const QByteArray top = MediumTop(path);
  if (!top.isEmpty()) {
    folders.push_back(top + ".Trash-" + uid + '/');
    folders.push_back(top + ".Trash/" + uid + '/');
  }
  return folders;
}

// The Path= line of a .trashinfo, relative ones against the medium's top.
QByteArray OriginalPathOf(const QByteArray& info, const QByteArray& top, QByteArray* deleted) {
  QByteArray path;
  for (const QByteArray& line : info.split('\n')) {
    if (line.startsWith("Path=")) path = QByteArray::fromPercentEncoding(line.mid(5).trimmed());
    if (line.startsWith("DeletionDate=")) *deleted = line.mid(13).trimmed();
  }
  if (!path.isEmpty() && !path.startsWith('/')) path = top + path;
  return path;
}

void Collect(const QByteArray& trash, const QByteArray& originalPath, qint64 size, std::vector<TrashItem>* items) {
  FileSystem& fs = RealFileSystem();
  std::vector<QByteArray> names;
  if (fs.ListFiles(trash + "info/", &names) != 0) return;
  const QByteArray top = MediumTop(originalPath);
  for (const QByteArray& name : names) {
    if (!name.endsWith(".trashinfo")) continue;
    QByteArray text;
    if (fs.ReadWholeFile(trash + "info/" + name, 1 << 16, &text) != 0) continue;
    TrashItem item{trash + "files/" + name.chopped(10), trash + "info/" + name, {}};
    if (OriginalPathOf(text, top, &item.deleted) != originalPath) continue;
    FileInfo info;
    if (fs.Stat(item.file, &info) != 0 || info.isDir || info.size != size) continue;
    items->push_back(item);
  }
}

}  // namespace

int RestoreFromTrash(const QByteArray& originalPath, qint64 size) {
  std::vector<TrashItem> items;
  for (const QByteArray& trash : TrashFolders(originalPath)) Collect(trash, originalPath, size, &items);
  if (items.empty()) return kFileNotFound;
  const TrashItem* newest = &items.front();
  for (const TrashItem& item : items) {
    if (item.deleted > newest->deleted) newest = &item;
  }
  if (const int error = RenameWithoutReplacing(newest->file, originalPath)) return error;
  RealFileSystem().RemoveFile(newest->info);
  return kNoError;
}

}  // namespace renvale::platform

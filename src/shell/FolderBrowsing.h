#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QUrl>
#include <vector>

namespace renvale::platform {
class FileSystem;
}

namespace renvale::shell {

// One line of the folder list `Dir1`: the ancestors of the current folder
// from the root down, the current folder, then its sub-folders.
struct FolderRow {
  QByteArray path;  // raw, with trailing '/'
  QString label;
  int depth = 0;
  bool current = false;
};

// Where a browsing gesture leads: a folder to open, or a message to show.
// Both empty: nothing to do (a cancelled picker, an empty drop).
struct FolderChoice {
  QByteArray folder;
  QString message;
};

QByteArray WithTrailingSlash(QByteArray folder);

// The folder picker's answer; "::" marks a place that is not a local folder.
FolderChoice ResolvePickedFolder(const QString& pickerResult);

// Only the first dropped item counts. A folder is opened as it is, a file
// opens its own folder, and anything that is not a local file or folder is
// refused with the drop message.
FolderChoice ResolveDrop(platform::FileSystem& fs, const QList<QUrl>& urls);

// A remembered folder may have gone (a card taken out, a folder deleted):
// the nearest ancestor that still exists, or "/" at worst.
QByteArray NearestExistingFolder(platform::FileSystem& fs, const QByteArray& folder);

// `subfolders` are the bare names of the folder's sub-folders, already sorted.
std::vector<FolderRow> FolderRowsFor(const QByteArray& folder, const std::vector<QByteArray>& subfolders);

}  // namespace renvale::shell

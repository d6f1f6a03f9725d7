#include "platform/MountList.h"

#include <dirent.h>
#include <pwd.h>
#include <unistd.h>

#include <QList>
#include <cstdlib>

#include "platform/FileSystem.h"
#include "platform/PathParts.h"

namespace renvale::platform {

namespace {

// How each kind of volume is named in the drive box; %1 is the name.
struct VolumeLabelTexts {
  QString root = QStringLiteral("/ [File System]");
  QString home = QStringLiteral("%1 [Home]");
  QString removable = QStringLiteral("%1 [Removable]");
  QString network = QStringLiteral("%1 [Network]");
};
const VolumeLabelTexts kLabels;

const char* const kRemovableRoots[] = {"/media/", "/run/media/"};

const char* const kNetworkTypes[] = {
    "cifs", "smb3", "smbfs", "nfs", "nfs4", "ncpfs", "afs", "ceph", "9p", "davfs",
    "fuse.sshfs", "fuse.gvfsd-fuse", "fuse.rclone", "fuse.glusterfs", "fuse.s3fs",
};

constexpr qint64 kMountInfoMax = 16 * 1024 * 1024;

bool IsOctal(char c) { return c >= '0' && c <= '7'; }

// The kernel writes blank, tab, newline and backslash in paths as \ooo.
QByteArray DecodeMountField(const QByteArray& field) {
  QByteArray out;
  out.reserve(field.size());
  for (qsizetype i = 0; i < field.size(); ++i) {
    if (field[i] == '\\' && i + 3 < field.size() && IsOctal(field[i + 1]) &&
        IsOctal(field[i + 2]) && IsOctal(field[i + 3])) {
      out += static_cast<char>(((field[i + 1] - '0') << 6) | ((field[i + 2] - '0') << 3) |
                               (field[i + 3] - '0'));
      i += 3;
    } else {
      out += field[i];
    }
  }
  return out;
}

// Fields: id parent dev root mountpoint options [optional...] - type source super.
bool ParseMountLine(const QByteArray& line, MountEntry* entry) {
  const QList<QByteArray> fields = line.split(' ');
  const qsizetype separator = fields.indexOf(QByteArray("-"), 6);
  if (fields.size() < 5 || separator < 0 || separator + 2 >= fields.size()) return false;
  entry->mountPoint = DecodeMountField(fields[4]);
  entry->fsType = fields[separator + 1];
  entry->source = DecodeMountField(fields[separator + 2]);
  return true;
}

QByteArray WithSlash(const QByteArray& path) { return path.endsWith('/') ? path : path + '/'; }

bool IsRemovablePlace(const QByteArray& mountPoint) {
  const QByteArray path = WithSlash(mountPoint);
  for (const char* root : kRemovableRoots) {
    if (path.startsWith(root) && path.size() > qsizetype(qstrlen(root))) return true;
  }
  return false;
}

bool IsNetworkType(const QByteArray& type) {
  for (const char* known : kNetworkTypes) {
    if (type == known) return true;
  }
  return false;
}

// A share's source ("//server/share", "host:/export") says more than its
// mount point; a bare daemon name ("gvfsd-fuse") does not.
QString NetworkName(const MountEntry& mount) {
  const bool speaking = mount.source.contains('/') || mount.source.contains(':');
  return QString::fromUtf8(speaking ? mount.source : mount.mountPoint);
}

Volume VolumeFor(const MountEntry& mount, VolumeKind kind) {
  Volume volume{WithSlash(mount.mountPoint), QString(), kind};
  if (kind == VolumeKind::Removable)
    volume.label = kLabels.removable.arg(QString::fromUtf8(BaseName(mount.mountPoint)));
  else
    volume.label = kLabels.network.arg(NetworkName(mount));
  return volume;
}

void AddUnlessListed(std::vector<Volume>* volumes, Volume volume) {
  for (const Volume& listed : *volumes) {
    if (listed.path == volume.path) return;
  }
  volumes->push_back(std::move(volume));
}

QByteArray HomeFolder() {
  if (const char* home = std::getenv("HOME"); home != nullptr && *home != '\0') return home;
  const passwd* entry = ::getpwuid(::getuid());
  return entry != nullptr ? QByteArray(entry->pw_dir) : QByteArray("/");
}

}  // namespace

std::vector<MountEntry> MountList::ParseMountInfo(const QByteArray& text) {
  std::vector<MountEntry> mounts;
  for (const QByteArray& line : text.split('\n')) {
    MountEntry entry;
    if (ParseMountLine(line, &entry)) mounts.push_back(std::move(entry));
  }
  return mounts;
}

std::vector<Volume> MountList::Browsable(const std::vector<MountEntry>& mounts, const QByteArray& home) {
  std::vector<Volume> volumes{{"/", kLabels.root, VolumeKind::Root}};
  if (WithSlash(home) != "/")
    AddUnlessListed(&volumes, {WithSlash(home), kLabels.home.arg(QString::fromUtf8(home)), VolumeKind::Home});
  for (const MountEntry& mount : mounts) {
    if (IsRemovablePlace(mount.mountPoint)) AddUnlessListed(&volumes, VolumeFor(mount, VolumeKind::Removable));
  }
  for (const MountEntry& mount : mounts) {
    if (IsNetworkType(mount.fsType) && !IsRemovablePlace(mount.mountPoint))
      AddUnlessListed(&volumes, VolumeFor(mount, VolumeKind::Network));
  }
  return volumes;
}

std::vector<Volume> MountList::Current() {
  QByteArray text;
  // Without mountinfo (an unusual sandbox) the fixed entries still show.
  RealFileSystem().ReadWholeFile("/proc/self/mountinfo", kMountInfoMax, &text);
  return Browsable(ParseMountInfo(text), HomeFolder());
}

bool MountList::IsReadable(const QByteArray& path) {
  DIR* dir = ::opendir(path.constData());
  if (dir == nullptr) return false;
  ::closedir(dir);
  return true;
}

int MountList::ContainingVolume(const std::vector<Volume>& volumes, const QByteArray& folder) {
  const QByteArray path = WithSlash(folder);
  int best = -1;
  for (size_t i = 0; i < volumes.size(); ++i) {
    if (!path.startsWith(volumes[i].path)) continue;
    if (best < 0 || volumes[i].path.size() > volumes[size_t(best)].path.size()) best = int(i);
  }
  return best;
}

}  // namespace renvale::platform

// GIO's headers use `signals` as a plain name, which Qt's headers turn into a
// keyword macro; so GIO comes first.
#include <gio/gio.h>
#include <gio/gunixmounts.h>

#include "platform/MountList.h"

#include <dirent.h>
#include <pwd.h>
#include <unistd.h>

#include <cstdlib>

#include "platform/NetworkKinds.h"

namespace renvale::platform {

namespace {

// How the two fixed entries are named in the drive box; %1 is the folder.
struct VolumeLabelTexts {
  QString root = QStringLiteral("/ [File System]");
  QString home = QStringLiteral("%1 [Home]");
};
const VolumeLabelTexts kLabels;

QByteArray WithSlash(const QByteArray& path) { return path.endsWith('/') ? path : path + '/'; }

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

// The desktop's own list: what its volume monitors (udisks, GVfs, MTP) know,
// with the names its file manager shows. A mount without a local folder (GVfs
// without its FUSE bridge) cannot be browsed by path and is left out.
void AddDesktopMounts(std::vector<Volume>* volumes) {
  GVolumeMonitor* monitor = g_volume_monitor_get();
  GList* mounts = g_volume_monitor_get_mounts(monitor);
  for (GList* item = mounts; item != nullptr; item = item->next) {
    GMount* mount = G_MOUNT(item->data);
    GFile* root = g_mount_get_root(mount);
    char* path = g_file_get_path(root);
    char* scheme = g_file_get_uri_scheme(root);
    char* name = g_mount_get_name(mount);
    if (path != nullptr && !g_mount_is_shadowed(mount)) {
      const VolumeKind kind = NetworkKinds::IsNetworkScheme(scheme) ? VolumeKind::Network : VolumeKind::Removable;
      AddUnlessListed(volumes, {WithSlash(path), QString::fromUtf8(name), kind});
    }
    g_free(name);
    g_free(scheme);
    g_free(path);
    g_object_unref(root);
  }
  g_list_free_full(mounts, g_object_unref);
  g_object_unref(monitor);
}

// The system's mounts the desktop would show, and every network mount: a
// share mounted by the administrator under /mnt is still a place to rename in.
void AddSystemMounts(std::vector<Volume>* volumes) {
  GList* entries = g_unix_mounts_get(nullptr);
  for (GList* item = entries; item != nullptr; item = item->next) {
    auto* entry = static_cast<GUnixMountEntry*>(item->data);
    const bool network = NetworkKinds::IsNetworkFileSystem(g_unix_mount_get_fs_type(entry));
    if (!network && !g_unix_mount_guess_should_display(entry)) continue;
    const QByteArray path = WithSlash(g_unix_mount_get_mount_path(entry));
    if (network) {
      AddUnlessListed(volumes, {path, QString::fromUtf8(g_unix_mount_get_device_path(entry)), VolumeKind::Network});
    } else {
      char* name = g_unix_mount_guess_name(entry);
      AddUnlessListed(volumes, {path, QString::fromUtf8(name), VolumeKind::Removable});
      g_free(name);
    }
  }
  g_list_free_full(entries, reinterpret_cast<GDestroyNotify>(g_unix_mount_free));
}

}  // namespace

std::vector<Volume> MountList::Current() {
  std::vector<Volume> volumes{{"/", kLabels.root, VolumeKind::Root}};
  const QByteArray home = HomeFolder();
  if (WithSlash(home) != "/")
    AddUnlessListed(&volumes, {WithSlash(home), kLabels.home.arg(QString::fromUtf8(home)), VolumeKind::Home});
  AddDesktopMounts(&volumes);
  AddSystemMounts(&volumes);
  return volumes;
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

#include "core/PlanIdentity.h"

namespace renvale::core {

FileIdentity IdentityOf(platform::FileSystem& fs, const QByteArray& path, bool inodeStable) {
  FileIdentity identity;
  identity.inodeStable = inodeStable;
  platform::FileInfo info;
  if (fs.StatIdentity(path, &info) != 0 || info.isDir) return identity;
  identity.size = info.size;
  identity.modifiedNs = info.modifiedNs;
  identity.device = info.device;
  identity.inode = info.inode;
  return identity;
}

bool IsSameFile(const FileIdentity& recorded, const platform::FileInfo& info, bool sameInode) {
  if (info.isDir || recorded.size < 0) return false;
  if (info.size != recorded.size || info.modifiedNs != recorded.modifiedNs) return false;
  if (!sameInode || !recorded.inodeStable) return true;
  return info.device == recorded.device && info.inode == recorded.inode;
}

bool HoldsFile(platform::FileSystem& fs, const QByteArray& path, const FileIdentity& recorded, bool sameInode) {
  platform::FileInfo info;
  return fs.Stat(path, &info) == 0 && IsSameFile(recorded, info, sameInode);
}

}  // namespace renvale::core

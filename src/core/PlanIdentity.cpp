#include "core/PlanIdentity.h"

namespace renvale::core {

namespace {

FileIdentity FromInfo(int error, const platform::FileInfo& info, bool inodeStable) {
  FileIdentity identity;
  identity.inodeStable = inodeStable;
  if (error != 0 || info.isDir) return identity;
  identity.size = info.size;
  identity.modifiedNs = info.modifiedNs;
  identity.device = info.device;
  identity.inode = info.inode;
  return identity;
}

}  // namespace

FileIdentity IdentityOf(platform::FileSystem& fs, const QByteArray& path, bool inodeStable) {
  platform::FileInfo info;
  const int error = fs.StatIdentity(path, &info);
  return FromInfo(error, info, inodeStable);
}

// A second thread takes thousands of identities while the renames go on;
// by name in a held folder each walks one name, not the whole path.
FileIdentity IdentityOf(platform::ReadableFolder& folder, const QByteArray& name, bool inodeStable) {
  platform::FileInfo info;
  const int error = folder.StatIdentity(name, &info);
  return FromInfo(error, info, inodeStable);
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

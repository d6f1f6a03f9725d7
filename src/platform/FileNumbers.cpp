#include "platform/FileNumbers.h"

#include <sys/vfs.h>

namespace renvale::platform {

namespace {

// statfs f_type values of file systems without lasting inode numbers.
constexpr unsigned long kUnstable[] = {
    0x4d44,      // msdos, vfat
    0x2011BAB0,  // exfat
    0x65735546,  // fuse (exfat-fuse, ntfs-3g, and anything else)
    0xFF534D42,  // cifs
    0xFE534D42,  // smb2
    0x517B,      // smb
};

}  // namespace

bool FileNumbersStable(const QByteArray& folder) {
  struct statfs info {};
  if (::statfs(folder.constData(), &info) != 0) return true;
  for (const unsigned long type : kUnstable) {
    if (static_cast<unsigned long>(info.f_type) == type) return false;
  }
  return true;
}

}  // namespace renvale::platform

#include "platform/NetworkKinds.h"

#include <cstring>

namespace renvale::platform {
namespace {

// Phones and cameras (mtp, gphoto2, afc) are remote to GIO as well, but they
// are cards in a cable, not shares: they stay out.
const char* const kSchemes[] = {"smb", "sftp", "ssh", "nfs", "dav", "davs", "ftp", "ftps", "afp"};
const char* const kFileSystems[] = {"cifs", "smb3", "smbfs", "nfs", "nfs4", "fuse.sshfs"};

template <size_t N>
bool Listed(const char* const (&names)[N], const char* name) {
  if (name == nullptr) return false;
  for (const char* known : names) {
    if (std::strcmp(known, name) == 0) return true;
  }
  return false;
}

}  // namespace

bool NetworkKinds::IsNetworkScheme(const char* scheme) { return Listed(kSchemes, scheme); }

bool NetworkKinds::IsNetworkFileSystem(const char* fsType) { return Listed(kFileSystems, fsType); }

}  // namespace renvale::platform

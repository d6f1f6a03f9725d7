#pragma once

#include <QByteArray>
#include <cstddef>

namespace renvale::platform {

// The address of a network folder as GIO mounts it, from what a person typed
// or pasted: "smb://server/share", "sftp://host/folder", "nfs://host/export",
// "dav://" and "davs://" addresses, or the Windows form "\\server\share",
// which is the same share over SMB.
class NetworkAddress {
 public:
  // The URI to mount, or an empty one when the text names no network folder.
  // Blanks around the text are dropped; blanks and other bytes a URI cannot
  // hold inside it are %-escaped, so "\\nas\My Photos" works as typed.
  static QByteArray Parse(const char* data, size_t size);
};

}  // namespace renvale::platform

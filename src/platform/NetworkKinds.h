#pragma once

namespace renvale::platform {

// Which mounts are network folders: those the desktop reaches by a remote
// address, and the system's mounts of network file systems.
class NetworkKinds {
 public:
  static bool IsNetworkScheme(const char* scheme);
  static bool IsNetworkFileSystem(const char* fsType);
};

}  // namespace renvale::platform

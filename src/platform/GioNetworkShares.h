#pragma once

#include "platform/NetworkShares.h"

typedef struct _GCancellable GCancellable;

namespace renvale::platform {

// Network folders through GIO: GVfs mounts them for the desktop (its FUSE
// bridge gives each a local folder), and the system's own network mounts
// are listed beside them.
class GioNetworkShares : public NetworkShares {
 public:
  MapResult Map(const QByteArray& uri, const AskLogin& askLogin, const AskChoice& askChoice) override;
  void CancelMap() override;
  std::vector<NetworkMount> List() override;
  int Disconnect(const NetworkMount& mount) override;

 private:
  GCancellable* mapping_ = nullptr;  // while Map waits
};

}  // namespace renvale::platform

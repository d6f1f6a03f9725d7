#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

namespace renvale::platform {

enum class VolumeKind { Root, Home, Removable, Network };

// One entry of the drive box: where browsing starts and what it is called.
struct Volume {
  QByteArray path;  // with a trailing '/'
  QString label;
  VolumeKind kind = VolumeKind::Root;
  bool operator==(const Volume& other) const = default;
};

// The volumes a person browses: "/", the home folder, then what the desktop
// shows in its file manager (cards, phones, connected shares, under the
// names the desktop gives them) and the system's network mounts.
class MountList {
 public:
  // What the drive box lists on this machine now.
  static std::vector<Volume> Current();

  // False when the volume's folder cannot be listed: a card reader without
  // a card, a network share that is gone or forbids access.
  static bool IsReadable(const QByteArray& path);
  // The volume holding `folder` (the longest path that contains it), or -1.
  static int ContainingVolume(const std::vector<Volume>& volumes, const QByteArray& folder);
};

}  // namespace renvale::platform

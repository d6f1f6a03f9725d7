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

// One line of /proc/self/mountinfo, with the escapes in the mount point
// (\040 for a blank and the like) decoded.
struct MountEntry {
  QByteArray mountPoint;
  QByteArray fsType;
  QByteArray source;
  bool operator==(const MountEntry& other) const = default;
};

// The volumes a person browses: "/", the home folder, removable media under
// /media and /run/media, and network mounts, in that order.
class MountList {
 public:
  // What the drive box lists on this machine now.
  static std::vector<Volume> Current();

  static std::vector<MountEntry> ParseMountInfo(const QByteArray& text);
  static std::vector<Volume> Browsable(const std::vector<MountEntry>& mounts, const QByteArray& home);

  // False when the volume's folder cannot be listed: a card reader without
  // a card, a network share that is gone or forbids access.
  static bool IsReadable(const QByteArray& path);
  // The volume holding `folder` (the longest path that contains it), or -1.
  static int ContainingVolume(const std::vector<Volume>& volumes, const QByteArray& folder);
};

}  // namespace renvale::platform

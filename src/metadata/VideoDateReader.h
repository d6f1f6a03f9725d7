#pragma once

#include <QByteArray>
#include <QString>

namespace renvale::platform {
class FileSystem;
}

namespace renvale::metadata {

class ByteSource;

// The recorded date of a video file, the first source of its exposure date
// (see QuickTimeDateReader and AviDateReader).
class VideoDateReader {
 public:
  // Whether the name ends in one of the video extensions that record a
  // date (".mp4", ".mov", ".m4v", ".3gp", ".3g2", ".avi"; any letter case).
  static bool IsVideoName(const QByteArray& name);
  // "yyyy:mm:dd hh:mm:ss" in local time, empty when there is none; the
  // container is told by its bytes, not by the name.
  static QString Read(ByteSource& source);
  static QString ReadFile(platform::FileSystem& fs, const QByteArray& path);
};

}  // namespace renvale::metadata

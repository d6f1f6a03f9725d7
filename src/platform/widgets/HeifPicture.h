#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>

namespace renvale::platform {

// HEIC and HEIF pictures, as phones store them, which Qt's image readers
// cannot read on this system.
class HeifPicture {
 public:
  // The primary picture of the file held in `bytes`, stood as the file's own
  // transformations say; `storedSize` receives its size before them. A null
  // image when the bytes hold no picture this decoder can read.
  static QImage Decode(const QByteArray& bytes, QSize* storedSize);
};

}  // namespace renvale::platform

#pragma once

#include <QByteArray>

namespace renvale::platform {

// Opens a file in the desktop's default application for its content type.
class DefaultApplication {
 public:
  enum class Result { Opened, NoApplication, Failed };

  static Result Open(const QByteArray& path);
};

}  // namespace renvale::platform

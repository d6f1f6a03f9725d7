#include "platform/widgets/WindowSystem.h"

#include <QGuiApplication>

namespace renvale::platform {

bool WindowPositionIsHonoured() {
  return !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

}  // namespace renvale::platform

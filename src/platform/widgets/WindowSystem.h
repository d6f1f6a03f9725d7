#pragma once

namespace renvale::platform {

// False where the compositor, not the program, places top-level windows
// (Wayland): there a stored position can neither be restored nor read back.
bool WindowPositionIsHonoured();

}  // namespace renvale::platform

#pragma once

namespace renvale::platform {

// The error number (ErrorNumbers.h) for `code`, one of GIO's own codes of
// its I/O domain (GIO reports those, not errno); EIO's for a code it has
// no errno for. Kept apart from GioErrors so that using it links no GIO.
int ErrorNumberFromGioCode(int code);

}  // namespace renvale::platform

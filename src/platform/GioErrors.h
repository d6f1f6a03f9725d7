#pragma once

typedef struct _GError GError;

namespace renvale::platform {

// The error number (ErrorNumbers.h) for a GIO failure. GIO reports its own
// codes, not errno; a null error or one from another domain is EIO's number.
int ErrorNumberFromGError(const GError* error);

}  // namespace renvale::platform

// GIO's headers use `signals` as a plain name, which Qt's headers turn into a
// keyword macro; so GIO comes first.
#include <gio/gio.h>

#include "platform/GioErrors.h"

#include <cerrno>

#include "platform/ErrorNumbers.h"
#include "platform/GioErrorCodes.h"

namespace renvale::platform {

int ErrorNumberFromGError(const GError* error) {
  if (error != nullptr && error->domain == G_IO_ERROR) return ErrorNumberFromGioCode(error->code);
  return ErrorNumberFromErrno(EIO);
}

}  // namespace renvale::platform

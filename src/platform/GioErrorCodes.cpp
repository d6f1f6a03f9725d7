// GIO's headers use `signals` as a plain name, which Qt's headers turn into a
// keyword macro; so GIO comes first. Only its enumerations are used here.
#include <gio/gio.h>

#include "platform/GioErrorCodes.h"

#include <cerrno>

#include "platform/ErrorNumbers.h"

namespace renvale::platform {
namespace {

struct GioErrorToErrno {
  int gioCode;
  int errnum;
};

constexpr GioErrorToErrno kGioErrors[] = {
    {G_IO_ERROR_NOT_FOUND, ENOENT},         {G_IO_ERROR_EXISTS, EEXIST},
    {G_IO_ERROR_PERMISSION_DENIED, EACCES}, {G_IO_ERROR_READ_ONLY, EROFS},
    {G_IO_ERROR_BUSY, EBUSY},               {G_IO_ERROR_NO_SPACE, ENOSPC},
    {G_IO_ERROR_IS_DIRECTORY, EISDIR},      {G_IO_ERROR_NOT_DIRECTORY, ENOTDIR},
    {G_IO_ERROR_FILENAME_TOO_LONG, ENAMETOOLONG}, {G_IO_ERROR_INVALID_FILENAME, EINVAL},
    {G_IO_ERROR_NOT_SUPPORTED, EOPNOTSUPP}, {G_IO_ERROR_TOO_MANY_LINKS, ELOOP},
    {G_IO_ERROR_CANCELLED, ECANCELED},      {G_IO_ERROR_TIMED_OUT, ETIMEDOUT},
    {G_IO_ERROR_HOST_NOT_FOUND, EHOSTUNREACH}, {G_IO_ERROR_HOST_UNREACHABLE, EHOSTUNREACH},
    {G_IO_ERROR_NETWORK_UNREACHABLE, ENETUNREACH}, {G_IO_ERROR_CONNECTION_REFUSED, ECONNREFUSED},
    {G_IO_ERROR_CONNECTION_CLOSED, ECONNRESET}, {G_IO_ERROR_NOT_MOUNTED, ENOENT},
};

}  // namespace

int ErrorNumberFromGioCode(int code) {
  int errnum = EIO;
  for (const GioErrorToErrno& entry : kGioErrors) {
    if (entry.gioCode == code) errnum = entry.errnum;
  }
  return ErrorNumberFromErrno(errnum);
}

}  // namespace renvale::platform

// GIO's headers use `signals` as a plain name, which Qt's headers turn into a
// keyword macro; so GIO comes first.
#include <gio/gio.h>

#include "platform/Trash.h"

#include <cerrno>

#include "platform/ErrorNumbers.h"

namespace renvale::platform {

namespace {

struct GioErrorToErrno {
  int gioCode;
  int errnum;
};

// GIO reports its own codes, not errno; these are their errno equivalents.
constexpr GioErrorToErrno kGioErrors[] = {
    {G_IO_ERROR_NOT_FOUND, ENOENT},         {G_IO_ERROR_EXISTS, EEXIST},
    {G_IO_ERROR_PERMISSION_DENIED, EACCES}, {G_IO_ERROR_READ_ONLY, EROFS},
    {G_IO_ERROR_BUSY, EBUSY},               {G_IO_ERROR_NO_SPACE, ENOSPC},
    {G_IO_ERROR_IS_DIRECTORY, EISDIR},      {G_IO_ERROR_NOT_DIRECTORY, ENOTDIR},
    {G_IO_ERROR_FILENAME_TOO_LONG, ENAMETOOLONG}, {G_IO_ERROR_INVALID_FILENAME, EINVAL},
    {G_IO_ERROR_NOT_SUPPORTED, EOPNOTSUPP}, {G_IO_ERROR_TOO_MANY_LINKS, ELOOP},
    {G_IO_ERROR_CANCELLED, ECANCELED},
};

int ErrnoFromGError(const GError* error) {
  if (error == nullptr || error->domain != G_IO_ERROR) return EIO;
  for (const GioErrorToErrno& entry : kGioErrors) {
    if (entry.gioCode == error->code) return entry.errnum;
  }
  return EIO;
}

}  // namespace

int MoveFileToTrash(const QByteArray& path) {
  // On Linux GIO's file names are bytes, so the raw name goes straight in.
  GFile* file = g_file_new_for_path(path.constData());
  GError* error = nullptr;
  const gboolean moved = g_file_trash(file, nullptr, &error);
  g_object_unref(file);
  if (moved) return kNoError;
  const int errnum = ErrnoFromGError(error);
  g_clear_error(&error);
  return ErrorNumberFromErrno(errnum);
}

}  // namespace renvale::platform

// GIO's headers use `signals` as a plain name, which Qt's headers turn into a
// keyword macro; so GIO comes first.
#include <gio/gio.h>

#include "platform/Trash.h"

#include "platform/ErrorNumbers.h"
#include "platform/GioErrors.h"

namespace renvale::platform {

int MoveFileToTrash(const QByteArray& path) {
  // On Linux GIO's file names are bytes, so the raw name goes straight in.
  GFile* file = g_file_new_for_path(path.constData());
  GError* error = nullptr;
  const gboolean moved = g_file_trash(file, nullptr, &error);
  g_object_unref(file);
  if (moved) return kNoError;
  const int number = ErrorNumberFromGError(error);
  g_clear_error(&error);
  return number;
}

}  // namespace renvale::platform

// GIO's headers use `signals` as a plain name, which Qt's headers turn into a
// keyword macro; so GIO comes first.
#include <gio/gio.h>

#include "platform/Trash.h"

#include <dlfcn.h>

#include <cerrno>

#include "platform/ErrorNumbers.h"
#include "platform/GioErrorCodes.h"

namespace renvale::platform {

namespace {

// GIO is loaded when the first file goes to the trash, not with the program:
// renvale-batch, which rarely trashes anything, starts without it and its
// half-dozen libraries, a few milliseconds of every run.
struct Gio {
  decltype(&g_file_new_for_path) newForPath = nullptr;
  decltype(&g_file_trash) trash = nullptr;
  decltype(&g_object_unref) unref = nullptr;
  decltype(&g_clear_error) clearError = nullptr;
  decltype(&g_io_error_quark) ioErrorQuark = nullptr;

  bool Complete() const { return newForPath && trash && unref && clearError && ioErrorQuark; }
};

template <typename Function>
void Find(void* library, const char* name, Function* function) {
  *function = reinterpret_cast<Function>(dlsym(library, name));
}

// Loaded once, and never let go: a program that trashed one file may well
// trash another.
const Gio& LoadedGio() {
  static const Gio gio = [] {
    Gio found;
    void* library = dlopen("libgio-2.0.so.0", RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr) return found;
    Find(library, "g_file_new_for_path", &found.newForPath);
    Find(library, "g_file_trash", &found.trash);
    Find(library, "g_object_unref", &found.unref);
    Find(library, "g_clear_error", &found.clearError);
    Find(library, "g_io_error_quark", &found.ioErrorQuark);
    return found;
  }();
  return gio;
}

}  // namespace

int MoveFileToTrash(const QByteArray& path) {
  const Gio& gio = LoadedGio();
  if (!gio.Complete()) return ErrorNumberFromErrno(EOPNOTSUPP);
  // On Linux GIO's file names are bytes, so the raw name goes straight in.
  GFile* file = gio.newForPath(path.constData());
  GError* error = nullptr;
  const gboolean moved = gio.trash(file, nullptr, &error);
  gio.unref(file);
  if (moved) return kNoError;
  const int number = error != nullptr && error->domain == gio.ioErrorQuark() ? ErrorNumberFromGioCode(error->code)
                                                                               : ErrorNumberFromErrno(EIO);
  gio.clearError(&error);
  return number;
}

}  // namespace renvale::platform

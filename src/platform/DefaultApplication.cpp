// GIO's headers use `signals` as a plain name, which Qt's headers turn into a
// keyword: GIO comes first.
#include <gio/gio.h>

#include "platform/DefaultApplication.h"

namespace renvale::platform {

namespace {

// The file's content type as the desktop sees it (by its content and name);
// empty when the file cannot be looked at.
QByteArray ContentType(GFile* file) {
  GFileInfo* info = g_file_query_info(file, G_FILE_ATTRIBUTE_STANDARD_CONTENT_TYPE, G_FILE_QUERY_INFO_NONE,
                                      nullptr, nullptr);
  if (info == nullptr) return {};
  const char* type = g_file_info_get_content_type(info);
  const QByteArray result = type != nullptr ? QByteArray(type) : QByteArray();
  g_object_unref(info);
  return result;
}

}  // namespace

DefaultApplication::Result DefaultApplication::Open(const QByteArray& path) {
  GFile* file = g_file_new_for_path(path.constData());
  const QByteArray type = ContentType(file);
  Result result = type.isEmpty() ? Result::Failed : Result::NoApplication;
  GAppInfo* app = type.isEmpty() ? nullptr : g_app_info_get_default_for_type(type.constData(), FALSE);
  if (app != nullptr) {
    GList* files = g_list_append(nullptr, file);
    result = g_app_info_launch(app, files, nullptr, nullptr) ? Result::Opened : Result::Failed;
    g_list_free(files);
    g_object_unref(app);
  }
  g_object_unref(file);
  return result;
}

}  // namespace renvale::platform

// GIO's headers use `signals` as a plain name, which Qt's headers turn into a
// keyword macro; so GIO comes first.
#include <gio/gio.h>
#include <gio/gunixmounts.h>

#include "platform/GioNetworkShares.h"

#include <sys/mount.h>

#include <cerrno>

#include "platform/ErrorNumbers.h"
#include "platform/GioErrors.h"
#include "platform/NetworkKinds.h"

namespace renvale::platform {
namespace {

QByteArray WithSlash(const char* path) {
  QByteArray folder(path);
  return folder.endsWith('/') ? folder : folder + '/';
}

// One asynchronous GIO call waited for on the default main context, the one
// Qt's event loop runs as well: the windows keep painting meanwhile.
class AsyncWait {
 public:
  AsyncWait() : loop_(g_main_loop_new(nullptr, FALSE)) {}
  ~AsyncWait() {
    if (result_ != nullptr) g_object_unref(result_);
    g_main_loop_unref(loop_);
  }
  static void Done(GObject*, GAsyncResult* result, gpointer self) {
    auto* wait = static_cast<AsyncWait*>(self);
    wait->result_ = G_ASYNC_RESULT(g_object_ref(result));
    g_main_loop_quit(wait->loop_);
  }
  GAsyncResult* Result() {
    if (result_ == nullptr) g_main_loop_run(loop_);
    return result_;
  }

 private:
  GMainLoop* loop_;
  GAsyncResult* result_ = nullptr;
};

struct Asking {
  const AskLogin& login;
  const AskChoice& choice;
  bool declined = false;
};

void OnAskPassword(GMountOperation* operation, const char* message, const char* user, const char* domain,
                   GAskPasswordFlags flags, gpointer data) {
  auto* asking = static_cast<Asking*>(data);
  const LoginRequest request{QString::fromUtf8(message), QString::fromUtf8(user), QString::fromUtf8(domain),
                             (flags & G_ASK_PASSWORD_NEED_USERNAME) != 0, (flags & G_ASK_PASSWORD_NEED_DOMAIN) != 0,
                             (flags & G_ASK_PASSWORD_NEED_PASSWORD) != 0,
                             (flags & G_ASK_PASSWORD_ANONYMOUS_SUPPORTED) != 0};
  LoginAnswer answer;
  if (!asking->login || !asking->login(request, &answer)) {
    asking->declined = true;
    g_mount_operation_reply(operation, G_MOUNT_OPERATION_ABORTED);
    return;
  }
  if (answer.anonymous && request.anonymousAllowed) {
    g_mount_operation_set_anonymous(operation, TRUE);
  } else {
    g_mount_operation_set_username(operation, answer.user.toUtf8().constData());
    g_mount_operation_set_domain(operation, answer.domain.toUtf8().constData());
    g_mount_operation_set_password(operation, answer.password.toUtf8().constData());
  }
  // Keyrings are the desktop's business; the password lives only as long as the connection.
  g_mount_operation_set_password_save(operation, G_PASSWORD_SAVE_NEVER);
  g_mount_operation_reply(operation, G_MOUNT_OPERATION_HANDLED);
}

void OnAskQuestion(GMountOperation* operation, const char* message, GStrv choices, gpointer data) {
  auto* asking = static_cast<Asking*>(data);
  std::vector<QString> texts;
  for (GStrv choice = choices; choice != nullptr && *choice != nullptr; ++choice) texts.push_back(QString::fromUtf8(*choice));
  const int chosen = asking->choice ? asking->choice(QString::fromUtf8(message), texts) : -1;
  if (chosen < 0 || chosen >= int(texts.size())) {
    asking->declined = true;
    g_mount_operation_reply(operation, G_MOUNT_OPERATION_ABORTED);
    return;
  }
  g_mount_operation_set_choice(operation, chosen);
  g_mount_operation_reply(operation, G_MOUNT_OPERATION_HANDLED);
}

// The desktop's mount whose root is `address`, with a reference, or null.
GMount* FindDesktopMount(const QString& address) {
  GVolumeMonitor* monitor = g_volume_monitor_get();
  GList* mounts = g_volume_monitor_get_mounts(monitor);
  GMount* found = nullptr;
  for (GList* item = mounts; item != nullptr && found == nullptr; item = item->next) {
    GFile* root = g_mount_get_root(G_MOUNT(item->data));
    char* uri = g_file_get_uri(root);
    if (QString::fromUtf8(uri) == address) found = G_MOUNT(g_object_ref(item->data));
    g_free(uri);
    g_object_unref(root);
  }
  g_list_free_full(mounts, g_object_unref);
  g_object_unref(monitor);
  return found;
}

void AddDesktopMounts(std::vector<NetworkMount>* found) {
  GVolumeMonitor* monitor = g_volume_monitor_get();
  GList* mounts = g_volume_monitor_get_mounts(monitor);
  for (GList* item = mounts; item != nullptr; item = item->next) {
    GFile* root = g_mount_get_root(G_MOUNT(item->data));
    char* scheme = g_file_get_uri_scheme(root);
    if (NetworkKinds::IsNetworkScheme(scheme)) {
      char* uri = g_file_get_uri(root);
      char* path = g_file_get_path(root);
      found->push_back({path != nullptr ? WithSlash(path) : QByteArray(), QString::fromUtf8(uri), false});
      g_free(path);
      g_free(uri);
    }
    g_free(scheme);
    g_object_unref(root);
  }
  g_list_free_full(mounts, g_object_unref);
  g_object_unref(monitor);
}

bool Listed(const std::vector<NetworkMount>& mounts, const QByteArray& folder) {
  for (const NetworkMount& mount : mounts) {
    if (mount.localFolder == folder) return true;
  }
  return false;
}

void AddKernelMounts(std::vector<NetworkMount>* found) {
  GList* entries = g_unix_mounts_get(nullptr);
  for (GList* item = entries; item != nullptr; item = item->next) {
    auto* entry = static_cast<GUnixMountEntry*>(item->data);
    if (!NetworkKinds::IsNetworkFileSystem(g_unix_mount_get_fs_type(entry))) continue;
    const QByteArray folder = WithSlash(g_unix_mount_get_mount_path(entry));
    if (!Listed(*found, folder))
      found->push_back({folder, QString::fromUtf8(g_unix_mount_get_device_path(entry)), true});
  }
  g_list_free_full(entries, reinterpret_cast<GDestroyNotify>(g_unix_mount_free));
}

// A person's own sshfs mount is undone by FUSE's helper, which may do what
// umount(2) refuses to anyone but root.
int UnmountKernel(const QByteArray& folder) {
  if (::umount2(folder.constData(), 0) == 0) return kNoError;
  const int failure = errno;
  for (const char* helper : {"fusermount3", "fusermount"}) {
    const char* argv[] = {helper, "-u", "-q", folder.constData(), nullptr};
    int status = -1;
    if (g_spawn_sync(nullptr, const_cast<char**>(argv), nullptr, G_SPAWN_SEARCH_PATH, nullptr, nullptr, nullptr,
                     nullptr, &status, nullptr) &&
        g_spawn_check_wait_status(status, nullptr)) {
      return kNoError;
    }
  }
  return ErrorNumberFromErrno(failure, ErrnoContext::Folder);
}

}  // namespace

MapResult GioNetworkShares::Map(const QByteArray& uri, const AskLogin& askLogin, const AskChoice& askChoice) {
  GFile* file = g_file_new_for_uri(uri.constData());
  GMountOperation* operation = g_mount_operation_new();
  Asking asking{askLogin, askChoice};
  g_signal_connect(operation, "ask-password", G_CALLBACK(OnAskPassword), &asking);
  g_signal_connect(operation, "ask-question", G_CALLBACK(OnAskQuestion), &asking);
  GError* error = nullptr;
  mapping_ = g_cancellable_new();
  {
    AsyncWait wait;
    g_file_mount_enclosing_volume(file, G_MOUNT_MOUNT_NONE, operation, mapping_, AsyncWait::Done, &wait);
    g_file_mount_enclosing_volume_finish(file, wait.Result(), &error);
  }
  g_clear_object(&mapping_);
  // GVfs may keep the operation for as long as the share stays connected,
  // and `asking` ends here.
  g_signal_handlers_disconnect_by_data(operation, &asking);
  g_object_unref(operation);
  MapResult result;
  if (error != nullptr && !g_error_matches(error, G_IO_ERROR, G_IO_ERROR_ALREADY_MOUNTED)) {
    result.declined = asking.declined || g_error_matches(error, G_IO_ERROR, G_IO_ERROR_FAILED_HANDLED) ||
                      g_error_matches(error, G_IO_ERROR, G_IO_ERROR_CANCELLED);
    result.error = ErrorNumberFromGError(error);
  } else if (char* path = g_file_get_path(file)) {
    result.localFolder = WithSlash(path);
    g_free(path);
  } else {
    // Connected, but without GVfs's FUSE bridge no folder of ours reaches it.
    result.error = ErrorNumberFromErrno(EOPNOTSUPP);
  }
  g_clear_error(&error);
  g_object_unref(file);
  return result;
}

void GioNetworkShares::CancelMap() {
  if (mapping_ != nullptr) g_cancellable_cancel(mapping_);
}

std::vector<NetworkMount> GioNetworkShares::List() {
  std::vector<NetworkMount> found;
  AddDesktopMounts(&found);
  AddKernelMounts(&found);
  return found;
}

int GioNetworkShares::Disconnect(const NetworkMount& mount) {
  if (mount.kernelMount) return UnmountKernel(mount.localFolder);
  GMount* desktopMount = FindDesktopMount(mount.address);
  if (desktopMount == nullptr) return ErrorNumberFromErrno(ENOENT, ErrnoContext::Folder);
  GError* error = nullptr;
  {
    AsyncWait wait;
    g_mount_unmount_with_operation(desktopMount, G_MOUNT_UNMOUNT_NONE, nullptr, nullptr, AsyncWait::Done, &wait);
    g_mount_unmount_with_operation_finish(desktopMount, wait.Result(), &error);
  }
  g_object_unref(desktopMount);
  const int number = error != nullptr ? ErrorNumberFromGError(error) : kNoError;
  g_clear_error(&error);
  return number;
}

}  // namespace renvale::platform

#include "cli/ListingReuse.h"

namespace renvale::cli {

int ListingReuse::ListFiles(const QByteArray& folder, std::vector<QByteArray>* names) {
  {
    const std::lock_guard<std::mutex> hold(lock_);
    if (!folder_.isEmpty() && folder == folder_) {
      *names = std::move(names_);
      folder_.clear();
      return 0;
    }
  }
  const int error = PosixFileSystem::ListFiles(folder, names);
  const std::lock_guard<std::mutex> hold(lock_);
  folder_ = error == 0 ? folder : QByteArray();
  names_ = error == 0 ? *names : std::vector<QByteArray>();
  return error;
}

void ListingReuse::Forget() {
  const std::lock_guard<std::mutex> hold(lock_);
  folder_.clear();
  names_.clear();
}

int ListingReuse::RenameNoReplace(const QByteArray& from, const QByteArray& to) {
  Forget();
  return PosixFileSystem::RenameNoReplace(from, to);
}

int ListingReuse::RemoveFile(const QByteArray& path) {
  Forget();
  return PosixFileSystem::RemoveFile(path);
}

int ListingReuse::CopyFile(const QByteArray& from, const QByteArray& to, bool replace) {
  Forget();
  return PosixFileSystem::CopyFile(from, to, replace);
}

int ListingReuse::RenameReplacing(const QByteArray& from, const QByteArray& to) {
  Forget();
  return PosixFileSystem::RenameReplacing(from, to);
}

int ListingReuse::CopyToTemporary(const QByteArray& from, const QByteArray& folder, QByteArray* temporary) {
  Forget();
  return PosixFileSystem::CopyToTemporary(from, folder, temporary);
}

int ListingReuse::WriteProbeFile(const QByteArray& path, const QByteArray& contents) {
  Forget();
  return PosixFileSystem::WriteProbeFile(path, contents);
}

int ListingReuse::MoveToTrash(const QByteArray& path) {
  Forget();
  return PosixFileSystem::MoveToTrash(path);
}

int ListingReuse::WriteWholeFile(const QByteArray& path, const QByteArray& contents) {
  Forget();
  return PosixFileSystem::WriteWholeFile(path, contents);
}

int ListingReuse::AppendToFile(const QByteArray& path, const QByteArray& contents) {
  Forget();
  return PosixFileSystem::AppendToFile(path, contents);
}

}  // namespace renvale::cli

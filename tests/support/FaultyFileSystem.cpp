#include "support/FaultyFileSystem.h"

namespace renvale::test {

int FaultyFileSystem::Injected(Change change, const QByteArray& path, const QByteArray& other) const {
  for (const Fault& fault : faults_) {
    if (fault.change == change && (fault.path == path || fault.path == other)) return fault.errorNumber;
  }
  return 0;
}

int FaultyFileSystem::RenameNoReplace(const QByteArray& from, const QByteArray& to) {
  if (beforeRename) beforeRename(from);
  if (const int error = Injected(Change::Rename, from, to)) return error;
  if (const int error = Injected(Change::RenameFrom, from)) return error;
  return inner_.RenameNoReplace(from, to);
}

int FaultyFileSystem::RemoveFile(const QByteArray& path) {
  if (const int error = Injected(Change::Remove, path)) return error;
  return inner_.RemoveFile(path);
}

int FaultyFileSystem::RenameReplacing(const QByteArray& from, const QByteArray& to) {
  if (const int error = Injected(Change::Rename, from, to)) return error;
  return inner_.RenameReplacing(from, to);
}

int FaultyFileSystem::CopyToTemporary(const QByteArray& from, const QByteArray& folder, QByteArray* temporary) {
  if (beforeCopy) beforeCopy(from);
  if (const int error = Injected(Change::Copy, from)) {
    temporary->clear();
    return error;
  }
  return inner_.CopyToTemporary(from, folder, temporary);
}

int FaultyFileSystem::WriteProbeFile(const QByteArray& path, const QByteArray& contents) {
  if (const int error = Injected(Change::Write, path)) return error;
  return inner_.WriteProbeFile(path, contents);
}

int FaultyFileSystem::MoveToTrash(const QByteArray& path) {
  if (const int error = Injected(Change::Trash, path)) return error;
  return inner_.MoveToTrash(path);
}

int FaultyFileSystem::WriteWholeFile(const QByteArray& path, const QByteArray& contents) {
  if (const int error = Injected(Change::Write, path)) return error;
  return inner_.WriteWholeFile(path, contents);
}

}  // namespace renvale::test

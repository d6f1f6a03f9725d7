#include "support/FaultyFileSystem.h"

namespace renvale::test {

namespace {

bool ChangesFiles(FsOperation operation) {
  switch (operation) {
    case FsOperation::Rename:
    case FsOperation::Remove:
    case FsOperation::Copy:
    case FsOperation::Trash:
    case FsOperation::WriteWholeFile:
      return true;
    default:
      return false;
  }
}

}  // namespace

void FaultyFileSystem::Fail(FsOperation operation, const QByteArray& path, int errorNumber,
                            int times) {
  faults_.push_back(Fault{operation, path, errorNumber, times});
}

void FaultyFileSystem::FailRead(const QByteArray& path, int errorNumber) {
  Fail(FsOperation::OpenForRead, path, errorNumber);
  Fail(FsOperation::ReadWholeFile, path, errorNumber);
}

void FaultyFileSystem::MakeReadOnly(const QByteArray& path, int errorNumber) {
  readOnly_.push_back(ReadOnlyPath{path, errorNumber});
}

void FaultyFileSystem::ClearFaults() {
  faults_.clear();
  readOnly_.clear();
}

bool FaultyFileSystem::Matches(const QByteArray& pattern, const QByteArray& path) {
  if (pattern.endsWith('/')) return path.startsWith(pattern) || path == pattern.chopped(1);
  return path == pattern;
}

int FaultyFileSystem::ReadOnlyError(const QByteArray& path) const {
  for (const ReadOnlyPath& entry : readOnly_) {
    if (Matches(entry.path, path)) return entry.errorNumber;
  }
  return 0;
}

int FaultyFileSystem::FaultFor(FsOperation operation, const QByteArray& path,
                               const QByteArray& other) {
  for (Fault& fault : faults_) {
    if (fault.operation != operation || fault.remaining == 0) continue;
    if (!Matches(fault.path, path) && (other.isEmpty() || !Matches(fault.path, other))) continue;
    if (fault.remaining > 0) --fault.remaining;
    return fault.errorNumber;
  }
  return 0;
}

int FaultyFileSystem::Injected(FsOperation operation, const QByteArray& path,
                               const QByteArray& other) {
  ++calls_[static_cast<size_t>(operation)];
  if (const int error = FaultFor(operation, path, other)) return error;
  if (!ChangesFiles(operation)) return 0;
  // A copy only changes its target; the others change both names they touch.
  if (operation != FsOperation::Copy) {
    if (const int error = ReadOnlyError(path)) return error;
  }
  return other.isEmpty() ? 0 : ReadOnlyError(other);
}

int FaultyFileSystem::ListFiles(const QByteArray& folder, std::vector<QByteArray>* names) {
  if (const int error = Injected(FsOperation::ListFiles, folder)) return error;
  return inner_.ListFiles(folder, names);
}

int FaultyFileSystem::ListFolders(const QByteArray& folder, std::vector<QByteArray>* names) {
  if (const int error = Injected(FsOperation::ListFolders, folder)) return error;
  return inner_.ListFolders(folder, names);
}

int FaultyFileSystem::Stat(const QByteArray& path, platform::FileInfo* info) {
  if (const int error = Injected(FsOperation::Stat, path)) return error;
  const int result = inner_.Stat(path, info);
  if (result == 0 && ReadOnlyError(path) != 0) info->isWritable = false;
  return result;
}

int FaultyFileSystem::RenameNoReplace(const QByteArray& from, const QByteArray& to) {
  if (const int error = Injected(FsOperation::Rename, from, to)) return error;
  return inner_.RenameNoReplace(from, to);
}

int FaultyFileSystem::RemoveFile(const QByteArray& path) {
  if (const int error = Injected(FsOperation::Remove, path)) return error;
  return inner_.RemoveFile(path);
}

int FaultyFileSystem::CopyFile(const QByteArray& from, const QByteArray& to, bool replace) {
  if (const int error = Injected(FsOperation::Copy, from, to)) return error;
  return inner_.CopyFile(from, to, replace);
}

int FaultyFileSystem::MoveToTrash(const QByteArray& path) {
  if (const int error = Injected(FsOperation::Trash, path)) return error;
  return inner_.MoveToTrash(path);
}

int FaultyFileSystem::OpenForRead(const QByteArray& path,
                                  std::unique_ptr<platform::ReadableFile>* file) {
  if (const int error = Injected(FsOperation::OpenForRead, path)) return error;
  return inner_.OpenForRead(path, file);
}

int FaultyFileSystem::WriteWholeFile(const QByteArray& path, const QByteArray& contents) {
  if (const int error = Injected(FsOperation::WriteWholeFile, path)) return error;
  return inner_.WriteWholeFile(path, contents);
}

int FaultyFileSystem::ReadWholeFile(const QByteArray& path, qint64 maxBytes, QByteArray* contents) {
  if (const int error = Injected(FsOperation::ReadWholeFile, path)) return error;
  return inner_.ReadWholeFile(path, maxBytes, contents);
}

}  // namespace renvale::test

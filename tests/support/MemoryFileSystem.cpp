#include "support/MemoryFileSystem.h"

#include <set>

#include "platform/ErrorNumbers.h"

namespace renvale::test {
namespace {

class MemoryFile : public platform::ReadableFile {
 public:
  explicit MemoryFile(QByteArray bytes) : bytes_(std::move(bytes)) {}
  qint64 Size() const override { return bytes_.size(); }
  qint64 ReadAt(qint64 offset, char* buffer, qint64 length) override {
    if (offset < 0 || length < 0) return -1;
    if (offset >= bytes_.size()) return 0;
    const qint64 count = std::min(length, bytes_.size() - offset);
    std::copy_n(bytes_.constData() + offset, count, buffer);
    return count;
  }

 private:
  QByteArray bytes_;
};

const QDateTime kDefaultTime(QDate(2004, 7, 15), QTime(18, 3, 9), Qt::UTC);

QByteArray FolderPrefix(const QByteArray& folder) {
  return folder.endsWith('/') ? folder : folder + '/';
}

}  // namespace

void MemoryFileSystem::Add(const QByteArray& path, const QByteArray& contents) {
  Entry entry;
  entry.contents = contents;
  entry.info.size = contents.size();
  entry.info.created = kDefaultTime;
  entry.info.modified = kDefaultTime;
  files_[Key(path)] = entry;
}

void MemoryFileSystem::SetTimes(const QByteArray& path, const QDateTime& createdUtc,
                                const QDateTime& modifiedUtc) {
  if (Entry* e = Find(path)) {
    e->info.created = createdUtc;
    e->info.modified = modifiedUtc;
  }
}

void MemoryFileSystem::SetWritable(const QByteArray& path, bool writable) {
  if (Entry* e = Find(path)) e->info.isWritable = writable;
}

void MemoryFileSystem::FailOpen(const QByteArray& path, int errorNumber) {
  if (Entry* e = Find(path)) e->openError = errorNumber;
}

MemoryFileSystem::Entry* MemoryFileSystem::Find(const QByteArray& path) {
  const auto it = files_.find(Key(path));
  return it == files_.end() ? nullptr : &it->second;
}

int MemoryFileSystem::ListFiles(const QByteArray& folder, std::vector<QByteArray>* names) {
  const QByteArray prefix = Key(FolderPrefix(folder));
  names->clear();
  for (const auto& [key, entry] : files_) {
    if (key.startsWith(prefix) && !key.mid(prefix.size()).contains('/')) {
      names->push_back(key.mid(prefix.size()));
    }
  }
  return platform::kNoError;
}

int MemoryFileSystem::ListFolders(const QByteArray& folder, std::vector<QByteArray>* names) {
  const QByteArray prefix = Key(FolderPrefix(folder));
  std::set<QByteArray> found;
  for (const auto& [key, entry] : files_) {
    const QByteArray rest = key.mid(prefix.size());
    if (key.startsWith(prefix) && rest.contains('/')) found.insert(rest.left(rest.indexOf('/')));
  }
  names->assign(found.begin(), found.end());
  return platform::kNoError;
}

int MemoryFileSystem::Stat(const QByteArray& path, platform::FileInfo* info) {
  const Entry* e = Find(path);
  if (e == nullptr) return platform::kFileNotFound;
  *info = e->info;
  info->size = e->contents.size();
  return platform::kNoError;
}

bool MemoryFileSystem::Exists(const QByteArray& path) { return Find(path) != nullptr; }

int MemoryFileSystem::RenameNoReplace(const QByteArray& from, const QByteArray& to) {
  Entry* e = Find(from);
  if (e == nullptr) return platform::kFileNotFound;
  if (Find(to) != nullptr) return platform::kFileAlreadyExists;
  Entry moved = *e;
  files_.erase(Key(from));
  files_[Key(to)] = moved;
  return platform::kNoError;
}

int MemoryFileSystem::RemoveFile(const QByteArray& path) {
  return files_.erase(Key(path)) == 1 ? platform::kNoError : platform::kFileNotFound;
}

int MemoryFileSystem::CopyFile(const QByteArray& from, const QByteArray& to, bool replace) {
  const Entry* e = Find(from);
  if (e == nullptr) return platform::kFileNotFound;
  if (!replace && Find(to) != nullptr) return platform::kFileAlreadyExists;
  const Entry copy = *e;
  files_[Key(to)] = copy;
  return platform::kNoError;
}

int MemoryFileSystem::MoveToTrash(const QByteArray& path) { return RemoveFile(path); }

int MemoryFileSystem::OpenForRead(const QByteArray& path,
                                  std::unique_ptr<platform::ReadableFile>* file) {
  ++opens;
  const Entry* e = Find(path);
  if (e == nullptr) return platform::kFileNotFound;
  if (e->openError != 0) return e->openError;
  *file = std::make_unique<MemoryFile>(e->contents);
  return platform::kNoError;
}

int MemoryFileSystem::WriteWholeFile(const QByteArray& path, const QByteArray& contents) {
  Add(path, contents);
  return platform::kNoError;
}

int MemoryFileSystem::ReadWholeFile(const QByteArray& path, qint64 maxBytes,
                                    QByteArray* contents) {
  const Entry* e = Find(path);
  if (e == nullptr) return platform::kFileNotFound;
  if (e->openError != 0) return e->openError;
  *contents = maxBytes >= 0 ? e->contents.left(maxBytes) : e->contents;
  return platform::kNoError;
}

}  // namespace renvale::test

#include "support/MemoryFileSystem.h"

#include "platform/FileCopy.h"

#include <cerrno>
#include <set>

#include "platform/ErrorNumbers.h"

namespace renvale::test {
namespace {

class MemoryFile : public platform::ReadableFile {
 public:
  MemoryFile(MemoryFileSystem& owner, QByteArray contents, std::vector<std::pair<qint64, QByteArray>> placed,
             qint64 size)
      : owner_(owner), placed_(std::move(placed)), size_(size) {
    placed_.insert(placed_.begin(), {0, std::move(contents)});
  }
  qint64 Size() const override { return size_; }
  qint64 ReadAt(qint64 offset, char* buffer, qint64 length) override {
    if (owner_.readCalls++ == owner_.readFailsAt) {
      errno = EIO;
      return -1;
    }
    if (offset < 0 || length < 0) return -1;
    if (offset >= size_) return 0;
    const qint64 count = std::min(length, size_ - offset);
    std::fill_n(buffer, count, '\0');
    for (const auto& [at, bytes] : placed_) {
      const qint64 from = std::max(offset, at);
      const qint64 to = std::min(offset + count, at + bytes.size());
      if (from < to) std::copy_n(bytes.constData() + (from - at), to - from, buffer + (from - offset));
    }
    owner_.bytesRead += count;
    return count;
  }

 private:
  MemoryFileSystem& owner_;
  std::vector<std::pair<qint64, QByteArray>> placed_;
  qint64 size_;
};

const QDateTime kDefaultTime(QDate(2004, 7, 15), QTime(18, 3, 9), Qt::UTC);

QByteArray FolderPrefix(const QByteArray& folder) {
  return folder.endsWith('/') ? folder : folder + '/';
}

}  // namespace

void MemoryFileSystem::Add(const QByteArray& path, const QByteArray& contents, qint64 size) {
  Entry entry;
  entry.contents = contents;
  entry.info.size = std::max<qint64>(size, contents.size());
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
  return platform::kNoError;
}

bool MemoryFileSystem::Exists(const QByteArray& path) { return Find(path) != nullptr; }

int MemoryFileSystem::RenameNoReplace(const QByteArray& from, const QByteArray& to) {
  if (Find(from) != nullptr && Find(to) != nullptr) return platform::kFileAlreadyExists;
  return RenameReplacing(from, to);
}

int MemoryFileSystem::RemoveFile(const QByteArray& path) {
  return files_.erase(Key(path)) == 1 ? platform::kNoError : platform::kFileNotFound;
}

int MemoryFileSystem::CopyFile(const QByteArray& from, const QByteArray& to, bool replace) {
  const Entry* e = Find(from);
  if (e == nullptr) return platform::kFileNotFound;
  if (!replace && Find(to) != nullptr) return platform::kFileAlreadyExists;
  files_[Key(to)] = Entry(*e);
  return platform::kNoError;
}

int MemoryFileSystem::RenameReplacing(const QByteArray& from, const QByteArray& to) {
  Entry* e = Find(from);
  if (e == nullptr) return platform::kFileNotFound;
  Entry moved = *e;
  files_.erase(Key(from));
  files_[Key(to)] = moved;
  return platform::kNoError;
}

int MemoryFileSystem::CopyToTemporary(const QByteArray& from, const QByteArray& folder, QByteArray* temporary) {
  *temporary = platform::JoinPath(folder, platform::kTransferTemporaryPrefix + QByteArray::number(++temporaries_));
  const int err = CopyFile(from, *temporary, false);
  if (err != 0) temporary->clear();
  return err;
}

int MemoryFileSystem::OpenForRead(const QByteArray& path,
                                  std::unique_ptr<platform::ReadableFile>* file) {
  const Entry* e = Find(path);
  if (e == nullptr) return platform::kFileNotFound;
  if (e->openError != 0) return e->openError;
  *file = std::make_unique<MemoryFile>(*this, e->contents, e->placed, e->info.size);
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

#include "FakeFileSystem.h"

#include <cerrno>
#include <cstring>

#include "platform/ErrorNumbers.h"

namespace renvale::test {

namespace {
constexpr int kNotSupported = platform::kErrnoBase + ENOSYS;
}

class FakeFileSystem::File : public platform::ReadableFile {
 public:
  File(FakeFileSystem& owner, const Entry& entry) : owner_(owner), entry_(entry) {}
  qint64 Size() const override { return entry_.size; }

  qint64 ReadAt(qint64 offset, char* buffer, qint64 length) override {
    if (owner_.readCalls++ == owner_.readFailsAt) {
      errno = EIO;
      return -1;
    }
    if (offset < 0 || length < 0) return -1;
    if (offset >= entry_.size) return 0;
    length = qMin(length, entry_.size - offset);
    std::memset(buffer, 0, size_t(length));
    for (const auto& [at, bytes] : entry_.chunks) {
      const qint64 from = qMax(offset, at);
      const qint64 to = qMin(offset + length, at + bytes.size());
      if (from < to) std::memcpy(buffer + (from - offset), bytes.constData() + (from - at), size_t(to - from));
    }
    owner_.bytesRead += length;
    return length;
  }

 private:
  FakeFileSystem& owner_;
  Entry entry_;
};

void FakeFileSystem::Add(const QByteArray& path, const QByteArray& head, qint64 size) {
  Entry entry;
  entry.chunks.emplace_back(0, head);
  entry.size = size < 0 ? head.size() : size;
  files_.insert(path, entry);
}

void FakeFileSystem::Put(const QByteArray& path, qint64 offset, const QByteArray& bytes) {
  files_[path].chunks.emplace_back(offset, bytes);
}

int FakeFileSystem::OpenForRead(const QByteArray& path, std::unique_ptr<platform::ReadableFile>* file) {
  file->reset();
  if (openError != 0) return openError;
  const auto found = files_.constFind(path);
  if (found == files_.constEnd()) return platform::kFileNotFound;
  *file = std::make_unique<File>(*this, found.value());
  return platform::kNoError;
}

int FakeFileSystem::ListFiles(const QByteArray&, std::vector<QByteArray>*) { return kNotSupported; }
int FakeFileSystem::ListFolders(const QByteArray&, std::vector<QByteArray>*) { return kNotSupported; }
int FakeFileSystem::Stat(const QByteArray&, platform::FileInfo*) { return kNotSupported; }
bool FakeFileSystem::Exists(const QByteArray& path) { return files_.contains(path); }
int FakeFileSystem::RenameNoReplace(const QByteArray&, const QByteArray&) { return kNotSupported; }
int FakeFileSystem::RemoveFile(const QByteArray&) { return kNotSupported; }
int FakeFileSystem::CopyFile(const QByteArray&, const QByteArray&, bool) { return kNotSupported; }
int FakeFileSystem::MoveToTrash(const QByteArray&) { return kNotSupported; }
int FakeFileSystem::WriteWholeFile(const QByteArray&, const QByteArray&) { return kNotSupported; }
int FakeFileSystem::ReadWholeFile(const QByteArray&, qint64, QByteArray*) { return kNotSupported; }

}  // namespace renvale::test

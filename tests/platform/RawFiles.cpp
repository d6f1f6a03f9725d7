#include "RawFiles.h"

#include <ftw.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

namespace renvale::test {

namespace {

int RemoveEntry(const char* path, const struct stat*, int, struct FTW*) {
  ::remove(path);
  return 0;  // keep going: remove as much as possible
}

}  // namespace

bool WriteRaw(const QByteArray& path, const QByteArray& contents) {
  std::FILE* file = std::fopen(path.constData(), "wb");
  if (file == nullptr) return false;
  const size_t written = std::fwrite(contents.constData(), 1, static_cast<size_t>(contents.size()), file);
  return std::fclose(file) == 0 && written == static_cast<size_t>(contents.size());
}

QByteArray ReadRaw(const QByteArray& path) {
  QByteArray contents;
  std::FILE* file = std::fopen(path.constData(), "rb");
  if (file == nullptr) return contents;
  char buffer[4096];
  size_t n;
  while ((n = std::fread(buffer, 1, sizeof buffer, file)) > 0) contents.append(buffer, static_cast<qsizetype>(n));
  std::fclose(file);
  return contents;
}

bool RawExists(const QByteArray& path) {
  struct stat st;
  return ::lstat(path.constData(), &st) == 0;
}

ScratchFolder::ScratchFolder(const QByteArray& parent) {
  QByteArray pattern = parent + "/renvale-scratch-XXXXXX";
  if (::mkdtemp(pattern.data()) == nullptr) std::abort();
  path_ = pattern + '/';
}

ScratchFolder::~ScratchFolder() { ::nftw(path_.constData(), RemoveEntry, 16, FTW_DEPTH | FTW_PHYS); }

}  // namespace renvale::test

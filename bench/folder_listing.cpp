// Listing a folder of 100,000 files: a bare readdir loop (the floor), readdir
// with a stat of each entry (what a naive listing costs), the platform's
// ListFiles, and the file list's full listing with filter and natural sort.
#include <benchmark/benchmark.h>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

#include "core/FolderListing.h"
#include "platform/FileSystem.h"

namespace {

constexpr int kFileCount = 100000;
const QByteArray kFolder = "/tmp/renvale-bench-100k/";
const QByteArray kCompleteMark = ".complete";

// A camera-card mix: upper- and lower-case pictures, RAW files and a few
// that the picture filter leaves out.
QByteArray BenchName(int i) {
  char name[64];
  if (i % 50 == 0)
    std::snprintf(name, sizeof name, "notes%d.txt", i);
  else if (i % 10 == 0)
    std::snprintf(name, sizeof name, "DSC%05d.NEF", i);
  else if (i % 3 == 0)
    std::snprintf(name, sizeof name, "img_%d.jpg", i);
  else
    std::snprintf(name, sizeof name, "IMG_%d.JPG", i);
  return name;
}

bool Touch(const QByteArray& path) {
  const int fd = ::open(path.constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0644);
  if (fd < 0) return false;
  ::close(fd);
  return true;
}

// Built once and reused across runs; the mark is written last, so an
// interrupted build is completed next time.
void EnsureBenchFolder() {
  static bool ready = false;
  if (ready) return;
  struct stat st;
  if (::stat((kFolder + kCompleteMark).constData(), &st) != 0) {
    ::mkdir(kFolder.constData(), 0755);
    for (int i = 0; i < kFileCount; ++i) {
      if (!Touch(kFolder + BenchName(i))) std::abort();
    }
    if (!Touch(kFolder + kCompleteMark)) std::abort();
  }
  ready = true;
}

void BM_BareReaddir(benchmark::State& state) {
  EnsureBenchFolder();
  for (auto _ : state) {
    DIR* dir = ::opendir(kFolder.constData());
    size_t count = 0;
    while (const dirent* entry = ::readdir(dir)) count += entry->d_name[0] != 0;
    ::closedir(dir);
    benchmark::DoNotOptimize(count);
  }
}

void BM_ReaddirWithStat(benchmark::State& state) {
  EnsureBenchFolder();
  for (auto _ : state) {
    DIR* dir = ::opendir(kFolder.constData());
    size_t files = 0;
    struct stat st;
    while (const dirent* entry = ::readdir(dir)) {
      if (::fstatat(::dirfd(dir), entry->d_name, &st, 0) == 0 && S_ISREG(st.st_mode)) ++files;
    }
    ::closedir(dir);
    benchmark::DoNotOptimize(files);
  }
}

void BM_PlatformListFiles(benchmark::State& state) {
  EnsureBenchFolder();
  std::vector<QByteArray> names;
  for (auto _ : state) {
    renvale::platform::RealFileSystem().ListFiles(kFolder, &names);
    benchmark::DoNotOptimize(names.data());
  }
  state.counters["names"] = double(names.size());
}

void ListWithFilter(benchmark::State& state, renvale::core::FileFilter filter) {
  EnsureBenchFolder();
  std::vector<renvale::platform::FileName> files;
  for (auto _ : state) {
    renvale::core::ListFolderFiles(renvale::platform::RealFileSystem(), kFolder, filter, &files);
    benchmark::DoNotOptimize(files.data());
  }
  state.counters["files"] = double(files.size());
}

void BM_FolderListingAllFiles(benchmark::State& state) { ListWithFilter(state, renvale::core::FileFilter::AllFiles); }
void BM_FolderListingImages(benchmark::State& state) {
  ListWithFilter(state, renvale::core::FileFilter::TypicalImages);
}

BENCHMARK(BM_BareReaddir)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ReaddirWithStat)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_PlatformListFiles)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_FolderListingAllFiles)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_FolderListingImages)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();

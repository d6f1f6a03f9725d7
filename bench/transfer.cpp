// Moving and copying 10,000 JPEGs of 10 to 30 KB, warm in the cache:
//  - copy and move from a tmpfs (as from a memory card) to the disk, against
//    the floor `cp -p` of the same files followed by `sync` (and `rm` of the
//    sources for a move);
//  - a move within the disk's file system, against `mv`.
// Each round runs a contender right after its floor on fresh files, and the
// median of the rounds' ratios is the figure to quote.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "fileops/FileTransfer.h"
#include "support/ScriptedMessagePort.h"

namespace {

constexpr int kFileCount = 10000;

const std::string kCard = "/dev/shm/renvale-bench-card";
const std::string kDisk = "/tmp/renvale-bench-disk";
const std::string kDiskSource = "/tmp/renvale-bench-disk-source";

void Shell(const std::string& command) {
  if (std::system(command.c_str()) != 0) std::abort();
}

// Fresh, distinct pictures in `folder`; the destination emptied; the disk
// settled, so that no contender pays for the writeback of its set-up.
void Prepare(const std::string& folder) {
  static std::vector<QByteArray> pictures = [] {
    std::mt19937 random(7);
    std::vector<QByteArray> made;
    for (int i = 0; i < kFileCount; ++i) {
      QByteArray bytes(10 * 1024 + static_cast<int>(random() % (20 * 1024)), '\0');
      for (char& c : bytes) c = static_cast<char>(random());
      bytes[0] = '\xff';
      bytes[1] = '\xd8';
      made.push_back(bytes);
    }
    return made;
  }();
  Shell("rm -rf " + folder + " " + kDisk + " && mkdir -p " + folder + " " + kDisk);
  for (int i = 0; i < kFileCount; ++i) {
    const std::string path = folder + "/IMG_" + std::to_string(i) + ".JPG";
    const int fd = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    const QByteArray& bytes = pictures[static_cast<size_t>(i)];
    if (fd < 0 || ::write(fd, bytes.constData(), static_cast<size_t>(bytes.size())) != bytes.size()) std::abort();
    ::close(fd);
  }
  ::sync();
}

template <typename Work>
double Seconds(Work&& work) {
  const auto before = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - before).count();
}

class AllSelected : public renvale::fileops::TransferView {
 public:
  explicit AllSelected(const std::string& folder) {
    std::vector<QByteArray> names;
    renvale::platform::RealFileSystem().ListFiles(QByteArray::fromStdString(folder), &names);
    std::sort(names.begin(), names.end());
    for (const QByteArray& name : names) selected_.push_back({name});
  }
  std::vector<renvale::platform::FileName> SelectedFiles() const override { return selected_; }
  void SetTransferring(bool, int) override {}
  void AdvanceProgress() override {}
  void ProcessEvents() override {}
  bool CancelRequested() const override { return false; }
  void ShowMode() override {}
  void ShowHistory() override {}
  void RefreshFileList() override {}
  void ShowSmartNameResults(const QString&) override {}

 private:
  std::vector<renvale::platform::FileName> selected_;
};

// Empty when every file arrived without a word but the success line.
std::string Renvale(const std::string& source, int mode, double* seconds) {
  AllSelected view(source);
  renvale::core::SettingsRecord settings;
  settings.transferMode = mode;
  renvale::test::ScriptedMessagePort port;
  *seconds = Seconds([&] {
    renvale::fileops::FileTransfer({QByteArray::fromStdString(source), settings, port, renvale::platform::RealFileSystem(),
                                    view})
        .Run(QByteArray::fromStdString(kDisk));
  });
  std::vector<QByteArray> arrived;
  renvale::platform::RealFileSystem().ListFiles(QByteArray::fromStdString(kDisk), &arrived);
  if (port.messages.size() != 1 || !port.Last().text.endsWith(QStringLiteral("successfully."))) {
    return port.messages.empty() ? "no result" : port.Last().text.toStdString();
  }
  return arrived.size() == kFileCount ? std::string() : "not every file arrived";
}

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values.empty() ? 0 : values[values.size() / 2];
}

// One contender of Renvale against its floor command, `rounds` times.
void AgainstFloor(benchmark::State& state, const std::string& source, int mode, const std::string& floorCommand) {
  std::vector<double> floorMs, renvaleMs, ratio;
  for (auto _ : state) {
    Prepare(source);
    const double floor = Seconds([&] { Shell(floorCommand); });
    Prepare(source);
    double ours = 0;
    const std::string error = Renvale(source, mode, &ours);
    if (!error.empty()) {
      state.SkipWithError(error.c_str());
      return;
    }
    floorMs.push_back(floor * 1000);
    renvaleMs.push_back(ours * 1000);
    ratio.push_back(ours / floor);
  }
  state.counters["floor_ms"] = Median(floorMs);
  state.counters["renvale_ms"] = Median(renvaleMs);
  state.counters["renvale_x"] = Median(ratio);
}

const std::string kCopyFloor = "cd " + kCard + " && cp -p -- * " + kDisk + "/ && sync";

void BM_CopyAcrossFileSystems(benchmark::State& state) {
  AgainstFloor(state, kCard, renvale::fileops::kCopyMode, kCopyFloor);
}

void BM_MoveAcrossFileSystems(benchmark::State& state) {
  AgainstFloor(state, kCard, renvale::fileops::kMoveMode, kCopyFloor + " && rm -f -- *");
}

void BM_MoveWithinOneFileSystem(benchmark::State& state) {
  AgainstFloor(state, kDiskSource, renvale::fileops::kMoveMode, "cd " + kDiskSource + " && mv -- * " + kDisk + "/");
}

BENCHMARK(BM_CopyAcrossFileSystems)->Unit(benchmark::kSecond)->Iterations(5);
BENCHMARK(BM_MoveAcrossFileSystems)->Unit(benchmark::kSecond)->Iterations(5);
BENCHMARK(BM_MoveWithinOneFileSystem)->Unit(benchmark::kSecond)->Iterations(5);

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  Shell("rm -rf " + kCard + " " + kDisk + " " + kDiskSource);
  return 0;
}

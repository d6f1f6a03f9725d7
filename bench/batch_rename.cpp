// A batch of 10,000 JPEGs renamed by "%DATE% %TIME% %SERIES%" through the real
// main window (offscreen, every question answered by script), against a
// floor that opens each file, reads its first 64 KiB, finds the date, closes
// it and renames it; and `jhead -n` on the same files when it is installed.
//
// The machine's speed drifts from second to second, so the three run in
// rounds, one after the other on fresh copies of the folder, and each
// round's ratio to its own floor is reported; the median over the rounds is
// the figure to quote.
#include <benchmark/benchmark.h>
#include <dirent.h>
#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <cstdlib>
#include <algorithm>
#include <chrono>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "common/BenchPictures.h"
#include "fileops/Journal.h"
#include "platform/FileSystem.h"
#include "platform/MountList.h"
#include "platform/QtSettingsStorage.h"
#include "shell/FileListModel.h"
#include "shell/MainWindow.h"
#include "shell/PreviewPane.h"
#include "shell/SilentQuickTips.h"
#include "support/MemoryFileSystem.h"
#include "support/SampleImages.h"
#include "support/ScriptedMessagePort.h"

namespace {

using renvale::bench::MakeBatchFolder;
using renvale::bench::PictureName;
constexpr int kFileCount = renvale::bench::kPictureCount;
const QByteArray kFolder = renvale::bench::kBatchFolder;

// User and system CPU seconds of this process so far.
struct CpuSplit {
  double user = 0;
  double system = 0;
};

CpuSplit CpuNow() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return {usage.ru_utime.tv_sec + usage.ru_utime.tv_usec / 1e6, usage.ru_stime.tv_sec + usage.ru_stime.tv_usec / 1e6};
}

// Wall time of one timed run, and how its CPU time split between our code
// and the kernel: that tells a slow batch's own work from its system calls.
struct Run {
  double seconds = 0;
  double userSeconds = 0;
  double systemSeconds = 0;
};

template <typename Work>
Run Time(Work&& work) {
  const CpuSplit cpuBefore = CpuNow();
  const auto before = std::chrono::steady_clock::now();
  work();
  const auto after = std::chrono::steady_clock::now();
  const CpuSplit cpuAfter = CpuNow();
  return {std::chrono::duration<double>(after - before).count(), cpuAfter.user - cpuBefore.user,
          cpuAfter.system - cpuBefore.system};
}

std::vector<std::string> Names() {
  std::vector<std::string> names;
  DIR* dir = opendir(kFolder.constData());
  while (dirent* entry = readdir(dir)) {
    if (entry->d_name[0] != '.') names.emplace_back(entry->d_name);
  }
  closedir(dir);
  return names;
}

Run FloorOnce() {
  MakeBatchFolder();
  const std::vector<std::string> names = Names();
  std::vector<char> buffer(64 * 1024);
  return Time([&] {
    int serial = 0;
    for (const std::string& name : names) {
      const std::string path = kFolder.toStdString() + name;
      const int fd = open(path.c_str(), O_RDONLY);
      const ssize_t got = read(fd, buffer.data(), buffer.size());
      close(fd);
      // The first "yyyy:mm:dd hh:mm:ss" in the head.
      const char* found = nullptr;
      for (ssize_t i = 0; i + 19 <= got && found == nullptr; ++i) {
        const char* p = buffer.data() + i;
        if (p[4] == ':' && p[7] == ':' && p[10] == ' ' && p[13] == ':' && p[16] == ':') found = p;
      }
      std::string target = kFolder.toStdString() + (found ? std::string(found, 10) : "none") + " " +
                           std::to_string(++serial) + ".JPG";
      rename(path.c_str(), target.c_str());
    }
  });
}

// The real main window with scripted answers, shown on the offscreen screen,
// keeping its plans in a journal as the program does (or, to tell the
// journal's cost, without one).
class RenvaleWindow {
 public:
  explicit RenvaleWindow(bool journaled)
      : storage_(settingsDir_.path() + QStringLiteral("/Renvale.conf")),
        journal_(renvale::platform::RealFileSystem(), QFile::encodeName(settingsDir_.path()) + '/', messages_),
        window_({renvale::platform::RealFileSystem(), messages_, storage_, tips_,
                 [](QWidget*, const QString&, const QString&) { return QString(); },
                 [] { return std::vector<renvale::platform::Volume>{}; }, [] { return QByteArrayLiteral("/tmp/"); },
                 journaled ? &journal_ : nullptr}) {
    window_.Start();
    window_.show();
  }

  // Empty when every file was renamed without a word.
  std::string BatchOnce(Run* run) {
    // The last batch previews its last file in the background; the folder
    // is made anew under it, and a decode that then finds its file gone
    // would rightly say so. Letting go of the preview first, as opening
    // another folder does, keeps that out of the figures.
    window_.Preview().ReleasePreview();
    MakeBatchFolder();
    window_.ChangeFolder(kFolder);
    window_.SelectAll();
    QApplication::processEvents();
    window_.Ui().Text1->setText(QStringLiteral("%DATE% %TIME% %SERIES%"));
    *run = Time([&] { window_.Ui().Command11->click(); });
    if (!messages_.messages.empty()) return messages_.Last().text.toStdString();
    if (window_.Files().Count() != kFileCount || Names().front().rfind("IMG_", 0) == 0) {
      return "the batch did not rename every file: " + std::to_string(window_.Files().Count()) + " listed, first " +
             (Names().empty() ? std::string("none") : Names().front());
    }
    return {};
  }

 private:
  QTemporaryDir settingsDir_;
  renvale::platform::QtSettingsStorage storage_;
  renvale::test::ScriptedMessagePort messages_;
  renvale::shell::SilentQuickTips tips_;
  renvale::fileops::Journal journal_;
  renvale::shell::MainWindow window_;
};

bool JheadInstalled() { return system("command -v jhead >/dev/null 2>&1") == 0; }

Run JheadOnce() {
  MakeBatchFolder();
  const std::string command = "cd " + kFolder.toStdString() + " && jhead -q -n%Y-%m-%d_%H-%M-%S *.JPG >/dev/null";
  return Time([&] {
    if (system(command.c_str()) != 0) std::abort();
  });
}

double Median(std::vector<double> values) {
  if (values.empty()) return 0;
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

void Report(benchmark::State& state, const char* name, const std::vector<double>& values, double scale = 1) {
  state.counters[name] = Median(values) * scale;
}

void BM_BatchAgainstFloor(benchmark::State& state) {
  RenvaleWindow window(state.range(0) != 0);
  const bool jhead = JheadInstalled();
  std::vector<double> floorMs, renvaleMs, jheadMs, renvaleRatio, jheadRatio, userMs, sysMs;
  for (auto _ : state) {
    const Run floor = FloorOnce();
    Run batch;
    const std::string error = window.BatchOnce(&batch);
    if (!error.empty()) {
      state.SkipWithError(error.c_str());
      return;
    }
    floorMs.push_back(floor.seconds);
    renvaleMs.push_back(batch.seconds);
    renvaleRatio.push_back(batch.seconds / floor.seconds);
    userMs.push_back(batch.userSeconds);
    sysMs.push_back(batch.systemSeconds);
    if (jhead) {
      const Run tool = JheadOnce();
      jheadMs.push_back(tool.seconds);
      jheadRatio.push_back(tool.seconds / floor.seconds);
    }
  }
  Report(state, "floor_ms", floorMs, 1000);
  Report(state, "renvale_ms", renvaleMs, 1000);
  Report(state, "renvale_x", renvaleRatio);
  Report(state, "renvale_user_ms", userMs, 1000);
  Report(state, "renvale_sys_ms", sysMs, 1000);
  if (jhead) {
    Report(state, "jhead_ms", jheadMs, 1000);
    Report(state, "jhead_x", jheadRatio);
  }
}

// The same batch on a folder held in memory: no disk and no kernel, so what
// it measures is the batch's own work per file, steadily enough to compare
// one change of the code with the next. With the journal (kept in memory
// too, and written on the batch's own thread) it adds what keeping the
// plan costs.
void BM_BatchWithoutDisk(benchmark::State& state) {
  const QByteArray folder = QByteArrayLiteral("/memory/card/");
  std::vector<QByteArray> pictures;
  renvale::test::ExifFields fields = renvale::test::TypicalExifFields();
  for (int i = 0; i < kFileCount; ++i) {
    fields.dateTimeOriginal = QStringLiteral("2004:07:01 %1:%2:%3")
                                  .arg(i / 3600 % 24, 2, 10, QLatin1Char('0'))
                                  .arg(i / 60 % 60, 2, 10, QLatin1Char('0'))
                                  .arg(i % 60, 2, 10, QLatin1Char('0'));
    pictures.push_back(renvale::test::MakeExifJpeg(&fields));
  }
  for (auto _ : state) {
    state.PauseTiming();
    renvale::test::MemoryFileSystem fs;
    for (int i = 0; i < kFileCount; ++i) fs.Add(folder + PictureName(i), pictures[static_cast<size_t>(i)]);
    QTemporaryDir settingsDir;
    renvale::platform::QtSettingsStorage storage(settingsDir.path() + QStringLiteral("/Renvale.conf"));
    renvale::test::ScriptedMessagePort messages;
    renvale::shell::SilentQuickTips tips;
    renvale::fileops::Journal journal(fs, QByteArrayLiteral("/memory/journal/"), messages);
    renvale::shell::MainWindow window({fs, messages, storage, tips,
                                       [](QWidget*, const QString&, const QString&) { return QString(); },
                                       [] { return std::vector<renvale::platform::Volume>{}; },
                                       [folder] { return folder; }, state.range(0) != 0 ? &journal : nullptr});
    window.Start();
    window.show();
    window.ChangeFolder(folder);
    window.SelectAll();
    QApplication::processEvents();
    window.Ui().Text1->setText(QStringLiteral("%DATE% %TIME% %SERIES%"));
    state.ResumeTiming();
    window.Ui().Command11->click();
    state.PauseTiming();
    std::vector<QByteArray> names;
    fs.ListFiles(folder, &names);
    if (!messages.messages.empty() || names.size() != kFileCount || names.front().startsWith("IMG_")) {
      state.SkipWithError("the batch did not rename every file");
    }
    state.ResumeTiming();
  }
  state.counters["us_per_file"] =
      benchmark::Counter(kFileCount, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert,
                         benchmark::Counter::kIs1000);
}

BENCHMARK(BM_BatchWithoutDisk)->Unit(benchmark::kMillisecond)->Iterations(5)->UseRealTime()->ArgName("journal")->Arg(0)->Arg(1);

// Each round makes the folder three times (a few seconds each); seven rounds
// give a steady median.
// Argument 1: with the journal, as the program runs; 0: without it.
BENCHMARK(BM_BatchAgainstFloor)->Unit(benchmark::kSecond)->Iterations(7)->ArgName("journal")->Arg(1)->Arg(0);

}  // namespace

int main(int argc, char** argv) {
  if (std::getenv("QT_QPA_PLATFORM") == nullptr) setenv("QT_QPA_PLATFORM", "offscreen", 1);
  QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  renvale::bench::RemoveBatchFolders();
  return 0;
}

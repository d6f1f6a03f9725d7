// A batch of 10,000 JPEGs renamed by "%DATE% %TIME% %SERIES%" through the real
// main window (offscreen, every question answered by script), against a
// floor that opens each file, reads its first 64 KiB, finds the date, closes
// it and renames it; and `jhead -n` on the same files when it is installed.
#include <benchmark/benchmark.h>
#include <dirent.h>
#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "platform/FileSystem.h"
#include "platform/MountList.h"
#include "platform/QtSettingsStorage.h"
#include "shell/FileListModel.h"
#include "shell/MainWindow.h"
#include "shell/SilentQuickTips.h"
#include "support/SampleImages.h"
#include "support/ScriptedMessagePort.h"

namespace {

constexpr int kFileCount = 10000;
const QByteArray kFolder = QByteArrayLiteral("/tmp/renvale-bench-batch/");

// A fresh folder of distinct pictures, one second apart.
void MakeFolder() {
  QDir(QString::fromUtf8(kFolder)).removeRecursively();
  QDir().mkpath(QString::fromUtf8(kFolder));
  renvale::test::ExifFields fields = renvale::test::TypicalExifFields();
  for (int i = 0; i < kFileCount; ++i) {
    fields.dateTimeOriginal = QStringLiteral("2004:07:%1 %2:%3:%4")
                                  .arg(1 + i / 86400, 2, 10, QLatin1Char('0'))
                                  .arg(i / 3600 % 24, 2, 10, QLatin1Char('0'))
                                  .arg(i / 60 % 60, 2, 10, QLatin1Char('0'))
                                  .arg(i % 60, 2, 10, QLatin1Char('0'));
    const QByteArray bytes = renvale::test::MakeExifJpeg(&fields);
    const QByteArray path = kFolder + "IMG_" + QByteArray::number(i) + ".JPG";
    const int fd = open(path.constData(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    if (fd < 0 || write(fd, bytes.constData(), static_cast<size_t>(bytes.size())) != bytes.size()) std::abort();
    close(fd);
  }
}

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

// Reports how the timed part's CPU time splits between our code and the
// kernel, which tells a slow batch's own work from its system calls.
class CpuCounters {
 public:
  void Start() { start_ = CpuNow(); }
  void Stop() {
    const CpuSplit now = CpuNow();
    user_ += now.user - start_.user;
    system_ += now.system - start_.system;
  }
  void Report(benchmark::State& state) const {
    state.counters["user_ms"] = benchmark::Counter(user_ * 1000, benchmark::Counter::kAvgIterations);
    state.counters["sys_ms"] = benchmark::Counter(system_ * 1000, benchmark::Counter::kAvgIterations);
  }

 private:
  CpuSplit start_;
  double user_ = 0;
  double system_ = 0;
};

std::vector<std::string> Names() {
  std::vector<std::string> names;
  DIR* dir = opendir(kFolder.constData());
  while (dirent* entry = readdir(dir)) {
    if (entry->d_name[0] != '.') names.emplace_back(entry->d_name);
  }
  closedir(dir);
  return names;
}

void BM_Floor(benchmark::State& state) {
  std::vector<char> buffer(64 * 1024);
  CpuCounters cpu;
  for (auto _ : state) {
    state.PauseTiming();
    MakeFolder();
    const std::vector<std::string> names = Names();
    state.ResumeTiming();
    cpu.Start();
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
    cpu.Stop();
  }
  cpu.Report(state);
}

void BM_RenvaleBatch(benchmark::State& state) {
  QTemporaryDir settingsDir;
  renvale::platform::QtSettingsStorage storage(settingsDir.path() + QStringLiteral("/Renvale.conf"));
  renvale::test::ScriptedMessagePort messages;
  renvale::shell::SilentQuickTips tips;
  renvale::shell::MainWindowServices services{
      renvale::platform::RealFileSystem(), messages, storage, tips,
      [](QWidget*, const QString&, const QString&) { return QString(); },
      [] { return std::vector<renvale::platform::Volume>{}; }, [] { return QByteArrayLiteral("/tmp/"); }};
  renvale::shell::MainWindow window(std::move(services));
  window.Start();
  window.show();
  CpuCounters cpu;
  for (auto _ : state) {
    state.PauseTiming();
    MakeFolder();
    window.ChangeFolder(kFolder);
    window.SelectAll();
    QApplication::processEvents();
    window.Ui().Text1->setText(QStringLiteral("%DATE% %TIME% %SERIES%"));
    state.ResumeTiming();
    cpu.Start();
    window.Ui().Command11->click();
    cpu.Stop();
    state.PauseTiming();
    if (!messages.messages.empty()) state.SkipWithError(messages.Last().text.toUtf8().constData());
    if (window.Files().Count() != kFileCount || Names().front().rfind("IMG_", 0) == 0) {
      state.SkipWithError("batch did not rename every file");
    }
    state.ResumeTiming();
  }
  cpu.Report(state);
}

void BM_JheadRename(benchmark::State& state) {
  if (system("command -v jhead >/dev/null 2>&1") != 0) {
    state.SkipWithError("jhead is not installed");
    return;
  }
  const std::string command = "cd " + kFolder.toStdString() + " && jhead -q -n%Y-%m-%d_%H-%M-%S *.JPG >/dev/null";
  for (auto _ : state) {
    state.PauseTiming();
    MakeFolder();
    state.ResumeTiming();
    if (system(command.c_str()) != 0) state.SkipWithError("jhead failed");
  }
}

BENCHMARK(BM_Floor)->Unit(benchmark::kMillisecond)->Iterations(3)->UseRealTime();
BENCHMARK(BM_RenvaleBatch)->Unit(benchmark::kMillisecond)->Iterations(3)->UseRealTime();
BENCHMARK(BM_JheadRename)->Unit(benchmark::kMillisecond)->Iterations(3)->UseRealTime();

}  // namespace

int main(int argc, char** argv) {
  if (std::getenv("QT_QPA_PLATFORM") == nullptr) setenv("QT_QPA_PLATFORM", "offscreen", 1);
  QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  QDir(QString::fromUtf8(kFolder)).removeRecursively();
  return 0;
}

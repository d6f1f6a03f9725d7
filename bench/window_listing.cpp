// 100,000 files listed into the real main window and all selected, beside a
// bare readdir loop over the same folder.
#include <benchmark/benchmark.h>
#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

#include <QApplication>
#include <QDir>
#include <QItemSelectionModel>
#include <QListView>
#include <QTemporaryDir>
#include <cstdio>
#include <cstdlib>

#include "platform/FileSystem.h"
#include "platform/MountList.h"
#include "platform/QtSettingsStorage.h"
#include "shell/FileListModel.h"
#include "shell/MainWindow.h"
#include "shell/SilentQuickTips.h"
#include "support/ScriptedMessagePort.h"

namespace {

constexpr int kFileCount = 100000;
const QByteArray kFolder = QByteArrayLiteral("/tmp/renvale-bench-window-100k/");

// Builds the folder once; later runs reuse it.
void MakeFolder() {
  QDir().mkpath(QString::fromUtf8(kFolder));
  const QByteArray marker = kFolder + "IMG_" + QByteArray::number(kFileCount - 1) + ".JPG";
  if (access(marker.constData(), F_OK) == 0) return;
  for (int i = 0; i < kFileCount; ++i) {
    const QByteArray path = kFolder + "IMG_" + QByteArray::number(i) + ".JPG";
    const int fd = open(path.constData(), O_WRONLY | O_CREAT, 0644);
    if (fd >= 0) close(fd);
  }
}

struct Harness {
  QTemporaryDir settingsDir;
  renvale::platform::QtSettingsStorage storage{settingsDir.path() + QStringLiteral("/Renvale.conf")};
  renvale::test::ScriptedMessagePort messages;
  renvale::shell::SilentQuickTips tips;
  std::unique_ptr<renvale::shell::MainWindow> window;

  Harness() {
    renvale::shell::MainWindowServices services{
        renvale::platform::RealFileSystem(), messages, storage, tips,
        [](QWidget*, const QString&, const QString&) { return QString(); },
        [] { return std::vector<renvale::platform::Volume>{}; }, [] { return QByteArrayLiteral("/tmp/"); }};
    window = std::make_unique<renvale::shell::MainWindow>(std::move(services));
    window->Start();
    window->show();
    QApplication::processEvents();
  }
};

void BM_BareReaddir(benchmark::State& state) {
  for (auto _ : state) {
    DIR* dir = opendir(kFolder.constData());
    int count = 0;
    while (dirent* entry = readdir(dir)) count += entry->d_name[0] != '.';
    closedir(dir);
    benchmark::DoNotOptimize(count);
  }
}

// Listing, filtering, sorting and showing: from the folder change until the
// window has painted the list.
void BM_WindowListsFolder(benchmark::State& state) {
  Harness harness;
  for (auto _ : state) {
    harness.window->ChangeFolder(kFolder);
    QApplication::processEvents();
    state.PauseTiming();
    if (harness.window->Files().Count() != kFileCount) state.SkipWithError("wrong count");
    harness.window->ChangeFolder("/tmp/");
    QApplication::processEvents();
    state.ResumeTiming();
  }
}

void BM_WindowSelectsAll(benchmark::State& state) {
  Harness harness;
  harness.window->ChangeFolder(kFolder);
  QApplication::processEvents();
  for (auto _ : state) {
    harness.window->SelectAll();
    QApplication::processEvents();
    state.PauseTiming();
    if (harness.window->Session().SelectedCount != kFileCount) state.SkipWithError("not all selected");
    harness.window->Ui().File1->clearSelection();
    QApplication::processEvents();
    state.ResumeTiming();
  }
}

BENCHMARK(BM_BareReaddir)->Unit(benchmark::kMillisecond)->Iterations(10);
BENCHMARK(BM_WindowListsFolder)->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(BM_WindowSelectsAll)->Unit(benchmark::kMillisecond)->Iterations(5);

}  // namespace

int main(int argc, char** argv) {
  if (std::getenv("QT_QPA_PLATFORM") == nullptr) setenv("QT_QPA_PLATFORM", "offscreen", 1);
  QApplication app(argc, argv);
  MakeFolder();
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}

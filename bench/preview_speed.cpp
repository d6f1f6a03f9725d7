// From selecting a file to its preview on screen in the real window
// (offscreen): 30 camera-size JPEGs (6000 x 4000, some turned by their EXIF
// orientation) and RAW-shaped files with embedded previews, beside a plain
// full-size QImageReader decode of the same files. Counters give the median
// per file (wall and processor time), the longest time the window's event
// loop was kept waiting (at the first file, and after it), and how far the
// memory grew while arrowing through all of them.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <QApplication>
#include <QBuffer>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QImageReader>
#include <QItemSelectionModel>
#include <QListView>
#include <QPainter>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdlib>
#include <ctime>

#include "platform/FileSystem.h"
#include "platform/QtSettingsStorage.h"
#include "shell/FileListModel.h"
#include "shell/MainWindow.h"
#include "shell/PreviewPane.h"
#include "shell/SilentQuickTips.h"
#include "support/SampleImages.h"
#include "support/ScriptedMessagePort.h"

namespace {

constexpr int kJpegCount = 30;
constexpr int kRawCount = 6;
constexpr int kTickMs = 4;
const QString kJpegFolder = QStringLiteral("/tmp/renvale-bench-preview/jpeg/");
const QString kRawFolder = QStringLiteral("/tmp/renvale-bench-preview/raw/");

QByteArray Le16(quint16 v) { return QByteArray(1, char(v & 0xFF)) + char(v >> 8); }
QByteArray Le32(quint32 v) { return Le16(quint16(v)) + Le16(quint16(v >> 16)); }

// A busy camera-like picture, so that the JPEG is as heavy as a real one.
QByteArray CameraJpeg(int width, int height, int seed, int orientation) {
  QImage image(width, height, QImage::Format_RGB32);
  QPainter painter(&image);
  QLinearGradient gradient(0, 0, width, height);
  gradient.setColorAt(0, QColor::fromHsv((seed * 37) % 360, 200, 230));
  gradient.setColorAt(1, QColor::fromHsv((seed * 91) % 360, 160, 60));
  painter.fillRect(image.rect(), gradient);
  for (int i = 0; i < 400; ++i) {
    painter.setPen(QColor::fromHsv((i * 13 + seed) % 360, 255, 255));
    painter.drawEllipse((i * 7919) % width, (i * 104729) % height, 40 + i % 300, 30 + i % 200);
  }
  painter.end();
  QByteArray jpeg;
  QBuffer buffer(&jpeg);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "JPEG", 90);
  renvale::test::ExifFields exif = renvale::test::TypicalExifFields();
  exif.orientation = orientation;
  const QByteArray body = QByteArray("Exif\0\0", 6) + renvale::test::MakeExifTiff(exif, false);
  const int length = int(body.size()) + 2;
  return jpeg.left(2) + QByteArray("\xFF\xE1", 2) + char(length >> 8) + char(length & 0xFF) + body + jpeg.mid(2);
}

// A NEF-shaped file: IFD0 with a small thumbnail, a sub-IFD with the
// 1620 x 1080 preview, and 20 MB standing for the sensor data.
QByteArray NefShaped(const QByteArray& preview, const QByteArray& thumbnail) {
  const quint32 thumbAt = 8 + 2 + 3 * 12 + 4 + 2 + 2 * 12 + 4;
  const quint32 subAt = 8 + 2 + 3 * 12 + 4;
  const quint32 previewAt = thumbAt + quint32(thumbnail.size());
  QByteArray file = QByteArray("II*\0", 4) + Le32(8);
  file += Le16(3) + Le16(0x014A) + Le16(4) + Le32(1) + Le32(subAt);
  file += Le16(0x0201) + Le16(4) + Le32(1) + Le32(thumbAt);
  file += Le16(0x0202) + Le16(4) + Le32(1) + Le32(quint32(thumbnail.size())) + Le32(0);
  file += Le16(2) + Le16(0x0201) + Le16(4) + Le32(1) + Le32(previewAt);
  file += Le16(0x0202) + Le16(4) + Le32(1) + Le32(quint32(preview.size())) + Le32(0);
  return file + thumbnail + preview + QByteArray(20 << 20, '\x5A');
}

void MakeFolders() {
  QDir().mkpath(kJpegFolder);
  QDir().mkpath(kRawFolder);
  for (int i = 0; i < kJpegCount; ++i) {
    const QString path = kJpegFolder + QStringLiteral("IMG_%1.JPG").arg(i, 4, 10, QLatin1Char('0'));
    if (!QFile::exists(path)) renvale::test::WriteFile(path, CameraJpeg(6000, 4000, i, i % 3 == 0 ? 6 : 1));
  }
  for (int i = 0; i < kRawCount; ++i) {
    const QString path = kRawFolder + QStringLiteral("DSC_%1.NEF").arg(i, 4, 10, QLatin1Char('0'));
    if (!QFile::exists(path)) {
      renvale::test::WriteFile(path, NefShaped(CameraJpeg(1620, 1080, i, 1), CameraJpeg(160, 120, i, 1)));
    }
  }
  const QString cr3 = QString::fromLocal8Bit(qgetenv("RENVALE_TESTDATA")) + "/preview/exiv2__Canon-R6-pruned.CR3";
  if (QFile::exists(cr3)) QFile::copy(cr3, kRawFolder + "IMG_R6.CR3");
}

qint64 ResidentKb() {
  QFile status(QStringLiteral("/proc/self/status"));
  if (!status.open(QIODevice::ReadOnly)) return 0;
  for (const QByteArray& line : status.readAll().split('\n')) {
    if (line.startsWith("VmRSS:")) return line.mid(6).trimmed().split(' ').first().toLongLong();
  }
  return 0;
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

// Processor time of the whole program, the figure a busy shared machine
// leaves comparable between runs.
double ProcessCpuMs() {
  timespec now{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
  return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
}

double Median(std::vector<double> values) {
  if (values.empty()) return 0;
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

// Selects each file of the folder in turn, as arrowing does, and waits for
// its picture. A timer that fires whenever the loop is free measures the
// longest stretch the loop was kept from it.
void ArrowThrough(benchmark::State& state, const QString& folder) {
  Harness harness;
  harness.window->ChangeFolder(QFile::encodeName(folder));
  QApplication::processEvents();
  renvale::shell::MainWindow& main = *harness.window;
  const int count = main.Files().Count();
  std::vector<double> times;
  std::vector<double> cpuTimes;
  double longestStall = 0;
  double firstStall = 0;
  QElapsedTimer sinceTick;
  QTimer ticker;
  // Every few milliseconds rather than whenever the loop is idle: a timer
  // that never lets the thread sleep would take from the decoder the very
  // processor time being measured.
  ticker.setTimerType(Qt::PreciseTimer);
  ticker.setInterval(kTickMs);
  QObject::connect(&ticker, &QTimer::timeout, [&] {
    longestStall = std::max(longestStall, sinceTick.nsecsElapsed() / 1e6 - kTickMs);
    sinceTick.start();
  });
  int shown = 0;
  QObject::connect(&main.Preview(), &renvale::shell::PreviewPane::PictureShown, [&] { ++shown; });
  const qint64 rssBefore = ResidentKb();
  qint64 rssAfterFirst = 0;
  for (auto _ : state) {
    for (int row = 0; row < count; ++row) {
      shown = 0;
      QElapsedTimer clock;
      clock.start();
      const double cpuStart = ProcessCpuMs();
      sinceTick.start();
      ticker.start();
      main.Ui().File1->selectionModel()->setCurrentIndex(main.Files().index(row),
                                                         QItemSelectionModel::ClearAndSelect);

      while (shown == 0 && clock.elapsed() < 10000) {
        QApplication::processEvents(QEventLoop::WaitForMoreEvents, 5);
      }
      ticker.stop();
      if (shown == 0) state.SkipWithError("no preview");
      times.push_back(clock.nsecsElapsed() / 1e6);
      cpuTimes.push_back(ProcessCpuMs() - cpuStart);
      // The window's first picture pays once for what later ones reuse.
      if (row == 0 && rssAfterFirst == 0) std::swap(firstStall, longestStall);
    }
    if (rssAfterFirst == 0) rssAfterFirst = ResidentKb();
  }
  state.counters["files"] = count;
  state.counters["median_ms"] = Median(times);
  state.counters["cpu_ms"] = Median(cpuTimes);
  state.counters["worst_ms"] = *std::max_element(times.begin(), times.end());
  state.counters["loop_stall_first_file_ms"] = firstStall;
  state.counters["loop_stall_later_ms"] = longestStall;
  state.counters["rss_first_pass_mb"] = double(rssAfterFirst - rssBefore) / 1024;
  state.counters["rss_growth_later_mb"] = double(ResidentKb() - rssAfterFirst) / 1024;
}

void BM_WindowPreviewsJpegs(benchmark::State& state) { ArrowThrough(state, kJpegFolder); }
void BM_WindowPreviewsRaws(benchmark::State& state) { ArrowThrough(state, kRawFolder); }

// The floor: what a plain full-size decode of the same pictures costs.
void BM_FullSizeDecode(benchmark::State& state, const QString& folder) {
  const QStringList names = QDir(folder).entryList(QDir::Files, QDir::Name);
  std::vector<double> times;
  std::vector<double> cpuTimes;
  for (auto _ : state) {
    for (const QString& name : names) {
      QElapsedTimer clock;
      clock.start();
      const double cpuStart = ProcessCpuMs();
      QImageReader reader(folder + name);
      const QImage image = reader.read();
      benchmark::DoNotOptimize(image.constBits());
      times.push_back(clock.nsecsElapsed() / 1e6);
      cpuTimes.push_back(ProcessCpuMs() - cpuStart);
    }
  }
  state.counters["median_ms"] = Median(times);
  state.counters["cpu_ms"] = Median(cpuTimes);
}

BENCHMARK_CAPTURE(BM_FullSizeDecode, jpegs, kJpegFolder)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(BM_WindowPreviewsJpegs)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_WindowPreviewsRaws)->Unit(benchmark::kMillisecond)->Iterations(3);

}  // namespace

int main(int argc, char** argv) {
  if (std::getenv("QT_QPA_PLATFORM") == nullptr) setenv("QT_QPA_PLATFORM", "offscreen", 1);
  QApplication app(argc, argv);
  MakeFolders();
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}

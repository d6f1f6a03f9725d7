// The EXIF reader's time for the exposure date and the serial number over a
// folder, against a floor that only opens each file, reads its first 64 KiB
// and closes it. Generated: 10,000 small JPEGs with EXIF dates. Real: the
// camera files of $RENVALE_TESTDATA, when present (big raws show whether a
// reader reads more than it needs).

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <memory>
#include <vector>

#include "metadata/ExifReader.h"
#include "platform/FileSystem.h"
#include "support/SampleImages.h"

namespace {

using renvale::metadata::ExifReader;

constexpr int kGeneratedFiles = 10000;
constexpr size_t kFloorRead = 64 * 1024;

std::vector<QByteArray> MakeGeneratedFolder(QTemporaryDir& dir) {
  std::vector<QByteArray> paths;
  renvale::test::ExifFields fields = renvale::test::TypicalExifFields();
  for (int i = 0; i < kGeneratedFiles; ++i) {
    fields.dateTimeOriginal = QString("2004:07:%1 18:%2:%3")
                                  .arg(1 + i % 28, 2, 10, QChar('0'))
                                  .arg(i / 60 % 60, 2, 10, QChar('0'))
                                  .arg(i % 60, 2, 10, QChar('0'));
    fields.imageNumber = 1000000 + i;
    const QString path = dir.filePath(QString("IMG_%1.JPG").arg(i, 5, 10, QChar('0')));
    if (!renvale::test::WriteFile(path, renvale::test::MakeExifJpeg(&fields, 32, 24, i % 2 == 1))) break;
    paths.push_back(QFile::encodeName(path));
  }
  return paths;
}

const std::vector<QByteArray>& GeneratedFiles() {
  static QTemporaryDir dir;
  static const std::vector<QByteArray> paths = MakeGeneratedFolder(dir);
  return paths;
}

const std::vector<QByteArray>& CameraFiles() {
  static const std::vector<QByteArray> paths = [] {
    std::vector<QByteArray> found;
    const QString root = QString::fromLocal8Bit(qgetenv("RENVALE_TESTDATA"));
    if (root.isEmpty()) return found;
    for (const char* sub : {"camera", "malformed"}) {
      const QDir dir(root + "/" + sub);
      for (const QString& name : dir.entryList(QDir::Files)) found.push_back(QFile::encodeName(dir.filePath(name)));
    }
    return found;
  }();
  return paths;
}

const std::vector<QByteArray>& Files(int set) { return set == 0 ? GeneratedFiles() : CameraFiles(); }

const char* SetName(int set) { return set == 0 ? "generated JPEGs" : "camera files"; }

void FloorPass(const std::vector<QByteArray>& paths, char* buffer) {
  for (const QByteArray& path : paths) {
    const int fd = ::open(path.constData(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) continue;
    benchmark::DoNotOptimize(::read(fd, buffer, kFloorRead));
    ::close(fd);
  }
}

// The same floor through the program's file system layer, which the reader
// uses too.
void FileSystemFloorPass(const std::vector<QByteArray>& paths, char* buffer) {
  for (const QByteArray& path : paths) {
    std::unique_ptr<renvale::platform::ReadableFile> file;
    if (renvale::platform::RealFileSystem().OpenForRead(path, &file) != 0) continue;
    benchmark::DoNotOptimize(file->ReadAt(0, buffer, kFloorRead));
  }
}

qint64 ReaderPass(const std::vector<QByteArray>& paths) {
  static const QString date("DateTimeOriginal");
  static const QString serial("ImageNumber");
  qint64 dated = 0;
  for (const QByteArray& path : paths) {
    ExifReader reader;
    reader.Load(renvale::platform::RealFileSystem(), path);
    const QString value = reader.Tag(date);
    benchmark::DoNotOptimize(reader.Tag(serial));
    dated += value.isEmpty() ? 0 : 1;
  }
  return dated;
}

template <typename Pass>
double SecondsOf(Pass&& pass) {
  const auto before = std::chrono::steady_clock::now();
  pass();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - before).count();
}

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values.empty() ? 0 : values[values.size() / 2];
}

// The machine's speed drifts, so the floor and the reader take turns over
// the same files, and each turn's ratio counts; the median ratio is the
// figure to quote.
void ReaderAgainstFloor(benchmark::State& state) {
  const std::vector<QByteArray>& paths = Files(int(state.range(0)));
  if (paths.empty()) {
    state.SkipWithError("no files (set RENVALE_TESTDATA for the camera files)");
    return;
  }
  std::unique_ptr<char[]> buffer(new char[kFloorRead]);
  std::vector<double> floorMs, fsFloorMs, readerMs, ratio;
  qint64 dated = 0;
  for (auto _ : state) {
    const double floor = SecondsOf([&] { FloorPass(paths, buffer.get()); });
    const double fsFloor = SecondsOf([&] { FileSystemFloorPass(paths, buffer.get()); });
    const double reader = SecondsOf([&] { dated = ReaderPass(paths); });
    floorMs.push_back(floor * 1000);
    fsFloorMs.push_back(fsFloor * 1000);
    readerMs.push_back(reader * 1000);
    ratio.push_back(reader / floor);
  }
  state.counters["floor_ms"] = Median(floorMs);
  state.counters["fs_floor_ms"] = Median(fsFloorMs);
  state.counters["reader_ms"] = Median(readerMs);
  state.counters["reader_x"] = Median(ratio);
  state.counters["files"] = double(paths.size());
  state.counters["dated"] = double(dated);
  state.SetLabel(SetName(int(state.range(0))));
}

BENCHMARK(ReaderAgainstFloor)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->Iterations(25);

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication app(argc, argv);
  GeneratedFiles();  // made before any timing starts
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}

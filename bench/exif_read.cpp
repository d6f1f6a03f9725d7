// The EXIF reader's time for the exposure date and the serial number over a
// folder, against a floor that only opens each file, reads its first 64 KiB
// and closes it. Generated: 10,000 small JPEGs with EXIF dates. Real: the
// camera files of $RENVALE_TESTDATA, when present (big raws show whether a
// reader reads more than it needs).
//
// A batch reads more per file than the bare reader: the formatted date and
// time, the date's origin and the file's identity. ValuesAgainstFloor times
// that read alone and through the read-ahead a batch takes it from, every
// value taken in list order as the batch takes them.

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <memory>
#include <vector>

#include "metadata/ExifReadAhead.h"
#include "metadata/ExifReader.h"
#include "metadata/ExifValues.h"
#include "platform/FileSystem.h"
#include "support/SampleImages.h"

namespace {

using renvale::metadata::ExifReader;

constexpr int kGeneratedFiles = 10000;
constexpr size_t kFloorRead = 64 * 1024;

QTemporaryDir& GeneratedDir() {
  static QTemporaryDir dir;
  return dir;
}

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
  static const std::vector<QByteArray> paths = MakeGeneratedFolder(GeneratedDir());
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

double CpuSeconds() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return double(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) +
         double(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e6;
}

struct Folder {
  QByteArray path;
  std::vector<QByteArray> names;
};

const Folder& GeneratedFolder() {
  static const Folder folder = [] {
    Folder made{QFile::encodeName(GeneratedDir().path()), {}};
    for (const QByteArray& path : GeneratedFiles()) made.names.push_back(path.mid(made.path.size() + 1));
    return made;
  }();
  return folder;
}

const renvale::metadata::ExifDateFormats kFormats{"yyyy-mm-dd", "hh-nn-ss"};

qint64 Dated(const renvale::metadata::ExifTokenValues& values) { return values.date.isEmpty() ? 0 : 1; }

// What the read-ahead thread does for each file, on this thread alone.
qint64 ValuesPass(const Folder& folder) {
  qint64 dated = 0;
  for (const QByteArray& name : folder.names) {
    QString error;
    renvale::platform::FileInfo identity;
    bool known = false;
    dated += Dated(renvale::metadata::ReadExifTokenValuesQuietly(renvale::platform::RealFileSystem(), folder.path,
                                                                  name, kFormats, &error, &identity, &known));
  }
  return dated;
}

// What a batch gets: the values read ahead and taken in list order.
qint64 ReadAheadPass(const Folder& folder) {
  renvale::metadata::ExifReadAhead ahead(renvale::platform::RealFileSystem(), folder.path, folder.names, kFormats,
                                         renvale::metadata::ExifReader::Identity::Wanted);
  qint64 dated = 0;
  for (const QByteArray& name : folder.names) {
    renvale::metadata::ExifReadAhead::Result result;
    if (ahead.Take(folder.path, name, kFormats, &result)) dated += Dated(result.values);
  }
  return dated;
}

// Wall time against the libc floor, and the read-ahead's processor time
// (both threads) against the floor's, which is steadier on a busy machine.
void ValuesAgainstFloor(benchmark::State& state) {
  const Folder& folder = GeneratedFolder();
  std::unique_ptr<char[]> buffer(new char[kFloorRead]);
  std::vector<double> floorMs, valuesMs, aheadMs, valuesX, aheadX, floorCpuMs, valuesCpuMs, aheadCpuMs;
  qint64 dated = 0;
  for (auto _ : state) {
    double cpu = CpuSeconds();
    const double floor = SecondsOf([&] { FloorPass(GeneratedFiles(), buffer.get()); });
    floorCpuMs.push_back((CpuSeconds() - cpu) * 1000);
    cpu = CpuSeconds();
    const double values = SecondsOf([&] { dated = ValuesPass(folder); });
    valuesCpuMs.push_back((CpuSeconds() - cpu) * 1000);
    cpu = CpuSeconds();
    const double ahead = SecondsOf([&] { dated = std::min(dated, ReadAheadPass(folder)); });
    aheadCpuMs.push_back((CpuSeconds() - cpu) * 1000);
    floorMs.push_back(floor * 1000);
    valuesMs.push_back(values * 1000);
    aheadMs.push_back(ahead * 1000);
    valuesX.push_back(values / floor);
    aheadX.push_back(ahead / floor);
  }
  state.counters["floor_ms"] = Median(floorMs);
  state.counters["floor_cpu_ms"] = Median(floorCpuMs);
  state.counters["values_ms"] = Median(valuesMs);
  state.counters["values_x"] = Median(valuesX);
  state.counters["values_cpu_ms"] = Median(valuesCpuMs);
  state.counters["ahead_ms"] = Median(aheadMs);
  state.counters["ahead_cpu_ms"] = Median(aheadCpuMs);
  state.counters["ahead_x"] = Median(aheadX);
  state.counters["dated"] = double(dated);
}

BENCHMARK(ValuesAgainstFloor)->Unit(benchmark::kMillisecond)->Iterations(25);

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication app(argc, argv);
  GeneratedFiles();  // made before any timing starts
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}

// renvale-batch --name "%DATE% %TIME% %SERIES%" over 10,000 JPEGs, timed as
// whole processes against a floor process that opens each file, reads its
// first 64 KiB, finds the date, closes it and renames it; `jhead -n` on the
// same files where it is installed; and the dry run against a floor that
// only reads. Every contender is started the same way, in the card's folder
// with the file names on its command line, so each pays process start and
// argument handling alike.
//
// The machine's speed drifts, so the contenders run in rounds, and each
// round's ratio to its own floor is reported; the median over the rounds is
// the figure to quote. Every contender meets a folder made just before it:
// the folder's files are links made afresh, and the first read of each then
// writes its access time back to the disk, which a contender that came
// after a reader on the same folder would be spared.
#include <benchmark/benchmark.h>
#include <dirent.h>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <string>
#include <vector>

#include "common/BenchPictures.h"

namespace {

using renvale::bench::kBatchFolder;
using renvale::bench::kPictureCount;

struct Run {
  double seconds = 0;
  double userSeconds = 0;
  double systemSeconds = 0;
  int status = -1;
};

std::vector<std::string> FolderNames() {
  std::vector<std::string> names;
  DIR* dir = opendir(kBatchFolder.constData());
  while (dirent* entry = readdir(dir)) {
    if (entry->d_name[0] != '.') names.emplace_back(entry->d_name);
  }
  closedir(dir);
  std::sort(names.begin(), names.end());
  return names;
}

// A person's run: its own home (settings) and state folder (journal), in
// the card's folder, standard output to a file as a script's log would be.
class Contender {
 public:
  Contender() {
    for (const char* sub : {"/home", "/state"}) QDir().mkpath(scratch_.path() + QLatin1String(sub));
    environment_ = {"HOME=" + Scratch("/home"), "XDG_STATE_HOME=" + Scratch("/state"), "LANG=C.UTF-8",
                    "PATH=/usr/bin:/bin", "QT_QPA_PLATFORM=offscreen"};
  }

  Run Start(const std::string& program, std::vector<std::string> args) const {
    const std::vector<std::string> names = FolderNames();
    args.insert(args.begin(), program);
    args.insert(args.end(), names.begin(), names.end());
    std::vector<char*> argv;
    for (std::string& arg : args) argv.push_back(arg.data());
    argv.push_back(nullptr);
    std::vector<std::string> env = environment_;
    std::vector<char*> envp;
    for (std::string& entry : env) envp.push_back(entry.data());
    envp.push_back(nullptr);
    const std::string log = Scratch("/out.log");

    const auto before = std::chrono::steady_clock::now();
    const pid_t child = fork();
    if (child == 0) {
      const int out = open(log.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
      if (chdir(kBatchFolder.constData()) != 0 || out < 0 || dup2(out, 1) < 0) _exit(127);
      execve(program.c_str(), argv.data(), envp.data());
      _exit(127);
    }
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    const auto after = std::chrono::steady_clock::now();
    return {std::chrono::duration<double>(after - before).count(),
            usage.ru_utime.tv_sec + usage.ru_utime.tv_usec / 1e6, usage.ru_stime.tv_sec + usage.ru_stime.tv_usec / 1e6,
            WIFEXITED(status) ? WEXITSTATUS(status) : -1};
  }

 private:
  std::string Scratch(const char* sub) const { return scratch_.path().toStdString() + sub; }

  QTemporaryDir scratch_;
  std::vector<std::string> environment_;
};

// Every file got a new name: none is left under its camera name.
bool AllRenamed() {
  const std::vector<std::string> names = FolderNames();
  return names.size() == static_cast<size_t>(kPictureCount) &&
         std::none_of(names.begin(), names.end(), [](const std::string& n) { return n.rfind("IMG_", 0) == 0; });
}

std::string Jhead() {
  for (const char* path : {"/usr/bin/jhead", "/usr/local/bin/jhead"}) {
    if (access(path, X_OK) == 0) return path;
  }
  return {};
}

double Median(std::vector<double> values) {
  if (values.empty()) return 0;
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

struct Figures {
  std::vector<double> ms, ratio, userMs, sysMs;
  void Add(const Run& run, const Run& floor) {
    ms.push_back(run.seconds * 1000);
    ratio.push_back(run.seconds / floor.seconds);
    userMs.push_back(run.userSeconds * 1000);
    sysMs.push_back(run.systemSeconds * 1000);
  }
  void Report(benchmark::State& state, const std::string& name) const {
    state.counters[name + "_ms"] = Median(ms);
    if (!ratio.empty()) state.counters[name + "_x"] = Median(ratio);
    state.counters[name + "_user_ms"] = Median(userMs);
    state.counters[name + "_sys_ms"] = Median(sysMs);
  }
};

const std::vector<std::string> kName = {"--name", "%DATE% %TIME% %SERIES%"};

void BM_CliBatchAgainstFloor(benchmark::State& state) {
  const Contender contender;
  const std::string jhead = Jhead();
  Figures floor, renvale, jheadRuns, readFloor, dryRun;
  for (auto _ : state) {
    renvale::bench::MakeBatchFolder();
    const Run reads = contender.Start(BATCH_FLOOR_PATH, {"read"});
    renvale::bench::MakeBatchFolder();
    const Run dry = contender.Start(RENVALE_BATCH_PATH, {kName[0], kName[1], "--dry-run"});
    renvale::bench::MakeBatchFolder();
    const Run renames = contender.Start(BATCH_FLOOR_PATH, {"rename"});
    renvale::bench::MakeBatchFolder();
    const Run batch = contender.Start(RENVALE_BATCH_PATH, kName);
    if (reads.status != 0 || dry.status != 0 || renames.status != 0 || batch.status != 0 || !AllRenamed()) {
      state.SkipWithError("a run failed or left files under their old names");
      return;
    }
    readFloor.Add(reads, reads);
    dryRun.Add(dry, reads);
    floor.Add(renames, renames);
    renvale.Add(batch, renames);
    if (!jhead.empty()) {
      renvale::bench::MakeBatchFolder();
      jheadRuns.Add(contender.Start(jhead, {"-q", "-n%Y%m%d-%H%M%S"}), renames);
    }
  }
  floor.ratio.clear();
  readFloor.ratio.clear();
  floor.Report(state, "floor");
  renvale.Report(state, "renvale");
  readFloor.Report(state, "readfloor");
  dryRun.Report(state, "dryrun");
  if (!jhead.empty()) jheadRuns.Report(state, "jhead");
}

// Each round makes the folder four or five times (a few seconds each);
// seven rounds give a steady median.
BENCHMARK(BM_CliBatchAgainstFloor)->Unit(benchmark::kSecond)->Iterations(7);

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  renvale::bench::RemoveBatchFolders();
  return 0;
}

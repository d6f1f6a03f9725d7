// Filename search and replace of "IMG" with "Pic" over 10,000 selected JPEGs
// through the real dialog (offscreen, every question answered by script),
// against a floor that only renames the same files in a C loop, and the Perl
// `rename 's/IMG/Pic/' *` when it is installed. The window keeps its plan in
// a journal as the program does; the same run without one is given beside
// it. Beside the time on the clock each contender's processor time (user and
// system) is compared, which other work on a shared machine disturbs less.
// Then "DEL" on 1,000 selected files through the real window against
// `gio trash` of the same files.
//
// The contenders run in rounds, each on a fresh folder of links to the same
// files; a round's ratio is taken to its own floor and the median over the
// rounds is the figure to quote.
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
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <array>
#include <chrono>
#include <ctime>
#include <cstdlib>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "fileops/Journal.h"
#include "platform/FileSystem.h"
#include "platform/MountList.h"
#include "platform/QtSettingsStorage.h"
#include "shell/MainWindow.h"
#include "shell/SilentQuickTips.h"
#include "support/SampleImages.h"
#include "support/ScriptedMessagePort.h"

namespace {

constexpr int kRenameCount = 10000;
constexpr int kTrashCount = 1000;
const QByteArray kPictures = QByteArrayLiteral("/tmp/renvale-bench-fileops-pictures/");
const QByteArray kFolder = QByteArrayLiteral("/tmp/renvale-bench-fileops/");

using Clock = std::chrono::steady_clock;

QByteArray PictureName(int i) { return "IMG_" + QByteArray::number(10000 + i) + ".JPG"; }

// Pictures of 10 to 30 KB, written once per run.
void MakePictures() {
  QDir(QString::fromUtf8(kPictures)).removeRecursively();
  QDir().mkpath(QString::fromUtf8(kPictures));
  renvale::test::ExifFields fields = renvale::test::TypicalExifFields();
  const QByteArray head = renvale::test::MakeExifJpeg(&fields);
  std::mt19937 random(7);
  for (int i = 0; i < kRenameCount; ++i) {
    QByteArray bytes = head;
    bytes.append(QByteArray(static_cast<qsizetype>(10000 + random() % 20000), static_cast<char>(i)));
    const int fd = open((kPictures + PictureName(i)).constData(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    if (fd < 0 || write(fd, bytes.constData(), static_cast<size_t>(bytes.size())) != bytes.size()) std::abort();
    close(fd);
  }
  sync();
}

// A fresh folder of links to the first `count` pictures.
void MakeFolder(int count) {
  static const bool made = (MakePictures(), true);
  (void)made;
  QDir(QString::fromUtf8(kFolder)).removeRecursively();
  QDir().mkpath(QString::fromUtf8(kFolder));
  for (int i = 0; i < count; ++i) {
    if (link((kPictures + PictureName(i)).constData(), (kFolder + PictureName(i)).constData()) != 0) std::abort();
  }
  sync();
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

int CountStartingWith(const char* prefix) {
  const std::vector<std::string> names = Names();
  return static_cast<int>(std::count_if(names.begin(), names.end(),
                                        [prefix](const std::string& name) { return name.rfind(prefix, 0) == 0; }));
}

// Seconds on the clock and of processor time, this process's or its children's.
struct Spent {
  double wall = 0;
  double cpu = 0;
};

double CpuSeconds(int who) {
  if (who == RUSAGE_SELF) {
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
  }
  rusage usage{};
  getrusage(who, &usage);
  return static_cast<double>(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) +
         static_cast<double>(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e6;
}

class Stopwatch {
 public:
  explicit Stopwatch(int who = RUSAGE_SELF) : who_(who), wall_(Clock::now()), cpu_(CpuSeconds(who)) {}
  Spent Elapsed() const {
    return {std::chrono::duration<double>(Clock::now() - wall_).count(), CpuSeconds(who_) - cpu_};
  }

 private:
  int who_;
  Clock::time_point wall_;
  double cpu_;
};

template <typename Work>
Spent Measure(Work&& work, int who = RUSAGE_SELF) {
  const Stopwatch watch(who);
  work();
  return watch.Elapsed();
}

template <typename Work>
double Seconds(Work&& work) {
  return Measure(work).wall;
}

Spent FloorRenameOnce() {
  MakeFolder(kRenameCount);
  const std::vector<std::string> names = Names();
  const std::string folder = kFolder.toStdString();
  return Measure([&] {
    for (const std::string& name : names) {
      std::string target = name;
      for (size_t at = target.find("IMG"); at != std::string::npos; at = target.find("IMG", at + 3)) {
        target.replace(at, 3, "Pic");
      }
      rename((folder + name).c_str(), (folder + target).c_str());
    }
  });
}

Spent CommandOnce(int count, const std::string& command) {
  MakeFolder(count);
  const std::string line = "cd " + kFolder.toStdString() + " && " + command;
  return Measure(
      [&] {
        if (system(line.c_str()) != 0) std::abort();
      },
      RUSAGE_CHILDREN);
}

bool Installed(const char* tool) { return system((std::string("command -v ") + tool + " >/dev/null 2>&1").c_str()) == 0; }

// The real main window with scripted answers, shown on the offscreen screen,
// keeping its plans in a journal as the program does when `journaled`.
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

  void OpenFolder(int count) {
    MakeFolder(count);
    messages_.Clear();
    window_.ChangeFolder(kFolder);
    window_.SelectAll();
    QApplication::processEvents();
  }

  // From "Execute" to the results window on screen, and to the message
  // before it that says the renaming is complete (a person's OK comes
  // between them, then the list is read again). The terms are typed into a
  // dialog that is on screen, as a person sees it before the click.
  struct Times {
    Spent message, results;
  };
  Times SearchReplaceOnce() {
    OpenFolder(kRenameCount);
    std::optional<Stopwatch> watch;
    Times spent;
    messages_.onShow = [&] {
      spent.message = watch->Elapsed();
      QTimer::singleShot(0, [&] {
        spent.results = watch->Elapsed();
        QApplication::activeModalWidget()->close();
      });
    };
    QTimer::singleShot(0, [&] {
      QWidget* dialog = QApplication::activeModalWidget();
      dialog->findChildren<QLineEdit*>(QStringLiteral("SearchTerm")).at(0)->setText(QStringLiteral("IMG"));
      dialog->findChildren<QLineEdit*>(QStringLiteral("ReplaceTerm")).at(0)->setText(QStringLiteral("Pic"));
      while (!dialog->windowHandle()->isExposed()) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
      QApplication::processEvents();
      watch.emplace();
      dialog->findChild<QPushButton*>(QStringLiteral("Command2"))->click();
      dialog->close();
    });
    window_.Ui().FSR->trigger();
    messages_.onShow = nullptr;
    return spent;
  }

  double TrashOnce() {
    OpenFolder(kTrashCount);
    return Seconds([&] { window_.Ui().Command4->click(); });
  }

  int MessageCount() const { return static_cast<int>(messages_.messages.size()); }

 private:
  QTemporaryDir settingsDir_;
  renvale::platform::QtSettingsStorage storage_;
  renvale::test::ScriptedMessagePort messages_;
  renvale::shell::SilentQuickTips tips_;
  renvale::fileops::Journal journal_;
  renvale::shell::MainWindow window_;
};

double Median(std::vector<double> values) {
  if (values.empty()) return 0;
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

void EmptyTrash() { QDir(QString::fromLocal8Bit(qgetenv("XDG_DATA_HOME")) + QStringLiteral("/Trash")).removeRecursively(); }

// Medians over the rounds of one contender's times and of its ratios to the
// floor of the same round.
class Contender {
 public:
  void Add(const Spent& spent, const Spent& floor) {
    wallMs_.push_back(spent.wall * 1000);
    wallX_.push_back(spent.wall / floor.wall);
    cpuX_.push_back(spent.cpu / floor.cpu);
  }
  void Report(benchmark::State& state, const std::string& name) const {
    state.counters[name + "_ms"] = Median(wallMs_);
    if (name == "floor") return;
    state.counters[name + "_x"] = Median(wallX_);
    state.counters[name + "_cpu_x"] = Median(cpuX_);
  }

 private:
  std::vector<double> wallMs_, wallX_, cpuX_;
};

void BM_SearchReplaceAgainstFloor(benchmark::State& state) {
  RenvaleWindow journaled(true);
  RenvaleWindow plain(false);
  const bool perl = Installed("rename");
  Contender floors, renvale, renvalePlain, renvaleMessage, renvalePlainMessage, perlRename;
  bool journaledFirst = true;
  for (auto _ : state) {
    const Spent floor = FloorRenameOnce();
    floors.Add(floor, floor);
    // The run just after the floor is slower on a loaded machine, whichever
    // it is: the two windows take that place in turn.
    const std::array<RenvaleWindow*, 2> order =
        journaledFirst ? std::array{&journaled, &plain} : std::array{&plain, &journaled};
    journaledFirst = !journaledFirst;
    for (RenvaleWindow* window : order) {
      const RenvaleWindow::Times spent = window->SearchReplaceOnce();
      // One message: "Search & Replace Renaming Complete."
      if (CountStartingWith("Pic_") != kRenameCount || window->MessageCount() != 1) {
        state.SkipWithError("search and replace did not rename every file");
        return;
      }
      (window == &plain ? renvalePlain : renvale).Add(spent.results, floor);
      (window == &plain ? renvalePlainMessage : renvaleMessage).Add(spent.message, floor);
    }
    if (perl) perlRename.Add(CommandOnce(kRenameCount, "rename 's/IMG/Pic/' *"), floor);
  }
  floors.Report(state, "floor");
  renvale.Report(state, "renvale");
  renvalePlain.Report(state, "renvale_unjournaled");
  renvaleMessage.Report(state, "renvale_to_message");
  renvalePlainMessage.Report(state, "renvale_unjournaled_to_message");
  if (perl) perlRename.Report(state, "perl_rename");
}

void BM_TrashAgainstGio(benchmark::State& state) {
  RenvaleWindow window(false);
  std::vector<double> gioMs, renvaleMs, renvaleX;
  for (auto _ : state) {
    EmptyTrash();
    const double gio = CommandOnce(kTrashCount, "gio trash *").wall;
    EmptyTrash();
    const double renvale = window.TrashOnce();
    // One message: the question.
    if (!Names().empty() || window.MessageCount() != 1) {
      state.SkipWithError("DEL did not trash every file");
      return;
    }
    gioMs.push_back(gio * 1000);
    renvaleMs.push_back(renvale * 1000);
    renvaleX.push_back(renvale / gio);
  }
  EmptyTrash();
  state.counters["gio_trash_ms"] = Median(gioMs);
  state.counters["renvale_ms"] = Median(renvaleMs);
  state.counters["renvale_x"] = Median(renvaleX);
}

BENCHMARK(BM_SearchReplaceAgainstFloor)->Unit(benchmark::kSecond)->Iterations(10);
BENCHMARK(BM_TrashAgainstGio)->Unit(benchmark::kSecond)->Iterations(5);

}  // namespace

int main(int argc, char** argv) {
  if (std::getenv("QT_QPA_PLATFORM") == nullptr) setenv("QT_QPA_PLATFORM", "offscreen", 1);
  // Both contenders trash into a trash of the bench's own, on the same file
  // system as the files, so that the user's trash stays as it was.
  QTemporaryDir data(QStringLiteral("/tmp/renvale-bench-data-XXXXXX"));
  setenv("XDG_DATA_HOME", QFile::encodeName(data.path()).constData(), 1);
  QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  QDir(QString::fromUtf8(kFolder)).removeRecursively();
  QDir(QString::fromUtf8(kPictures)).removeRecursively();
  return 0;
}

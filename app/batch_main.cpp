#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTextStream>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <optional>

#include "cli/BatchArguments.h"
#include "cli/BatchCommand.h"
#include "core/SettingsStore.h"
#include "fileops/Journal.h"
#include "platform/AppPaths.h"
#include "platform/FileSystem.h"
#include "platform/HeapReserve.h"
#include "platform/QtSettingsStorage.h"

namespace {

// About what a file given on the command line takes on the main thread at
// most: a plain run holds little more than its name and new name once the
// batch has moved past it; a run that works out every name before it
// starts, or shows them, holds every name and row at once.
constexpr std::size_t kHeapPerFileNamedAsItGoes = 720;
constexpr std::size_t kHeapPerFileNamedFirst = 1400;

std::size_t HeapPerFile(const renvale::cli::BatchArguments& parsed) {
  const bool asItGoes = parsed.action == renvale::cli::Action::Name && !renvale::cli::NamesEveryFileFirst(parsed);
  return asItGoes ? kHeapPerFileNamedAsItGoes : kHeapPerFileNamedFirst;
}

}  // namespace

int main(int argc, char** argv) {
  using namespace renvale;
  // The arguments as bytes: a file name on a card need not be valid UTF-8.
  // They point into argv, which lives as long as the process: a card's
  // ten thousand names are not copied one allocation each.
  std::vector<QByteArray> args;
  args.reserve(static_cast<size_t>(argc));
  for (int i = 1; i < argc; ++i) {
    args.push_back(QByteArray::fromRawData(argv[i], static_cast<qsizetype>(qstrlen(argv[i]))));
  }
  const cli::BatchArguments parsed = cli::ParseBatchArguments(std::move(args));
  // Qt Core only: the tool runs where there is no display at all. It runs
  // no event loop, so it makes no application object either (that object
  // looks at each of ten thousand arguments for options of Qt's own); the
  // C library's locale is the person's, as the object would have set it.
  std::setlocale(LC_ALL, "");
  QCoreApplication::setOrganizationName(QStringLiteral("MorventSoftware"));
  QCoreApplication::setApplicationName(QStringLiteral("Renvale"));

  // The window's settings, only read: the window keeps no series number
  // between batches, so a batch here has nothing to write back either.
  platform::QtSettingsStorage storage;
  core::SettingsRecord settings;
  core::SettingsStore(storage).LoadSettings(settings);

  QTextStream out(stdout);
  QTextStream err(stderr);
  cli::HeadlessMessagePort journalMessages;
  platform::FileSystem& fs = platform::RealFileSystem();
  // A dry run changes nothing, so it neither reads nor makes the history.
  std::optional<fileops::Journal> journal;
  const bool renames = parsed.action == cli::Action::Name || parsed.action == cli::Action::Replace;
  if (renames ? !parsed.dryRun : parsed.action != cli::Action::Help) {
    QDir().mkpath(platform::StateFolder() + QStringLiteral("damaged"));
    journal.emplace(fs, QFile::encodeName(platform::StateFolder()), journalMessages,
                    fileops::Journal::WrittenPlans::Forgotten);
  }
  // A card's worth of files is made room for at once rather than page by
  // page as the batch goes.
  const auto makeRoom = [&parsed] { platform::ReserveHeap(parsed.files.size() * HeapPerFile(parsed)); };
  cli::BatchServices services{fs, settings, journal ? &*journal : nullptr, platform::CurrentDirectory(), makeRoom};
  cli::BatchCommand command(services, out, err);
  const int status = command.Run(parsed);
  // A journal the window could not read either is set aside and told about.
  for (const QString& line : std::as_const(journalMessages.lines)) err << line << '\n';
  out.flush();
  err.flush();
  // Every line is out, and what the journal wrote is with the system: the
  // process ends here, without handing a card's worth of names and rows
  // back to the allocator one by one first. Handlers registered to run at
  // exit still run.
  std::exit(status);
}

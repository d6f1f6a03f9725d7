// The program the kill tests kill. With one argument, a folder, it renames
// every file there by the batch base "%ORIGFN% %SERIES%" (four digits, from
// 1) with no journal. With a second, a journal folder, it renames
// "f0000.dat" to "g0000.dat" and so on, journaled there: by search and
// replace ("f" becomes "g"), or with a third argument "batch" by the batch
// base "g%SERIAL%%SERIES%" (the files hold no EXIF, so the serial number is
// empty, but they are read ahead as pictures are and the plan takes their
// identities from those reads). It writes one byte to stdout just before
// its first rename (once the plan is kept, where there is one), so that the
// parent's kills land inside the renames. A batch exits 2 if it showed a
// message.

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <optional>

#include "core/BatchRename.h"
#include "fileops/Journal.h"
#include "fileops/MetadataTokenSource.h"
#include "fileops/SearchReplace.h"
#include "fileops/SilentSearchReplaceView.h"
#include "rename/FakeRenameView.h"
#include "rename/FakeTokenSource.h"
#include "support/ScriptedMessagePort.h"

using namespace renvale;

namespace {

bool SignalStart() { return ::write(STDOUT_FILENO, "R", 1) == 1; }

class SignallingJournal : public fileops::Journal {
 public:
  using Journal::Journal;
  int Begin(const core::OperationPlan& plan) override {
    const int error = Journal::Begin(plan);
    return SignalStart() ? error : 1;
  }
};

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2 || argc > 4) return 1;
  platform::FileSystem& fs = platform::RealFileSystem();
  core::RenameSession session;
  session.CurrentFolder = QByteArray(argv[1]) + '/';
  std::vector<QByteArray> names;
  if (fs.ListFiles(session.CurrentFolder, &names) != 0 || names.empty()) return 1;
  std::sort(names.begin(), names.end());

  core::SettingsRecord settings;
  settings.placeholders = 4;
  test::FakeRenameView view(fs, session);
  for (const QByteArray& name : names) view.selected.push_back(platform::FileName{name});
  test::FakeTokenSource fakeTokens;
  test::ScriptedMessagePort port;
  fileops::MetadataTokenSource fileTokens(fs, port, settings);
  core::TokenSource& tokens = argc == 4 ? static_cast<core::TokenSource&>(fileTokens) : fakeTokens;
  std::optional<SignallingJournal> journal;
  if (argc > 2) journal.emplace(fs, QByteArray(argv[2]) + '/', port);
  const core::RenameContext context{session, settings, view, port, fs, tokens, journal ? &*journal : nullptr};
  if (argc != 3) {
    view.newName = argc == 2 ? QStringLiteral("%ORIGFN% %SERIES%") : QStringLiteral("g%SERIAL%%SERIES%");
    view.series = argc == 2 ? QStringLiteral("1") : QStringLiteral("0");
    session.SelectedFileName = view.selected.front();
    session.SelectedExt = QStringLiteral(".dat");
    session.SelectedCount = static_cast<int>(names.size());
    session.BatchMode = true;
    if (argc == 2 && !SignalStart()) return 1;
    core::BatchRename(context).StartBatchRename();
  } else {
    fileops::SearchTerms terms;
    terms.Set(0, QStringLiteral("f"), QStringLiteral("g"));
    fileops::SilentSearchReplaceView searchView;
    // It always ends with its "Complete" note.
    fileops::SearchReplace(context, searchView).Execute(terms);
    return 0;
  }
  for (const platform::Message& message : port.messages) std::fprintf(stderr, "%s\n", qPrintable(message.text));
  return port.messages.empty() ? 0 : 2;
}

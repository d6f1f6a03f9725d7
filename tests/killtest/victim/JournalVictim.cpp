// Renames every file of the folder given as its first argument from
// "f0000.dat" to "g0000.dat", and so on, journaled into the folder given as
// its second: by search and replace ("f" becomes "g"), or with a third
// argument "batch" by the batch rename with the base "g%SERIAL%%SERIES%":
// the files hold no EXIF, so the serial number is empty, but they are read
// ahead as pictures are and the plan takes their identities from those
// reads. Writes one byte to stdout once the plan is kept, just before the
// first rename, so that the parent's kills land inside the renames.

#include <unistd.h>

#include <algorithm>

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

class SignallingJournal : public fileops::Journal {
 public:
  using Journal::Journal;
  int Begin(const core::OperationPlan& plan) override {
    const int error = Journal::Begin(plan);
    if (::write(STDOUT_FILENO, "R", 1) != 1) return 1;
    return error;
  }
};

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3 && argc != 4) return 1;
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
  SignallingJournal journal(fs, QByteArray(argv[2]) + '/', port);
  const core::RenameContext context{session, settings, view, port, fs, tokens, &journal};
  if (argc == 4) {
    view.newName = QStringLiteral("g%SERIAL%%SERIES%");
    view.series = QStringLiteral("0");
    session.SelectedFileName = view.selected.front();
    session.SelectedExt = QStringLiteral(".dat");
    session.SelectedCount = static_cast<int>(names.size());
    session.BatchMode = true;
    core::BatchRename(context).StartBatchRename();
    return port.messages.empty() ? 0 : 2;
  }
  fileops::SearchTerms terms;
  terms.Set(0, QStringLiteral("f"), QStringLiteral("g"));
  fileops::SilentSearchReplaceView searchView;

  fileops::SearchReplace(context, searchView).Execute(terms);
  return 0;
}

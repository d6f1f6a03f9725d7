// Renames every file of the folder given as its first argument by search
// and replace ("f" becomes "g"), journaled into the folder given as its
// second. Writes one byte to stdout once the plan is kept, just before the
// first rename, so that the parent's kills land inside the renames.

#include <unistd.h>

#include <algorithm>

#include "fileops/Journal.h"
#include "fileops/SearchReplace.h"
#include "rename/FakeRenameView.h"
#include "rename/FakeTokenSource.h"
#include "support/ScriptedMessagePort.h"

using namespace renvale;

namespace {

class QuietSearchView : public fileops::SearchReplaceView {
 public:
  void SetRunning(bool) override {}
  void SetProgressMaximum(int) override {}
  void SetProgress(int) override {}
  void ProcessEvents() override {}
  void ShowResults(const QString&) override {}
};

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
  if (argc != 3) return 1;
  platform::FileSystem& fs = platform::RealFileSystem();
  core::RenameSession session;
  session.CurrentFolder = QByteArray(argv[1]) + '/';
  std::vector<QByteArray> names;
  if (fs.ListFiles(session.CurrentFolder, &names) != 0 || names.empty()) return 1;
  std::sort(names.begin(), names.end());

  core::SettingsRecord settings;
  test::FakeRenameView view(fs, session);
  for (const QByteArray& name : names) view.selected.push_back(platform::FileName{name});
  test::FakeTokenSource tokens;
  test::ScriptedMessagePort port;
  SignallingJournal journal(fs, QByteArray(argv[2]) + '/', port);
  const core::RenameContext context{session, settings, view, port, fs, tokens, &journal};
  fileops::SearchTerms terms;
  terms.Set(0, QStringLiteral("f"), QStringLiteral("g"));
  QuietSearchView searchView;

  fileops::SearchReplace(context, searchView).Execute(terms);
  return 0;
}

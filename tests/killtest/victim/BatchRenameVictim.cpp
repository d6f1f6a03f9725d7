// Renames every file of the folder given as its argument with the batch
// base "%ORIGFN% %SERIES%" (four digits, from 1) and no window. Writes one
// byte to stdout just before the batch starts, so that the parent knows
// when its kill lands inside the batch. Exits 2 if any message was shown.

#include <unistd.h>

#include <algorithm>
#include <cstdio>

#include "core/BatchRename.h"
#include "rename/FakeRenameView.h"
#include "rename/FakeTokenSource.h"
#include "support/ScriptedMessagePort.h"

using namespace renvale;

int main(int argc, char** argv) {
  if (argc != 2) return 1;
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
  view.newName = QStringLiteral("%ORIGFN% %SERIES%");
  view.series = QStringLiteral("1");
  session.SelectedFileName = view.selected.front();
  session.SelectedExt = QStringLiteral(".dat");
  session.SelectedCount = static_cast<int>(names.size());
  session.BatchMode = true;
  test::FakeTokenSource tokens;
  test::ScriptedMessagePort port;
  const core::RenameContext context{session, settings, view, port, fs, tokens};

  if (::write(STDOUT_FILENO, "R", 1) != 1) return 1;
  core::BatchRename(context).StartBatchRename();
  for (const platform::Message& message : port.messages) std::fprintf(stderr, "%s\n", qPrintable(message.text));
  return port.messages.empty() ? 0 : 2;
}

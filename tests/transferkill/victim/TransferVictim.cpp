// Moves or copies every file of the folder given first into the folder
// given second, with the overwrite policy given third, keeping its plan in
// the journal folder given fourth ("move" or "copy" fifth) and no window.
// Writes one byte to stdout just before the transfer starts, so that the
// parent knows when its kill lands inside it. Prints every message to stderr.

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstring>

#include "fileops/FileTransfer.h"
#include "fileops/Journal.h"
#include "support/ScriptedMessagePort.h"
#include "transfer/FakeTransferView.h"

using namespace renvale;

int main(int argc, char** argv) {
  if (argc != 6) return 1;
  platform::FileSystem& fs = platform::RealFileSystem();
  const QByteArray source = QByteArray(argv[1]) + '/';
  std::vector<QByteArray> names;
  if (fs.ListFiles(source, &names) != 0) return 1;
  std::sort(names.begin(), names.end());
  test::FakeTransferView view;
  for (const QByteArray& name : names) view.selected.push_back(platform::FileName{name});
  core::SettingsRecord settings;
  settings.transferMode = std::strcmp(argv[5], "move") == 0 ? fileops::kMoveMode : fileops::kCopyMode;
  settings.moveOption = std::atoi(argv[3]);
  test::ScriptedMessagePort port;
  fileops::Journal journal(fs, QByteArray(argv[4]) + '/', port);

  if (::write(STDOUT_FILENO, "T", 1) != 1) return 1;
  fileops::FileTransfer({source, settings, port, fs, view, &journal}).Run(argv[2]);
  for (const platform::Message& message : port.messages) std::fprintf(stderr, "%s\n", qPrintable(message.text));
  return 0;
}

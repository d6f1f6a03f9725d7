#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <map>

#include "FakeRenameView.h"
#include "FakeTokenSource.h"
#include "core/BatchRename.h"
#include "core/FileNameRules.h"
#include "core/RenameContext.h"
#include "support/FaultyFileSystem.h"
#include "support/ScriptedMessagePort.h"

// Shows Qt strings as text in failure messages.
inline void PrintTo(const QString& text, std::ostream* out) { *out << '"' << text.toStdString() << '"'; }
inline void PrintTo(const QByteArray& bytes, std::ostream* out) { *out << '"' << bytes.toStdString() << '"'; }

namespace renvale::test {

// A temporary folder of real files seen through a fault-injecting file
// system, with a scripted message port and a fake window around it.
class RenameFixture : public ::testing::Test {
 protected:
  RenameFixture() { session.CurrentFolder = dir.path().toUtf8() + '/'; }

  QByteArray Path(const QByteArray& name) const { return session.CurrentFolder + name; }

  // Each file holds its own name, so a test can tell which file ended where.
  void Make(std::initializer_list<const char*> names) {
    for (const char* name : names) platform::RealFileSystem().WriteWholeFile(Path(name), name);
  }

  // Empties the folder, then makes `names`.
  void Remake(std::initializer_list<const char*> names) {
    for (const auto& entry : Folder()) platform::RealFileSystem().RemoveFile(Path(entry.first));
    Make(names);
  }

  // Name -> contents of every file in the folder.
  std::map<QByteArray, QByteArray> Folder() {
    std::vector<QByteArray> names;
    platform::RealFileSystem().ListFiles(session.CurrentFolder, &names);
    std::map<QByteArray, QByteArray> files;
    for (const QByteArray& name : names) {
      platform::RealFileSystem().ReadWholeFile(Path(name), 1 << 20, &files[name]);
    }
    return files;
  }

  // Runs the batch with `base` in the New Name box.
  void Batch(const QString& base) {
    view.newName = base;
    core::BatchRename(context).StartBatchRename();
  }

  // Selects `names` in this order; the first is the current item.
  void Select(std::initializer_list<const char*> names) {
    view.selected.clear();
    for (const char* name : names) view.selected.push_back(platform::FileName{name});
    const platform::FileName& current = view.selected.front();
    session.SelectedFileName = current;
    const core::SplitName split = core::SplitFileName(current.Display(), false);
    session.SelectedBase = split.base;
    session.SelectedExt = split.extension;
    session.SelectedCount = static_cast<int>(view.selected.size());
    session.BatchMode = view.selected.size() > 1;
  }

  QTemporaryDir dir;
  FaultyFileSystem fs{platform::RealFileSystem()};
  ScriptedMessagePort port;
  core::RenameSession session;
  core::SettingsRecord settings;
  FakeRenameView view{fs, session};
  FakeTokenSource tokens;
  core::RenameContext context{session, settings, view, port, fs, tokens};
};

}  // namespace renvale::test

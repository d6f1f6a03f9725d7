#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <memory>
#include <vector>

#include "platform/ErrorNumbers.h"
#include "platform/FileSystem.h"
#include "platform/QtSettingsStorage.h"
#include "shell/MainWindow.h"
#include "shell/QuickTipOffer.h"
#include "support/ScriptedMessagePort.h"

namespace renvale::test {

class RecordingTips : public shell::QuickTipOffer {
 public:
  void ShowQuickTip(int tipNumber) override { offered.push_back(tipNumber); }
  std::vector<int> offered;
};

// A main window over a temporary folder and a temporary settings file, with
// scripted messages and a scripted folder picker.
class MainWindowFixture : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  // Builds and starts a window; call again after Shutdown to reopen.
  shell::MainWindow& Open(platform::FileSystem& fs = platform::RealFileSystem(), const QByteArray& startPath = {});
  void CloseWindow();
  void MakeFiles(const QStringList& names);
  void MakeFile(const QByteArray& rawName, const QByteArray& bytes = "x");
  QByteArray Folder() const;
  QStringList ListedNames();
  void ClickRow(int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  void ShowActive();  // keys reach only an active window
  std::vector<QByteArray> DiskNames();  // the folder's names as bytes, sorted

  QTemporaryDir dir;
  std::unique_ptr<platform::QtSettingsStorage> storage;
  ScriptedMessagePort messages;
  RecordingTips tips;
  QString pickerAnswer;
  QString pickerTitle;
  std::vector<platform::Volume> drives;
  fileops::Journal* journal = nullptr;  // passed to the windows Open makes
  std::unique_ptr<shell::MainWindow> window;
};

}  // namespace renvale::test

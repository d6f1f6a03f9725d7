#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <memory>
#include <vector>

#include "platform/QtSettingsStorage.h"
#include "shell/ButtonEditor.h"
#include "shell/ComposeController.h"
#include "shell/FilenameAsTemp.h"
#include "shell/MainWindow.h"
#include "shell/QuickTipOffer.h"
#include "support/ScriptedMessagePort.h"

class QMenu;

namespace renvale::test {

class OfferedTips : public shell::QuickTipOffer {
 public:
  void ShowQuickTip(int tipNumber) override { offered.push_back(tipNumber); }
  std::vector<int> offered;
};

// A real main window, shown offscreen over a temporary folder, with the
// composing controllers attached (the window's own when it makes them).
class ComposeFixture : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override { window.reset(); }

  shell::MainWindow& Open();
  QByteArray Folder() const;
  void MakeFile(const QString& name, const QByteArray& bytes = "x");
  // Selects the listed files at `rows`, the last one becoming current.
  void Select(std::initializer_list<int> rows);
  shell::MainWindowUi& Ui() { return window->Ui(); }
  QString NewName() const;
  void SetNewName(const QString& text);
  static void Trigger(QMenu* menu, const QString& caption);
  static QStringList Captions(const QMenu* menu);

  QTemporaryDir dir;
  std::unique_ptr<platform::QtSettingsStorage> storage;
  ScriptedMessagePort messages;
  OfferedTips tips;
  std::unique_ptr<shell::MainWindow> window;
  shell::ComposeController* compose = nullptr;
  shell::ButtonEditor* editor = nullptr;
  shell::FilenameAsTemp* tempSaver = nullptr;
};

}  // namespace renvale::test

#pragma once

#include "mainwindow/MainWindowFixture.h"
#include "shell/ButtonEditor.h"
#include "shell/ComposeController.h"
#include "shell/FilenameAsTemp.h"

class QMenu;

namespace renvale::test {

// The main window fixture, shown, with handles on the window's own
// composing controllers.
class ComposeFixture : public MainWindowFixture {
 protected:
  shell::MainWindow& Open();
  // Selects the listed files at `rows`, the last one becoming current.
  void Select(std::initializer_list<int> rows);
  shell::MainWindowUi& Ui() { return window->Ui(); }
  QString NewName() const;
  void SetNewName(const QString& text);
  static void Trigger(QMenu* menu, const QString& caption);
  static QStringList Captions(const QMenu* menu);

  shell::ComposeController* compose = nullptr;
  shell::ButtonEditor* editor = nullptr;
  shell::FilenameAsTemp* tempSaver = nullptr;
};

}  // namespace renvale::test

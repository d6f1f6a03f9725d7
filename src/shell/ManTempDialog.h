#pragma once

#include <QDialog>
#include <optional>
#include <vector>

#include "core/SettingsRecord.h"
#include "platform/FileName.h"
#include "shell/TemplateManager.h"

class QLineEdit;
class QListWidget;
class QPushButton;

namespace renvale::platform {
class FileSystem;
class MessagePort;
}  // namespace renvale::platform

namespace renvale::shell {

struct MainWindowUi;

// "Manage Templates" (`ManTemp`): saves the nine custom button texts to a
// template file in the template folder, applies a saved one to the buttons,
// or moves one to the trash.
class ManTempDialog : public QDialog {
  Q_OBJECT

 public:
  ManTempDialog(MainWindowUi& ui, core::SettingsRecord& settings, platform::FileSystem& fs,
                platform::MessagePort& messages, const QString& templateFolder, QWidget* parent);

  // Tools > "&Manage Templates": the dialog over the per-user data folder,
  // modal, until "Done".
  static void Run(MainWindowUi& ui, core::SettingsRecord& settings, platform::FileSystem& fs,
                  platform::MessagePort& messages, core::OperationRecorder* recorder, QWidget* parent);

  void RefreshList();

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void BuildControls();
  QWidget* BuildGroup(const char* objectName, const QString& title, const QString& hint, QLineEdit*& box,
                      const char* boxName, QPushButton*& button, const char* buttonName, const QString& caption);
  void OnListSelection();
  void OnSave();
  void OnOpen();
  void OnDelete();
  std::optional<platform::FileName> SelectedTemplate() const;
  void ApplyCaption(int position, const QString& caption);

  MainWindowUi& ui_;
  core::SettingsRecord& settings_;
  TemplateManager manager_;
  std::vector<platform::FileName> listed_;
  QListWidget* File1 = nullptr;
  QLineEdit* Text1 = nullptr;
  QLineEdit* Text2 = nullptr;
  QLineEdit* Text3 = nullptr;
  QPushButton* saveButton_ = nullptr;
  QPushButton* openButton_ = nullptr;
  QPushButton* deleteButton_ = nullptr;
};

}  // namespace renvale::shell

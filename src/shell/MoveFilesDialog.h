#pragma once

#include <QDialog>
#include <array>
#include <functional>

#include "core/SettingsRecord.h"
#include "fileops/TransferView.h"

class QLabel;
class QListWidget;
class QProgressBar;
class QPushButton;
class QRadioButton;

namespace renvale::core {
class OperationRecorder;
class RenameView;
}  // namespace renvale::core
namespace renvale::platform {
class FileSystem;
class MessagePort;
}  // namespace renvale::platform

namespace renvale::shell {

// The desktop's folder dialog (parent, title, start folder) -> chosen folder.
using FolderPicker = std::function<QString(QWidget*, const QString&, const QString&)>;

// "Move or copy file(s)" (`frmMoveFiles`): gathers the mode, the policy and
// the destination, and hands the main window's selection to FileTransfer.
class MoveFilesDialog : public QDialog, public fileops::TransferView {
  Q_OBJECT

 public:
  struct Services {
    core::SettingsRecord& settings;
    platform::FileSystem& fs;
    platform::MessagePort& messages;
    FolderPicker pickFolder;
    core::RenameView& mainView;  // the main window's list
    QByteArray sourceFolder;
    core::OperationRecorder* recorder = nullptr;  // keeps each transfer for Undo
  };

  MoveFilesDialog(Services services, QWidget* parent);

  // The main window's "Transfer": "No file is selected!" or the modal dialog.
  static void Run(Services services, bool fileSelected, QWidget* parent);

  std::vector<platform::FileName> SelectedFiles() const override;
  void SetTransferring(bool on, int files) override;
  void AdvanceProgress() override;
  void ProcessEvents() override;
  bool CancelRequested() const override { return cancelRequested_; }
  void ShowMode() override;
  void ShowHistory() override;
  void RefreshFileList() override;
  void ShowSmartNameResults(const QString& report) override;

 public slots:
  void reject() override;

 private:
  void BuildControls();
  QWidget* BuildModeFrame();
  QWidget* BuildPolicyFrame();
  void ShowDestination();
  void OnChooseFolder();
  void UseFolder(const QString& folder);
  void OnClearHistory();
  void OnTransfer();

  Services services_;
  std::array<QRadioButton*, 2> Option2{};
  std::array<QRadioButton*, 4> Option1{};
  QLabel* FolderName = nullptr;
  QListWidget* FolderHistory = nullptr;
  QPushButton* Command1 = nullptr;
  QPushButton* Command2 = nullptr;
  QPushButton* Command3 = nullptr;
  QPushButton* Command4 = nullptr;
  QPushButton* Command5 = nullptr;
  QProgressBar* ProgressBar1 = nullptr;
  bool transferring_ = false;
  bool cancelRequested_ = false;
};

}  // namespace renvale::shell

#pragma once

#include <QMainWindow>
#include <QTimer>
#include <functional>
#include <vector>

#include "core/RenameContext.h"
#include "core/RenameSession.h"
#include "core/SettingsRecord.h"
#include "platform/MountList.h"
#include "shell/MainWindowOptionsHost.h"
#include "shell/MainWindowRenameView.h"
#include "shell/MainWindowUi.h"
#include "shell/StartPath.h"

namespace renvale::platform {
class FileSystem;
class MessagePort;
class NetworkShares;
class SettingsStorage;
}  // namespace renvale::platform

namespace renvale::fileops {
class Journal;
}

namespace renvale::shell {

class EditMenu;
class FileListModel;
class OptionsDialog;
class PreviewPane;
class QuickTipOffer;

// What the main window needs from the world; tests pass fakes.
struct MainWindowServices {
  platform::FileSystem& fs;
  platform::MessagePort& messages;
  platform::SettingsStorage& settings;
  QuickTipOffer& tips;
  // The desktop's folder dialog (title, start folder) -> chosen folder.
  std::function<QString(QWidget*, const QString&, const QString&)> pickFolder;
  std::function<std::vector<platform::Volume>()> drives;
  std::function<QByteArray()> startFolder;  // used when no folder is remembered
  // Where operations keep their plans for Undo; none leaves Undo disabled.
  fileops::Journal* journal = nullptr;
};

// The main window `main`: owns the session record and the settings record,
// and keeps them in step with the file list and the folder panes.
class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  explicit MainWindow(MainWindowServices services, QWidget* parent = nullptr);
  ~MainWindow() override;

  // The start-up steps after the window exists: placement, settings, folder.
  // `startPath` is the one argument the program takes: an absolute path of
  // a folder to open instead of the last one, or of a file to select there.
  void Start(const QByteArray& startPath = {});
  // Tools > Map and Disconnect Network Drive work through `shares`; without
  // it they stay disabled.
  void UseNetworkShares(platform::NetworkShares& shares);

  core::RenameSession& Session() { return session_; }
  core::SettingsRecord& Settings() { return settings_; }
  MainWindowUi& Ui() { return ui_; }
  FileListModel& Files() { return *files_; }
  PreviewPane& Preview() { return *preview_; }
  QuickTipOffer& Tips() { return services_.tips; }

  void ApplyBrowseMode(int mode);
  void ChangeFolder(const QByteArray& folder);
  void RefreshFileList();
  void SelectAll();
  // The "View EXIF & Other Info" command for the selected file.
  void ShowFileReport();
  void SetBatchMode(bool on);
  // "Preview New Names...": the batch's names before anything is renamed.
  void PreviewNewNames();
  bool FileIsSelected() const;
  void ApplyToolTips(bool on);
  void ApplyFileFilter(int filter);
  // Fonts follow the window's size while "Resize fonts too" is on.
  void ScaleFonts();
  // Saves every setting and closes every window; both the close button and
  // File > Exit end here.
  void Shutdown();

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void ConnectSignals();
  void ApplyLoadedSettings();
  void ApplyPlacement();
  void FinishStartPath();
  QByteArray StartFolder();
  void GatherSettings();
  void OnSelectionChanged();
  const platform::FileName* CurrentSelectedFile(int selectedCount) const;
  void OnDriveChosen(int index);
  void OnChooseFolder();
  void OnUrlsDropped(const QList<QUrl>& urls);
  void OnFolderOpened(const QByteArray& folder);
  void ShowFolderInPanes();
  void FillDriveList();
  void LeaveFolderIfGone();
  bool HandleEnter();
  void OfferBoxTips(QObject* watched);
  void DisableLaterFeatures();
  void ConnectHelp();
  void BuildComposeControllers();
  void ConnectRenameButtons();
  template <typename Operation, typename Action>
  void RunRename(Action action);

  MainWindowServices services_;
  EditMenu* editMenu_ = nullptr;
  QByteArray startPath_;
  StartPlace startPlace_;
  core::RenameSession session_;
  core::SettingsRecord settings_;
  MainWindowUi ui_;
  FileListModel* files_ = nullptr;
  PreviewPane* preview_ = nullptr;
  MainWindowRenameView renameView_;
  MainWindowOptionsHost optionsHost_;
  OptionsDialog* options_ = nullptr;  // made once the settings are loaded
  std::vector<platform::Volume> drives_;
  QTimer FNDelay;
  QTimer SerDelay;
  QTimer Timer1;
  QFont baseFont_;
  QSize baseSize_;
  bool shuttingDown_ = false;
  bool fnDelayUsed_ = false;
  bool serDelayUsed_ = false;
};

}  // namespace renvale::shell

#pragma once

#include <QByteArray>
#include <QStringList>
#include <QWidget>
#include <vector>

#include "shell/FolderBrowsing.h"

class QComboBox;
class QLineEdit;
class QListWidget;
class QPushButton;
class QStackedWidget;

namespace renvale::shell {

class DropToggleButton;

// The two folder-browsing panes: the simple one (drive list `Drive1`,
// folder list `Dir1`, toggle `toggleBrowseS`) and the advanced one (folder
// text `CurFold`, "Choose Folder..." `Command15`, toggle `toggleBrowseA`).
// It only shows and reports; MainWindow decides.
class BrowsePane : public QWidget {
  Q_OBJECT

 public:
  explicit BrowsePane(QWidget* parent = nullptr);

  void ShowMode(int mode);
  int Mode() const;
  void SetDrives(const QStringList& labels, int current);
  void SelectDrive(int index);
  void SetFolderRows(const std::vector<FolderRow>& rows);
  void SetFolderText(const QString& folder);

  QComboBox* Drive1 = nullptr;
  QListWidget* Dir1 = nullptr;
  DropToggleButton* toggleBrowseS = nullptr;
  QLineEdit* CurFold = nullptr;
  QPushButton* Command15 = nullptr;
  DropToggleButton* toggleBrowseA = nullptr;

 signals:
  void DriveChosen(int index);
  void FolderOpened(const QByteArray& folder);
  void ChooseFolderClicked();
  void ToggleClicked();
  void UrlsDropped(const QList<QUrl>& urls);

 private:
  QWidget* BuildSimplePane();
  QWidget* BuildAdvancedPane();
  void OpenRow(int row);

  QStackedWidget* stack_ = nullptr;
  bool filling_ = false;
};

}  // namespace renvale::shell

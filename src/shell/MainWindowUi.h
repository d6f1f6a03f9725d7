#pragma once

#include <QString>
#include <array>

class QAction;
class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListView;
class QMainWindow;
class QMenu;
class QProgressBar;
class QPushButton;
class QSlider;
class QWidget;

namespace renvale::shell {

class BrowsePane;

// Every control of the main window, created with its design name as
// objectName and its caption (or the label in front of it) as accessible
// name. Holds no behaviour: MainWindow connects the signals.
struct MainWindowUi {
  void Setup(QMainWindow* window);

  BrowsePane* browse = nullptr;
  QLabel* fileCountLabel = nullptr;
  QListView* File1 = nullptr;
  QPushButton* Command14 = nullptr;   // Select All
  QPushButton* CmdRefresh = nullptr;

  QLabel* selectionLabel = nullptr;
  QLineEdit* Text1 = nullptr;         // New Filename:
  QPushButton* OrigFN = nullptr;
  QPushButton* exif = nullptr;
  QPushButton* Command5 = nullptr;    // Insert+
  QPushButton* Command6 = nullptr;    // (Series #)
  QLineEdit* Text2 = nullptr;         // Next Series #:
  QPushButton* Command7 = nullptr;    // Revert
  QPushButton* Command8 = nullptr;    // Clear
  QPushButton* Command2 = nullptr;    // Rename / Done
  QPushButton* Command4 = nullptr;    // DEL
  QPushButton* Command13 = nullptr;   // Transfer

  std::array<QPushButton*, 9> Command1{};  // Custom1..Custom9 (design indices 1..9)
  std::array<QPushButton*, 3> Command9{};  // Temp1..Temp3 (design indices 0..2)
  QPushButton* Command10 = nullptr;   // Filename as Temp+

  QGroupBox* namebutton = nullptr;    // button text editor
  QLineEdit* Text3 = nullptr;
  QPushButton* Command3 = nullptr;

  QGroupBox* BatchFrame = nullptr;
  QPushButton* Command11 = nullptr;   // Start Batch Renaming
  QPushButton* previewNames = nullptr;  // Preview New Names...
  QCheckBox* Check1 = nullptr;        // Randomize Series #s
  QPushButton* Command12 = nullptr;   // Help
  QProgressBar* ProgressBar1 = nullptr;
  QLabel* processingLabel = nullptr;

  QGroupBox* previewFrame = nullptr;
  QLabel* previewCaption = nullptr;
  QLabel* Gvbox1 = nullptr;
  QPushButton* ShPrev = nullptr;
  QPushButton* UnSupported = nullptr;
  QWidget* mediaControls = nullptr;  // MoviePlayer1's controls
  std::array<QPushButton*, 5> MediaButton{};  // Play, Pause, Stop, Step back, Step forward
  QSlider* VolAdj = nullptr;
  QSlider* Slider1 = nullptr;         // position
  QLabel* CurTime = nullptr;
  QLabel* TotalLength = nullptr;

  QAction* refreshAction = nullptr;
  QAction* exitAction = nullptr;
  QAction* mnuUndo = nullptr;
  QAction* mnuHistory = nullptr;
  QAction* optionsAction = nullptr;
  QAction* templatesAction = nullptr;
  QAction* FSR = nullptr;
  QAction* MapNet = nullptr;
  QAction* UnMap = nullptr;
  QAction* vEX = nullptr;
  QAction* previewNamesAction = nullptr;
  QAction* RotIP = nullptr;
  std::array<QAction*, 5> HelpMen{};

 private:
  QWidget* BuildFilePane(QWidget* parent);
  QWidget* BuildComposePane(QWidget* parent);
  QWidget* BuildButtonPane(QWidget* parent);
  QWidget* BuildBatchPane(QWidget* parent);
  QWidget* BuildPreviewPane(QWidget* parent);
  QWidget* BuildMediaControls(QWidget* parent);
  void BuildMenus(QMainWindow* window);
};

}  // namespace renvale::shell

#pragma once

#include <QObject>
#include <functional>

#include "core/RenameSession.h"
#include "core/SettingsRecord.h"
#include "shell/ComposeValues.h"
#include "shell/KeptSelection.h"
#include "shell/SeriesLineEdit.h"

class QMenu;
class QPushButton;
class QWidget;

namespace renvale::platform {
class FileSystem;
class MessagePort;
}  // namespace renvale::platform

namespace renvale::shell {

class QuickTipOffer;
struct MainWindowUi;

struct ComposeServices {
  platform::FileSystem& fs;
  platform::MessagePort& messages;
  QuickTipOffer& tips;
  // Opens the file information report for the current file; while the
  // report does not exist this stays empty and its menu entry is disabled.
  std::function<void()> viewFileInfo;
};

// Builds the new name in `Text1` from the insert buttons, the "EXIF+" and
// "Insert+" menus, "(Series #)" and the custom and temp buttons, and resets
// the series box on a double-click. Connects those controls itself.
class ComposeController : public QObject {
  Q_OBJECT

 public:
  ComposeController(MainWindowUi& ui, core::RenameSession& session, core::SettingsRecord& settings,
                    ComposeServices services, QObject* parent);

  // Replaces the box's selection, or inserts at its caret, and focuses it.
  void InsertAtCaret(const QString& text);

  void InsertOrigFilename();
  void InsertSeries();
  void InsertButtonText(const QPushButton& button, int tipNumber);
  void ResetSeriesBox();

  // The pop-up menus as their buttons show them, after the checks that come
  // first; nullptr when a message stopped it. Their entries act when
  // triggered, so tests trigger them without showing the menu.
  QMenu* PrepareExifMenu();
  QMenu* PrepareInsertMenu();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void ConnectControls();
  void BuildExifMenu();
  void BuildInsertMenu();
  void AddInsertAction(QMenu* menu, const QString& caption, std::function<QString()> text);
  bool CheckFileSelected();
  void ShowBelow(QMenu* menu, QWidget* button);

  MainWindowUi& ui_;
  core::RenameSession& session_;
  ComposeServices services_;
  SeriesLineEdit seriesBox_;
  ComposeValues values_;
  KeptSelection kept_;
  QMenu* exifMenu_ = nullptr;
  QMenu* insertMenu_ = nullptr;
};

}  // namespace renvale::shell

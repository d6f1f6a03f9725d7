#pragma once

#include <QString>
#include <array>

namespace renvale::core {

// The in-memory copy of every setting, loaded once at start-up and written
// back once at shutdown. Defaults are the first-run values.
struct SettingsRecord {
  // Window placement in twips as stored texts, as last read or last seen.
  // ApplyStoredPlacement (WindowPlacement.h) turns them into a geometry;
  // PlacementTexts gives them back from the window's geometry before saving.
  QString windowTop, windowLeft, windowHeight, windowWidth;

  int browseMode = 0;          // 0 simple pane, 1 advanced pane
  bool autoPreview = true;
  int previewStyle = 0;        // 0 large view, 1 thumbnail view
  int fileFilter = 0;          // 0 all files, 1 typical image files
  bool forceLowerCaseExtension = false;  // "ForceLCE"
  bool resizeFonts = true;
  QString seriesSpacing = QStringLiteral(" ");  // " ", "-" or "X" (none)
  bool autoResetSeries = false;
  QString exifDate = QStringLiteral("yyyy-mm-dd");
  QString exifTime = QStringLiteral("hh-mm-ss");
  bool toolTips = true;
  int placeholders = 2;        // 0, 2, 3, 4 or 5 digits
  QString lastFolder;          // empty: start in the current directory

  // Captions of Custom1..Custom9 in their escaped form ("&" doubled).
  std::array<QString, 9> customCaptions{
      QStringLiteral("Custom1"), QStringLiteral("Custom2"), QStringLiteral("Custom3"),
      QStringLiteral("Custom4"), QStringLiteral("Custom5"), QStringLiteral("Custom6"),
      QStringLiteral("Custom7"), QStringLiteral("Custom8"), QStringLiteral("Custom9")};

  int transferMode = 1;
  int moveOption = 0;
  QString lastMovePath;
  std::array<QString, 15> folderHistory;

  bool playQuickTime = true;   // "PlayQT"
  bool playRealMedia = true;   // "PlayRM"
  bool fixDirectShow = false;

  bool operator==(const SettingsRecord&) const = default;
};

}  // namespace renvale::core

#include "core/SettingsStore.h"

#include "core/SettingNames.h"

namespace renvale::core {

namespace {

// The separator is stored as itself; "1" and "0" are the on/off form older
// versions wrote before the dash existed.
QString SpacingFromText(const QString& text) {
  if (text == setting::kSpacingBlank || text == setting::kSpacingDash ||
      text == setting::kSpacingNone) {
    return text;
  }
  if (text == setting::kOff) return setting::kSpacingNone;
  return setting::kSpacingBlank;
}

int PlaceholdersFromText(const QString& text) {
  if (text.isEmpty()) return 2;
  for (int digits = 2; digits <= 5; ++digits) {
    if (text == QString::number(digits)) return digits;
  }
  return 0;
}

int MoveOptionFromText(const QString& text) {
  for (int option = 0; option <= 3; ++option) {
    if (text == QString::number(option)) return option;
  }
  return 0;
}

QString TextOr(const QString& text, QLatin1StringView fallback) {
  return text.isEmpty() ? QString(fallback) : text;
}

}  // namespace

void SettingsStore::LoadSettings(SettingsRecord& record) {
  LoadChoice(setting::kBrowseMode, record.browseMode);
  LoadSwitch(setting::kAutoPreview, true, record.autoPreview);
  LoadChoice(setting::kPreviewStyle, record.previewStyle);
  LoadPlacement(record);
  LoadFileOptions(record);
  LoadSeriesAndFormats(record);
  if (const QString folder = Read(setting::kLastFolder); !folder.isEmpty()) {
    record.lastFolder = folder;
  }
  LoadCustomCaptions(record);
  LoadSwitch(setting::kToolTips, true, record.toolTips);
  record.placeholders = PlaceholdersFromText(Read(setting::kPlaceholders));
  LoadTransfer(record);
  LoadPlayback(record);
}

void SettingsStore::SaveSettings(const SettingsRecord& record, bool windowMinimised) {
  if (!windowMinimised) SavePlacement(record);
  SaveOptions(record);
  Write(setting::kPlaceholders, QString::number(record.placeholders));
  Write(setting::kLastFolder, record.lastFolder);
  SaveCustomCaptions(record);
  SaveTransfer(record);
  WriteSwitch(setting::kPlayQT, record.playQuickTime);
  WriteSwitch(setting::kPlayRM, record.playRealMedia);
  WriteSwitch(setting::kFixDirectShow, record.fixDirectShow);
}

QString SettingsStore::Read(QLatin1StringView name) const {
  return storage_.ReadSettingString(setting::kMainKey, name);
}

void SettingsStore::Write(QLatin1StringView name, const QString& text) {
  storage_.WriteSettingString(setting::kMainKey, name, text);
}

void SettingsStore::WriteSwitch(QLatin1StringView name, bool on) {
  Write(name, on ? setting::kOn : setting::kOff);
}

std::optional<bool> SettingsStore::ReadSwitch(QLatin1StringView name, bool whenMissing) const {
  const QString text = Read(name);
  if (text.isEmpty()) return whenMissing;
  if (text == setting::kOn) return true;
  if (text == setting::kOff) return false;
  return std::nullopt;
}

void SettingsStore::LoadSwitch(QLatin1StringView name, bool whenMissing, bool& field) const {
  if (const std::optional<bool> on = ReadSwitch(name, whenMissing)) field = *on;
}

void SettingsStore::LoadChoice(QLatin1StringView name, int& field) const {
  if (const std::optional<bool> second = ReadSwitch(name, false)) field = *second ? 1 : 0;
}

void SettingsStore::LoadPlacement(SettingsRecord& record) const {
  record.windowTop = Read(setting::kWindowTop);
  record.windowLeft = Read(setting::kWindowLeft);
  record.windowHeight = Read(setting::kWindowHeight);
  record.windowWidth = Read(setting::kWindowWidth);
}

void SettingsStore::LoadFileOptions(SettingsRecord& record) const {
  record.fileFilter = Read(setting::kFileFilter) == setting::kOn ? 1 : 0;
  LoadSwitch(setting::kForceLCE, false, record.forceLowerCaseExtension);
  LoadSwitch(setting::kResizeFonts, true, record.resizeFonts);
}

void SettingsStore::LoadSeriesAndFormats(SettingsRecord& record) const {
  record.seriesSpacing = SpacingFromText(Read(setting::kSeriesSpacing));
  LoadSwitch(setting::kAutoResetSeries, false, record.autoResetSeries);
  record.exifDate = TextOr(Read(setting::kExifDate), setting::kDefaultExifDate);
  record.exifTime = TextOr(Read(setting::kExifTime), setting::kDefaultExifTime);
}

void SettingsStore::LoadCustomCaptions(SettingsRecord& record) const {
  for (int n = 1; n <= static_cast<int>(record.customCaptions.size()); ++n) {
    const QString stored = storage_.ReadSettingString(
        setting::kLastCustom, setting::Numbered(setting::kCustomPrefix, n));
    // A button must never be left without a caption to click.
    record.customCaptions[n - 1] =
        stored.isEmpty() ? setting::Numbered(setting::kCustomCaptionPrefix, n) : stored;
  }
}

void SettingsStore::LoadTransfer(SettingsRecord& record) const {
  record.moveOption = MoveOptionFromText(Read(setting::kMoveOption));
  record.transferMode = Read(setting::kTransferMode) == setting::kOff ? 0 : 1;
  record.lastMovePath = Read(setting::kLastMovePath);
  for (int n = 1; n <= static_cast<int>(record.folderHistory.size()); ++n) {
    record.folderHistory[n - 1] = storage_.ReadSettingString(
        setting::kMainKey, setting::Numbered(setting::kFolderHistoryPrefix, n));
  }
}

void SettingsStore::LoadPlayback(SettingsRecord& record) const {
  record.playQuickTime = TextOr(Read(setting::kPlayQT), setting::kOn) == setting::kOn;
  record.playRealMedia = TextOr(Read(setting::kPlayRM), setting::kOn) == setting::kOn;
  record.fixDirectShow = Read(setting::kFixDirectShow) == setting::kOn;
}

void SettingsStore::SavePlacement(const SettingsRecord& record) {
  Write(setting::kWindowTop, record.windowTop);
  Write(setting::kWindowLeft, record.windowLeft);
  Write(setting::kWindowHeight, record.windowHeight);
  Write(setting::kWindowWidth, record.windowWidth);
}

void SettingsStore::SaveOptions(const SettingsRecord& record) {
  Write(setting::kBrowseMode, QString::number(record.browseMode));
  WriteSwitch(setting::kAutoPreview, record.autoPreview);
  Write(setting::kPreviewStyle, QString::number(record.previewStyle));
  Write(setting::kFileFilter, QString::number(record.fileFilter));
  WriteSwitch(setting::kForceLCE, record.forceLowerCaseExtension);
  WriteSwitch(setting::kResizeFonts, record.resizeFonts);
  Write(setting::kSeriesSpacing, record.seriesSpacing);
  WriteSwitch(setting::kAutoResetSeries, record.autoResetSeries);
  Write(setting::kExifDate, record.exifDate);
  Write(setting::kExifTime, record.exifTime);
  WriteSwitch(setting::kToolTips, record.toolTips);
}

void SettingsStore::SaveCustomCaptions(const SettingsRecord& record) {
  for (int n = 1; n <= static_cast<int>(record.customCaptions.size()); ++n) {
    storage_.WriteSettingString(setting::kLastCustom, setting::Numbered(setting::kCustomPrefix, n),
                                record.customCaptions[n - 1]);
  }
}

void SettingsStore::SaveTransfer(const SettingsRecord& record) {
  Write(setting::kTransferMode, QString::number(record.transferMode));
  Write(setting::kMoveOption, QString::number(record.moveOption));
  Write(setting::kLastMovePath, record.lastMovePath);
  for (int n = 1; n <= static_cast<int>(record.folderHistory.size()); ++n) {
    storage_.WriteSettingString(setting::kMainKey,
                                setting::Numbered(setting::kFolderHistoryPrefix, n),
                                record.folderHistory[n - 1]);
  }
}

}  // namespace renvale::core

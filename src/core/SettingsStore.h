#pragma once

#include <QString>
#include <optional>

#include "core/SettingsRecord.h"
#include "platform/SettingsStorage.h"

namespace renvale::core {

// Loads every setting into the record at start-up and writes it back at
// shutdown. The quick-tip flags are not part of it (see QuickTipFlags).
class SettingsStore {
 public:
  explicit SettingsStore(platform::SettingsStorage& storage) : storage_(storage) {}

  // Updates `record` from the stored values. Some settings keep the record's
  // current value when the stored text is not one the program knows, so the
  // record passed in should hold the values in force (the defaults on start).
  void LoadSettings(SettingsRecord& record);

  // A minimised window has no meaningful placement, so the stored one is
  // left as it was.
  void SaveSettings(const SettingsRecord& record, bool windowMinimised);

 private:
  QString Read(QLatin1StringView name) const;
  void Write(QLatin1StringView name, const QString& text);
  void WriteSwitch(QLatin1StringView name, bool on);
  // The value of a "1"/"0" switch; `whenMissing` for an empty value, nothing
  // for a text the program does not know.
  std::optional<bool> ReadSwitch(QLatin1StringView name, bool whenMissing) const;
  void LoadSwitch(QLatin1StringView name, bool whenMissing, bool& field) const;
  void LoadChoice(QLatin1StringView name, int& field) const;

  void LoadPlacement(SettingsRecord& record) const;
  void LoadFileOptions(SettingsRecord& record) const;
  void LoadSeriesAndFormats(SettingsRecord& record) const;
  void LoadCustomCaptions(SettingsRecord& record) const;
  void LoadTransfer(SettingsRecord& record) const;
  void LoadPlayback(SettingsRecord& record) const;

  void SavePlacement(const SettingsRecord& record);
  void SaveOptions(const SettingsRecord& record);
  void SaveCustomCaptions(const SettingsRecord& record);
  void SaveTransfer(const SettingsRecord& record);

  platform::SettingsStorage& storage_;
};

}  // namespace renvale::core

#pragma once

#include <QString>

namespace renvale::platform {

// The per-user settings key: organisation "MorventSoftware", application
// "Renvale". `key` is "" for the main key or a sub-key such as "Last Custom".
// Only string values exist; a missing value, or one that is not a string,
// reads as empty.
class SettingsStorage {
 public:
  virtual ~SettingsStorage() = default;
  virtual QString ReadSettingString(const QString& key, const QString& name) = 0;
  virtual void WriteSettingString(const QString& key, const QString& name, const QString& text) = 0;
};

}  // namespace renvale::platform

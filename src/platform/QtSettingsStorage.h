#pragma once

#include <QSettings>
#include <QString>

#include "platform/SettingsStorage.h"

namespace renvale::platform {

// Settings kept by QSettings: $XDG_CONFIG_HOME/MorventSoftware/Renvale.conf.
// Every write goes to disk at once, because some flags must survive a crash
// of the same run.
class QtSettingsStorage : public SettingsStorage {
 public:
  // The user's own settings file.
  QtSettingsStorage();
  // A settings file at an explicit path (INI layout), for tests and tools.
  explicit QtSettingsStorage(const QString& filePath);

  QString ReadSettingString(const QString& key, const QString& name) override;
  void WriteSettingString(const QString& key, const QString& name, const QString& text) override;

 private:
  static QString SettingsPath(const QString& key, const QString& name);

  QSettings settings_;
};

}  // namespace renvale::platform

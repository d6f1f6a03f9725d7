#include "platform/QtSettingsStorage.h"

#include <QVariant>

namespace renvale::platform {

QtSettingsStorage::QtSettingsStorage()
    : settings_(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("MorventSoftware"),
                QStringLiteral("Renvale")) {
  // A system-wide file must never supply a value the user did not store.
  settings_.setFallbacksEnabled(false);
}

QtSettingsStorage::QtSettingsStorage(const QString& filePath)
    : settings_(filePath, QSettings::IniFormat) {
  settings_.setFallbacksEnabled(false);
}

QString QtSettingsStorage::ReadSettingString(const QString& key, const QString& name) {
  const QVariant value = settings_.value(SettingsPath(key, name));
  // The INI reader turns "a, b" into a list and "@Variant(...)" into other
  // types; only a plain string is a value we wrote, anything else is missing.
  if (value.typeId() != QMetaType::QString) return {};
  return value.toString();
}

void QtSettingsStorage::WriteSettingString(const QString& key, const QString& name,
                                           const QString& text) {
  const QString path = SettingsPath(key, name);
  // Shutdown writes back every setting although few have changed, and each
  // sync replaces the whole file on disk.
  const QVariant current = settings_.value(path);
  if (current.typeId() == QMetaType::QString && current.toString() == text) return;
  settings_.setValue(path, text);
  settings_.sync();
}

QString QtSettingsStorage::SettingsPath(const QString& key, const QString& name) {
  return key.isEmpty() ? name : key + QLatin1Char('/') + name;
}

}  // namespace renvale::platform

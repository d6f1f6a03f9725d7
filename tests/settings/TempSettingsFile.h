#pragma once

#include <QByteArray>
#include <QTemporaryDir>
#include <memory>

#include "platform/QtSettingsStorage.h"

namespace renvale::test {

// A settings file in a folder of its own, used through the real storage.
class TempSettingsFile {
 public:
  QString Path() const { return dir_.filePath(QStringLiteral("Renvale.conf")); }
  // Replaces the file with text written by hand, as another tool might.
  void WriteRaw(const QByteArray& contents) const;
  QByteArray ReadRaw() const;
  // A fresh storage each time, so nothing comes from an earlier one's cache.
  std::unique_ptr<platform::QtSettingsStorage> Open() const;

 private:
  QTemporaryDir dir_;
};

}  // namespace renvale::test

#include "TempSettingsFile.h"

#include <gtest/gtest.h>

#include <QFile>

namespace renvale::test {

void TempSettingsFile::WriteRaw(const QByteArray& contents) const {
  QFile file(Path());
  ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
  ASSERT_EQ(file.write(contents), contents.size());
}

QByteArray TempSettingsFile::ReadRaw() const {
  QFile file(Path());
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

std::unique_ptr<platform::QtSettingsStorage> TempSettingsFile::Open() const {
  return std::make_unique<platform::QtSettingsStorage>(Path());
}

}  // namespace renvale::test

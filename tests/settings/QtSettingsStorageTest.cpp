#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QSettings>

#include "TempSettingsFile.h"
#include "platform/QtSettingsStorage.h"

namespace renvale::test {
namespace {

const QString kMain;
const QString kLastCustom = QStringLiteral("Last Custom");

TEST(QtSettingsStorage, ValuesThatAreNotStringsReadAsMissing) {
  TempSettingsFile file;
  file.WriteRaw(
      "[General]\nList=x, y\nNumber=@Variant(\\0\\0\\0\\x2\\0\\0\\0\\x5)\n"
      "Bytes=@ByteArray(abc)\nPlain=123\n"
      "[Last%20Custom]\nCustom%201=a, b\nCustom%202=kept\n");
  // The hand-written entries must really decode to other types, or this
  // test would pass on a storage that checks nothing.
  QSettings raw(file.Path(), QSettings::IniFormat);
  ASSERT_EQ(raw.value("List").typeId(), QMetaType::QStringList);
  ASSERT_EQ(raw.value("Number").typeId(), QMetaType::Int);
  ASSERT_EQ(raw.value("Bytes").typeId(), QMetaType::QByteArray);

  const auto storage = file.Open();
  EXPECT_EQ(storage->ReadSettingString(kMain, "List"), "");
  EXPECT_EQ(storage->ReadSettingString(kMain, "Number"), "");
  EXPECT_EQ(storage->ReadSettingString(kMain, "Bytes"), "");
  EXPECT_EQ(storage->ReadSettingString(kMain, "Plain"), "123");
  EXPECT_EQ(storage->ReadSettingString(kLastCustom, "Custom 1"), "");
  EXPECT_EQ(storage->ReadSettingString(kLastCustom, "Custom 2"), "kept");
}

// The program's own file, and only that: with fallbacks on, QSettings would
// also read the organisation-wide file beside it.
TEST(QtSettingsStorage, UserStorageUsesTheProgramsOwnFileOnly) {
  const QString folder = QString::fromLocal8Bit(qgetenv("XDG_CONFIG_HOME")) + "/MorventSoftware";
  ASSERT_TRUE(QDir().mkpath(folder));
  QFile shared(folder + ".conf");
  ASSERT_TRUE(shared.open(QIODevice::WriteOnly | QIODevice::Truncate));
  shared.write("[General]\nFallbackProbe=leaked\n");
  shared.close();

  platform::QtSettingsStorage storage;
  EXPECT_EQ(storage.ReadSettingString(kMain, "FallbackProbe"), "");
  storage.WriteSettingString(kMain, "LocationProbe", "here");
  QFile own(folder + "/Renvale.conf");
  ASSERT_TRUE(own.open(QIODevice::ReadOnly));
  EXPECT_TRUE(own.readAll().contains("LocationProbe=here"));
}

}  // namespace
}  // namespace renvale::test

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QSettings>

#include <sys/stat.h>

#include "TempSettingsFile.h"
#include "platform/QtSettingsStorage.h"

namespace renvale::test {
namespace {

const QString kMain;
const QString kLastCustom = QStringLiteral("Last Custom");

// Texts that QSettings' INI layout has to quote or escape to keep them
// strings: separators, list commas, a leading "@", blanks at the ends.
TEST(QtSettingsStorage, AwkwardTextsComeBackAsWritten) {
  const QStringList texts{" ",        "a, b", "@Variant(x)", QString::fromUtf8("/home/jörg/日本/"),
                          "x=y;z #c", "\"q\"", "back\\slash\\", ""};
  TempSettingsFile file;
  for (int i = 0; i < texts.size(); ++i) {
    file.Open()->WriteSettingString(i % 2 ? kLastCustom : kMain, QString::number(i), texts[i]);
  }
  const auto storage = file.Open();
  for (int i = 0; i < texts.size(); ++i) {
    EXPECT_EQ(storage->ReadSettingString(i % 2 ? kLastCustom : kMain, QString::number(i)), texts[i])
        << i;
  }
}

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

ino_t FileIdentity(const QString& path) {
  struct stat info {};
  EXPECT_EQ(::stat(QFile::encodeName(path).constData(), &info), 0);
  return info.st_ino;
}

// Each write is on disk at once; as that replaces the whole file, a write
// of the text already stored is left out.
TEST(QtSettingsStorage, WritesReachTheFileAtOnceUnlessNothingChanges) {
  TempSettingsFile file;
  const auto storage = file.Open();
  storage->WriteSettingString(kMain, "NoTip3", "1");
  EXPECT_TRUE(file.ReadRaw().contains("NoTip3=1"));
  const ino_t first = FileIdentity(file.Path());
  storage->WriteSettingString(kMain, "NoTip3", "1");
  EXPECT_EQ(FileIdentity(file.Path()), first);
  storage->WriteSettingString(kMain, "NoTip3", "0");
  EXPECT_TRUE(file.ReadRaw().contains("NoTip3=0"));
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

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QLocale>
#include <QSettings>
#include <QTemporaryDir>
#include <memory>

#include "core/ExifFormatChoices.h"
#include "core/SettingsStore.h"
#include "core/WindowPlacement.h"
#include "platform/QtSettingsStorage.h"

namespace renvale::test {
namespace {

// A settings file in a folder of its own, used through the real storage.
class TempSettingsFile {
 public:
  QString Path() const { return dir_.filePath(QStringLiteral("Renvale.conf")); }
  // Replaces the file with text written by hand, as another tool might.
  void WriteRaw(const QByteArray& contents) const {
    QFile file(Path());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    ASSERT_EQ(file.write(contents), contents.size());
  }
  // A fresh storage each time, so nothing comes from an earlier one's cache.
  std::unique_ptr<platform::QtSettingsStorage> Open() const {
    return std::make_unique<platform::QtSettingsStorage>(Path());
  }

 private:
  QTemporaryDir dir_;
};

TEST(ExifFormatChoices, StoredFormatSelectsItsEntryOrTheFirst) {
  EXPECT_EQ(core::DateFormatIndex("yyyy-mm-dd"), 0);
  EXPECT_EQ(core::DateFormatIndex("mmddyy"), 11);
  EXPECT_EQ(core::DateFormatIndex("dd/mm/yyyy"), 0);
  EXPECT_EQ(core::TimeFormatIndex("hhmm"), 5);
  EXPECT_EQ(core::TimeFormatIndex("HH-MM-SS"), 0);
}

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
  for (const char* name : {"List", "Number", "Bytes"}) {
    EXPECT_EQ(storage->ReadSettingString(kMain, name), "") << name;
  }
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

// Top-level settings in memory.
struct MemoryStorage : platform::SettingsStorage {
  QString ReadSettingString(const QString& key, const QString& name) override {
    return key.isEmpty() ? values.value(name) : QString();
  }
  void WriteSettingString(const QString& key, const QString& name, const QString& text) override {
    if (key.isEmpty()) values[name] = text;
  }
  QMap<QString, QString> values;
};

using core::SettingsRecord;
using core::SettingsStore;

// Every field away from its first-run value, so a load that leaves a field
// alone cannot pass for one that sets it.
SettingsRecord Flipped() {
  SettingsRecord r;
  r.windowTop = r.windowLeft = QStringLiteral("11");
  r.windowHeight = r.windowWidth = QStringLiteral("3333");
  r.browseMode = r.previewStyle = r.fileFilter = 1;
  r.autoPreview = r.resizeFonts = r.toolTips = r.playQuickTime = r.playRealMedia = false;
  r.forceLowerCaseExtension = r.autoResetSeries = r.fixDirectShow = true;
  r.seriesSpacing = QStringLiteral("-");
  r.exifDate = QStringLiteral("yymmdd");
  r.exifTime = QStringLiteral("hhmm");
  r.placeholders = 4;
  r.lastFolder = QStringLiteral("/flipped/");
  for (int i = 0; i < 9; ++i) r.customCaptions[i] = QStringLiteral("Flip %1").arg(i + 1);
  r.transferMode = 0;
  r.moveOption = 2;
  r.lastMovePath = QStringLiteral("/moved/");
  for (int i = 0; i < 15; ++i) r.folderHistory[i] = QStringLiteral("/history/%1/").arg(i + 1);
  return r;
}

SettingsRecord LoadFrom(const TempSettingsFile& file, SettingsRecord start) {
  SettingsStore(*file.Open()).LoadSettings(start);
  return start;
}

// The text a loaded setting is saved as: shows what the load made of it.
QString SavedAs(const SettingsRecord& record, const QString& name) {
  MemoryStorage storage;
  SettingsStore(storage).SaveSettings(record, false);
  return storage.values.value(name);
}

TEST(SettingsStore, EachStoredTextLoadsAsTheTableSays) {
  struct Case {
    const char *name, *stored;
    const char* fromDefaults;  // loaded over the first-run record
    const char* fromFlipped;   // loaded over Flipped(): differs where the text changes nothing
  };
  const Case cases[]{
      {"BrowseMode", "1", "1", "1"},         {"BrowseMode", "0", "0", "0"},
      {"BrowseMode", "2", "0", "1"},         {"AutoPreview", "0", "0", "0"},
      {"AutoPreview", "yes", "1", "0"},      {"PreviewStyle", "1", "1", "1"},
      {"PreviewStyle", "2", "0", "1"},       {"FileFilter", "1", "1", "1"},
      {"FileFilter", "2", "0", "0"},         {"ForceLCE", "1", "1", "1"},
      {"ForceLCE", "on", "0", "1"},          {"ResizeFonts", "0", "0", "0"},
      {"ResizeFonts", "true", "1", "0"},     {"SeriesSpacing", "-", "-", "-"},
      {"SeriesSpacing", "X", "X", "X"},      {"SeriesSpacing", " ", " ", " "},
      {"SeriesSpacing", "0", "X", "X"},      {"SeriesSpacing", "1", " ", " "},
      {"SeriesSpacing", "_", " ", " "},      {"AutoResetSeries", "1", "1", "1"},
      {"AutoResetSeries", "x", "0", "1"},    {"EXIFDate", "dd/mm", "dd/mm", "dd/mm"},
      {"EXIFTime", "hh", "hh", "hh"},        {"ToolTips", "0", "0", "0"},
      {"ToolTips", "no", "1", "0"},          {"Placeholders", "5", "5", "5"},
      {"Placeholders", "7", "0", "0"},       {"Placeholders", "02", "0", "0"},
      {"Transfer Mode", "0", "0", "0"},      {"Transfer Mode", "2", "1", "1"},
      {"Move Option", "3", "3", "3"},        {"Move Option", "4", "0", "0"},
      {"PlayQT", "0", "0", "0"},             {"PlayQT", "yes", "0", "0"},
      {"PlayRM", "2", "0", "0"},             {"FixDirectShow", "1", "1", "1"},
      {"FixDirectShow", "yes", "0", "0"},    {"Last Folder", "/gone/", "/gone/", "/gone/"},
      {"Window Top", "abc", "abc", "abc"},    {"Last Move Path", "/m/", "/m/", "/m/"},
      {"Folder History 15", "/h/", "/h/", "/h/"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.name) + " = \"" + c.stored + "\"");
    TempSettingsFile file;
    file.Open()->WriteSettingString(QString(), c.name, c.stored);
    EXPECT_EQ(SavedAs(LoadFrom(file, SettingsRecord{}), c.name), c.fromDefaults);
    EXPECT_EQ(SavedAs(LoadFrom(file, Flipped()), c.name), c.fromFlipped);
  }
}

SettingsRecord FullRecord() {
  SettingsRecord r = Flipped();
  r.seriesSpacing = QStringLiteral(" ");
  r.placeholders = 0;
  r.lastFolder = QString::fromUtf8("/home/jörg/Bilder/Ürlaub 日本/");
  r.customCaptions[0] = QStringLiteral("&&Kids && Pets");
  r.customCaptions[1] = QStringLiteral("a, b");
  r.folderHistory[3] = QString();
  return r;
}

TEST(SettingsStore, SavedRecordLoadsBackUnchanged) {
  TempSettingsFile file;
  SettingsStore(*file.Open()).SaveSettings(FullRecord(), false);
  EXPECT_EQ(LoadFrom(file, SettingsRecord{}), FullRecord());
}

using core::ApplyStoredPlacement;
using core::StoredPlacement;
using core::TwipRect;

// A 1024 x 768 pixel screen at 96 dots per inch.
constexpr core::TwipSize kScreen{15360, 11520};

TEST(WindowPlacement, StoredPlacementIsAppliedWithFloorsAndScreenFit) {
  const TwipRect design{2812, 1627, 9735, 8265};  // left, top, width, height
  ASSERT_EQ(core::DesignPlacement(kScreen), design);
  // stored: top, left, height, width
  const struct { const char* what; StoredPlacement stored; TwipRect expected; } cases[]{
      {"nothing stored", {}, design},
      {"top without left", {"1200", "", "", ""}, design},
      {"height without width", {"", "", "5000", ""}, design},
      {"position", {"1200", "300", "", ""}, {300, 1200, 9735, 8265}},
      {"negative position", {"-20", "-1", "", ""}, {0, 0, 9735, 8265}},
      {"negative size", {"", "", "-5", "800"}, {2812, 1627, 800, 1000}},
      {"left off screen", {"100", "30000", "", ""}, {0, 100, 9735, 8265}},
      {"left reachable", {"100", "14000", "", ""}, {14000, 100, 9735, 8265}},
      {"left at the margin", {"100", "14860", "", ""}, {14860, 100, 9735, 8265}},
      {"left past the margin", {"100", "14861", "", ""}, {0, 100, 9735, 8265}},
      {"top past the margin", {"11021", "50", "", ""}, {50, 0, 9735, 8265}},
      {"not numbers", {"abc", "x", "", ""}, {0, 0, 9735, 8265}},
      {"decimals and blanks", {" 1200.6", "300.4px", "", ""}, {300, 1201, 9735, 8265}},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(ApplyStoredPlacement(c.stored, design, kScreen), c.expected) << c.what;
  }
  // The screen fit holds even with nothing stored.
  EXPECT_EQ(ApplyStoredPlacement({}, {20000, 12000, 10, 10}, kScreen), (TwipRect{0, 0, 10, 10}));
}

TEST(WindowPlacement, NumbersReadAlikeInEveryLocale) {
  const QLocale previous;
  QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
  EXPECT_EQ(core::TwipsFromText("1234.5"), 1235);
  EXPECT_EQ(core::TwipsFromText("1.234"), 1);
  EXPECT_EQ(core::TwipsFromText("99999999999"), INT_MAX);
  QLocale::setDefault(previous);
}

}  // namespace
}  // namespace renvale::test

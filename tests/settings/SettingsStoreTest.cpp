#include <gtest/gtest.h>

#include "TempSettingsFile.h"
#include "core/SettingsStore.h"

namespace renvale::test {
namespace {

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

}  // namespace
}  // namespace renvale::test

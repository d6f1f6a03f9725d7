#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <vector>

#include "core/SettingsRecord.h"
#include "platform/QtSettingsStorage.h"
#include "shell/OptionChoices.h"
#include "shell/OptionsHost.h"

namespace renvale::test {
namespace {

using core::SettingsRecord;
using shell::OptionControl;
using shell::OptionEffect;

const QString kRestart =
    QStringLiteral("When turning this option off, you must restart Renvale for the change to take effect.");

class OptionChoicesTest : public ::testing::Test {
 protected:
  QTemporaryDir dir;
  platform::QtSettingsStorage storage{dir.filePath(QStringLiteral("Renvale.conf"))};
  SettingsRecord settings;
  shell::OptionChoices choices{settings, storage};
};

struct Reaction {
  OptionControl control;
  int value;
  void (*expect)(SettingsRecord&);  // what the choice does to a first-run record
  OptionEffect effect;
};

// Each choice changes its own setting and nothing else.
const Reaction kReactions[] = {
    {OptionControl::ResFonts, 0, [](SettingsRecord& s) { s.resizeFonts = false; }, {kRestart}},
    {OptionControl::ResFonts, 1, [](SettingsRecord&) {}, {}},
    {OptionControl::FLC, 1, [](SettingsRecord& s) { s.forceLowerCaseExtension = true; }, {}},
    {OptionControl::FF, 1, [](SettingsRecord& s) { s.fileFilter = 1; }, {{}, true}},
    {OptionControl::FF, 0, [](SettingsRecord&) {}, {{}, true}},
    {OptionControl::DateFormat, 10, [](SettingsRecord& s) { s.exifDate = "mm.dd.yy"; }, {}},
    {OptionControl::DateFormat, 12, [](SettingsRecord&) {}, {}},
    {OptionControl::TimeFormat, 4, [](SettingsRecord& s) { s.exifTime = "hh.mm"; }, {}},
    {OptionControl::TimeFormat, -1, [](SettingsRecord&) {}, {}},
    {OptionControl::Option1, 0, [](SettingsRecord& s) { s.placeholders = 0; }, {}},
    {OptionControl::Option1, 3, [](SettingsRecord& s) { s.placeholders = 4; }, {}},
    {OptionControl::Option1, 5, [](SettingsRecord&) {}, {}},
    {OptionControl::Option3, 1, [](SettingsRecord& s) { s.seriesSpacing = "-"; }, {}},
    {OptionControl::Option3, 2, [](SettingsRecord& s) { s.seriesSpacing = "X"; }, {}},
    {OptionControl::Check3, 1, [](SettingsRecord& s) { s.autoResetSeries = true; }, {}},
    {OptionControl::Check2, 0, [](SettingsRecord& s) { s.toolTips = false; }, {}},
    {OptionControl::Option2, 1, [](SettingsRecord& s) { s.previewStyle = 1; }, {}},
    {OptionControl::Option2, 2, [](SettingsRecord&) {}, {}},
    {OptionControl::Check1, 0, [](SettingsRecord& s) { s.autoPreview = false; }, {}},
};

TEST_F(OptionChoicesTest, EachChoiceChangesItsSettingAndTheControlShowsIt) {
  for (const Reaction& row : kReactions) {
    SCOPED_TRACE(::testing::Message() << "control " << int(row.control) << " value " << row.value);
    settings = SettingsRecord();
    SettingsRecord expected;
    row.expect(expected);
    const int before = choices.Current(row.control);
    EXPECT_EQ(choices.Choose(row.control, row.value), row.effect);
    EXPECT_EQ(settings, expected);
    EXPECT_EQ(choices.Current(row.control), settings == SettingsRecord() ? before : row.value);
  }
}

TEST_F(OptionChoicesTest, SamplesFollowTheChosenFormats) {
  const auto samples = [&] {
    return QStringList{choices.DateSample(QDate(2004, 1, 24)), choices.TimeSample(QTime(22, 12, 3)),
                       choices.PlaceholderSample(), choices.SpacingSample()};
  };
  EXPECT_EQ(samples(), (QStringList{"2004-01-24", "22-12-03", "01", "Filename 01.JPG"}));
  choices.Choose(OptionControl::DateFormat, 10);
  choices.Choose(OptionControl::TimeFormat, 4);
  choices.Choose(OptionControl::Option1, 4);
  choices.Choose(OptionControl::Option3, 2);
  EXPECT_EQ(samples(), (QStringList{"01.24.04", "22.12", "00001", "Filename01.JPG"}));
  choices.Choose(OptionControl::Option1, 0);
  choices.Choose(OptionControl::Option3, 1);
  EXPECT_EQ(samples(), (QStringList{"01.24.04", "22.12", "1", "Filename-01.JPG"}));
}

TEST_F(OptionChoicesTest, F12TogglesTheWorkAroundWithOneMessageEachTime) {
  EXPECT_EQ(choices.ToggleFixDirectShow(), "DirectShow bug work-around has been enabled.");
  EXPECT_TRUE(settings.fixDirectShow);
  EXPECT_EQ(choices.ToggleFixDirectShow(), "DirectShow bug work-around has been disabled.");
  EXPECT_FALSE(settings.fixDirectShow);
}

TEST_F(OptionChoicesTest, RestoringTipsWritesTheFlagsAtOnce) {
  // Tips 19 to 21 are not among those restored.
  const QStringList flags = {"NoTipsAtAll", "NoTip1", "NoTip18", "NoTip19", "NoTip21"};
  for (const QString& flag : flags) storage.WriteSettingString("", flag, "1");
  EXPECT_EQ(choices.RestoreQuickTips(), "Quick Tips have been restored.");
  platform::QtSettingsStorage reread(dir.filePath(QStringLiteral("Renvale.conf")));
  QStringList after;
  for (const QString& flag : flags) after << reread.ReadSettingString("", flag);
  EXPECT_EQ(after, (QStringList{"0", "0", "0", "1", "1"}));
}

class RecordingHost : public shell::OptionsHost {
 public:
  void ApplyFileFilter(int) override { calls.push_back("filter"); }
  void SetPreviewStyle(int style) override { calls.push_back("style " + std::to_string(style)); }
  void ShowPreview(bool on) override { calls.push_back(on ? "preview on" : "preview off"); }
  void ReformatSeriesBox() override { calls.push_back("series"); }
  void ApplyToolTips(bool on) override { calls.push_back(on ? "tips on" : "tips off"); }
  void RescaleWindow() override { calls.push_back("rescale"); }
  std::vector<std::string> calls;
};

TEST_F(OptionChoicesTest, DoneHandsTheChoicesToTheWindowInOrder) {
  RecordingHost host;
  choices.ApplyToWindow(host);
  EXPECT_EQ(host.calls, (std::vector<std::string>{"style 0", "preview on", "series", "tips on", "rescale"}));
  choices.Choose(OptionControl::Option2, 1);
  choices.Choose(OptionControl::Check1, 0);
  choices.Choose(OptionControl::Check2, 0);
  choices.Choose(OptionControl::ResFonts, 0);
  host.calls.clear();
  choices.ApplyToWindow(host);
  EXPECT_EQ(host.calls, (std::vector<std::string>{"style 1", "preview off", "series", "tips off"}));
}

}  // namespace
}  // namespace renvale::test

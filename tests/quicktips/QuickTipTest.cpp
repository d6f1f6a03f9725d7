#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QTimer>
#include <memory>

#include "platform/QtSettingsStorage.h"
#include "shell/QuickTip.h"
#include "shell/QuickTipRules.h"
#include "shell/QuickTipTexts.h"
#include "shell/ShownQuickTips.h"
#include "support/ScriptedMessagePort.h"

namespace renvale::test {
namespace {

using shell::QuickTipRules;
namespace texts = shell::texts;

class QuickTipTest : public ::testing::Test {
 protected:
  // A fresh storage on the same file: what it reads has reached the disk.
  std::unique_ptr<platform::QtSettingsStorage> Storage() const {
    return std::make_unique<platform::QtSettingsStorage>(dir.filePath(QStringLiteral("Renvale.conf")));
  }
  QString Flag(const QString& name) const { return Storage()->ReadSettingString(QString(), name); }

  QTemporaryDir dir;
  std::unique_ptr<platform::QtSettingsStorage> storage = Storage();
  ScriptedMessagePort messages;
  QuickTipRules rules{*storage, messages};
};

// Each row sets up to two flags, asks for one tip, and clears the flags.
TEST_F(QuickTipTest, WhichTipsOpen) {
  struct Case { QStringList flags; int tip; bool opens; };
  const Case cases[] = {
      {{}, 1, true}, {{"NoTip5"}, 5, false}, {{"NoTip5"}, 6, true},
      {{"NoTipsAtAll"}, 3, false},  // whatever the single flags say
      {{}, 18, true},
      {{}, 19, false},  // 19 and 20 have no text
      {{}, 20, false}, {{}, 21, true}, {{}, 0, false}, {{}, 22, false},
  };
  for (const Case& c : cases) {
    for (const QString& flag : c.flags) storage->WriteSettingString(QString(), flag, "1");
    QuickTipRules fresh(*storage, messages);
    EXPECT_EQ(fresh.Open(c.tip), c.opens) << c.tip;
    EXPECT_EQ(fresh.CurrentTipNumber(), c.opens ? c.tip : 0) << c.tip;
    for (const QString& flag : c.flags) storage->WriteSettingString(QString(), flag, "0");
  }
  EXPECT_TRUE(messages.messages.empty());
}

TEST_F(QuickTipTest, ClosingWritesTheTickedFlagsAtOnce) {
  struct Case { bool noMoreTip; bool tipsOff; const char* noTip7; const char* allOff; QStringList said; };
  const Case cases[] = {
      {false, false, "", "", {}},
      {true, false, "1", "", {}},
      {false, true, "", "1", {texts::kAllTipsTurnedOff}},
      {true, true, "1", "1", {texts::kAllTipsTurnedOff}},
  };
  for (const Case& c : cases) {
    storage->WriteSettingString(QString(), "NoTip7", QString());
    storage->WriteSettingString(QString(), "NoTipsAtAll", QString());
    messages.Clear();
    ASSERT_TRUE(rules.Open(7));
    EXPECT_FALSE(rules.Open(3)) << "one tip at a time";
    rules.Close(c.noMoreTip, c.tipsOff);
    EXPECT_FALSE(rules.TipShowing());
    EXPECT_EQ(Flag("NoTip7"), c.noTip7);
    EXPECT_EQ(Flag("NoTipsAtAll"), c.allOff);
    EXPECT_EQ(messages.Texts(), c.said);
    EXPECT_EQ(rules.Open(3), !c.tipsOff) << "the next tip may come";
    rules.Close(false, false);
  }
}

// A shown tip waits for its window, which hands back its boxes only when it
// is closed; Escape counts like OK.
TEST_F(QuickTipTest, AShownTipWaitsForItsWindowToClose) {
  shell::ShownQuickTips tips(*storage, messages);
  int windows = 0;
  QTimer::singleShot(0, [&] {
    auto* window = qobject_cast<shell::QuickTip*>(QApplication::activeModalWidget());
    if (window == nullptr) return;
    ++windows;
    EXPECT_EQ(window->windowTitle(), "Quick Tip");
    EXPECT_EQ(window->TipText->toPlainText(), QuickTipRules::TipText(21));
    window->NoMoreTip->setChecked(true);
    window->TipsOFF->click();
    window->TipsOFF->click();  // clearing it says nothing
    window->TipsOFF->click();
    EXPECT_EQ(messages.Texts(), QStringList({texts::kTipsOffWarning, texts::kTipsOffWarning}));
    EXPECT_EQ(messages.Last().title, "Quick Tips");
    EXPECT_EQ(messages.Last().icon, platform::MessageIcon::Information);
    EXPECT_EQ(Flag("NoTipsAtAll"), "");
    window->reject();
  });
  tips.ShowQuickTip(21);
  EXPECT_EQ(windows, 1);
  EXPECT_EQ(Flag("NoTip21"), "1");
  EXPECT_EQ(Flag("NoTipsAtAll"), "1");
  tips.ShowQuickTip(4);  // off now: returns at once, with no window to close
}

}  // namespace
}  // namespace renvale::test

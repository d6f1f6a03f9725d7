#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <functional>

#include "platform/ErrorNumbers.h"
#include "platform/NetworkShares.h"
#include "shell/DisDrive.h"
#include "shell/MapDriveL.h"
#include "shell/QuickTipOffer.h"
#include "support/ScriptedMessagePort.h"

namespace renvale::test {
namespace {

using platform::NetworkMount;

class FakeShares : public platform::NetworkShares {
 public:
  platform::MapResult Map(const QByteArray& uri, const platform::AskLogin&, const platform::AskChoice&) override {
    mapped.push_back(uri);
    if (duringMap) duringMap();
    return mapResult;
  }
  void CancelMap() override {
    ++cancels;
    mapResult.declined = true;
  }
  std::vector<NetworkMount> List() override { return mounts; }
  int Disconnect(const NetworkMount& mount) override {
    if (disconnectError == platform::kNoError) std::erase(mounts, mount);
    return disconnectError;
  }
  std::vector<QByteArray> mapped;
  std::function<void()> duringMap;
  int cancels = 0;
  platform::MapResult mapResult;
  std::vector<NetworkMount> mounts;
  int disconnectError = platform::kNoError;
};

class NoTips : public shell::QuickTipOffer {
 public:
  void ShowQuickTip(int) override {}
};

template <typename Widget>
Widget* Child(QWidget& dialog, const char* name) {
  return dialog.findChild<Widget*>(QString::fromLatin1(name));
}

TEST(MapDriveL, OnlyANetworkFolderIsMappedAndEveryOutcomeIsTold) {
  const struct {
    QString typed;
    QString picked;  // when set, chosen with Command3 instead of typed
    platform::MapResult result;
    QByteArray mapped;  // the address handed to the mount, if any
    QString message;
  } cases[] = {
      {"", "", {}, "", "Please choose a network drive or folder"},
      {"/home/ann/Pictures", "", {}, "", "The folder chosen does not appear to be a network folder."},
      {"", "/run/user/1000/gvfs/smb-share:server=nas,share=photos", {}, "",
       "The folder chosen does not appear to be a network folder."},
      {"", "::trash:///", {}, "", "An invalid folder was chosen.  Please choose an actual folder."},
      {"", "::smb://nas/photos", {70, false, ""}, "smb://nas/photos",
       "Could not map network drive or folder.  Error #70"},
      {"smb://nas/photos", "", {0, false, ""}, "smb://nas/photos", "Could not map the drive or folder chosen."},
      {"smb://nas/photos", "", {1005, true, ""}, "smb://nas/photos", ""},
      {" \\\\nas\\photos ", "", {0, false, "/run/user/0/gvfs/smb-share:server=nas,share=photos/"},
       "smb://nas/photos",
       "Network drive or folder mapped successfully.\nLocal Drive Letter is: "
       "/run/user/0/gvfs/smb-share:server=nas,share=photos/\nMapped to: \\\\nas\\photos"},
  };
  for (const auto& c : cases) {
    FakeShares shares;
    shares.mapResult = c.result;
    ScriptedMessagePort messages;
    NoTips tips;
    shell::MapDriveL dialog({shares, messages, tips, [&](QWidget*, const QString&, const QString&) { return c.picked; }},
                            nullptr);
    if (!c.picked.isEmpty()) Child<QPushButton>(dialog, "Command3")->click();
    if (c.picked.isEmpty()) Child<QLineEdit>(dialog, "NetFolder")->setText(c.typed);
    if (messages.messages.empty()) Child<QPushButton>(dialog, "Command1")->click();
    EXPECT_EQ(messages.Texts().join('|'), c.message) << c.typed.toStdString() << c.picked.toStdString();
    EXPECT_EQ(shares.mapped, c.mapped.isEmpty() ? std::vector<QByteArray>{} : std::vector<QByteArray>{c.mapped});
    EXPECT_EQ(dialog.MappedFolder(), c.result.error == 0 && !c.result.declined ? c.result.localFolder : "");
  }
}

TEST(MapDriveL, CancelWhileTheServerIsAskedGivesUpTheAttemptNotTheDialog) {
  FakeShares shares;
  ScriptedMessagePort messages;
  NoTips tips;
  shell::MapDriveL dialog({shares, messages, tips, {}}, nullptr);
  auto* map = Child<QPushButton>(dialog, "Command1");
  Child<QLineEdit>(dialog, "NetFolder")->setText("sftp://slow-host");
  dialog.show();
  shares.duringMap = [&] {
    EXPECT_FALSE(map->isEnabled());
    Child<QPushButton>(dialog, "Command2")->click();
  };
  map->click();
  EXPECT_EQ(shares.cancels, 1);
  EXPECT_TRUE(messages.messages.empty());
  EXPECT_TRUE(map->isEnabled());
  EXPECT_TRUE(dialog.isVisible());
}

TEST(DisDrive, ListsDisconnectsTellsWhatCouldNotBeAndWhenThereIsNone) {
  FakeShares shares;
  ScriptedMessagePort messages;
  const NetworkMount gvfs{"/run/user/0/gvfs/smb-share:server=nas,share=photos/", "smb://nas/photos/", false};
  const NetworkMount kernel{"/mnt/archive/", "nas:/export/archive", true};
  shares.mounts = {gvfs, kernel};
  shell::DisDrive dialog(shares, messages, nullptr);
  auto* list = Child<QComboBox>(dialog, "Combo1");
  ASSERT_EQ(list->count(), 2);
  EXPECT_EQ(list->itemText(1), "/mnt/archive/   (nas:/export/archive)");

  list->setCurrentIndex(1);
  shares.disconnectError = platform::kAccessViolation;
  Child<QPushButton>(dialog, "Command1")->click();
  shares.disconnectError = platform::kNoError;
  list->setCurrentIndex(0);
  Child<QPushButton>(dialog, "Command1")->click();
  EXPECT_EQ(messages.Texts(),
            QStringList({"Could not disconnect selected drive.\nPlease be sure it is a network drive.",
                         "Network Drive '/run/user/0/gvfs/smb-share:server=nas,share=photos/' has been disconnected."}));
  EXPECT_EQ(shares.mounts, std::vector<NetworkMount>{kernel});
  EXPECT_EQ(list->count(), 1);
  EXPECT_TRUE(dialog.DisconnectedAny());

  // With no network folder at all the dialog says so once shown, and goes.
  shares.mounts.clear();
  messages.Clear();
  shell::DisDrive empty(shares, messages, nullptr);
  empty.show();
  QApplication::processEvents();
  EXPECT_EQ(messages.Texts(), QStringList{"Renvale did not find any drive letters mapped to a network drive or folder."});
  EXPECT_FALSE(empty.isVisible());
}

}  // namespace
}  // namespace renvale::test

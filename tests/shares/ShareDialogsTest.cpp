// The share dialogs against a scripted share service, then the share layer
// against a real share.

#include <gtest/gtest.h>
#include <netinet/in.h>
#include <pwd.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QApplication>
#include <QComboBox>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFile>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QThread>
#include <algorithm>
#include <csignal>
#include <functional>

#include "platform/ErrorNumbers.h"
#include "platform/FileSystem.h"
#include "platform/GioNetworkShares.h"
#include "platform/MountList.h"
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

// A real share: an unprivileged smbd on a loopback port with a private
// configuration, and GVfs in a D-Bus session of the test's own. Skips where
// either cannot start (no samba, no GVfs, no FUSE).
QString Program(const QString& name) {
  return QStandardPaths::findExecutable(name, {"/usr/sbin", "/usr/bin", "/usr/libexec", "/sbin"});
}

// With port 0 a free loopback port; otherwise 1 when something listens on it.
int Loopback(int port) {
  const int fd = ::socket(AF_INET, SOCK_STREAM, 0);
  sockaddr_in address{AF_INET, htons(quint16(port)), {htonl(INADDR_LOOPBACK)}, {}};
  socklen_t length = sizeof address;
  auto* any = reinterpret_cast<sockaddr*>(&address);
  int result = 0;
  if (port != 0)
    result = ::connect(fd, any, length) == 0;
  else if (::bind(fd, any, length) == 0 && ::getsockname(fd, any, &length) == 0)
    result = ntohs(address.sin_port);
  ::close(fd);
  return result;
}

// The desktop hears of mounts through its event loop, which the window runs.
void LetDesktopCatchUp() {
  for (int i = 0; i < 20; ++i) {
    QCoreApplication::processEvents();
    QThread::msleep(10);
  }
}

class SambaShare : public ::testing::Test {
 protected:
  void SetUp() override {
    const QString smbd = Program("smbd"), smbpasswd = Program("smbpasswd"), dbus = Program("dbus-daemon");
    if (smbd.isEmpty() || smbpasswd.isEmpty() || dbus.isEmpty() || Program("gvfsd").isEmpty())
      GTEST_SKIP() << "samba, D-Bus or GVfs is not installed";
    if (::access("/dev/fuse", R_OK | W_OK) != 0) GTEST_SKIP() << "no FUSE: GVfs shares have no local folder";
    const QString root = dir.path();
    for (const char* sub : {"/share", "/private", "/run"}) ASSERT_TRUE(QDir().mkpath(root + sub));
    QFile::setPermissions(root + "/run", QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    platform::FileSystem& fs = platform::RealFileSystem();
    ASSERT_EQ(fs.WriteWholeFile(QFile::encodeName(root + "/share/IMG_0001.JPG"), "picture"), platform::kNoError);
    port = Loopback(0);
    user = QString::fromLocal8Bit(::getpwuid(::getuid())->pw_name);
    const QByteArray config = SambaConfig(root).toUtf8();
    ASSERT_EQ(fs.WriteWholeFile(QFile::encodeName(root + "/smb.conf"), config), platform::kNoError);
    QProcess addUser;
    addUser.start(smbpasswd, {"-c", root + "/smb.conf", "-s", "-a", user});
    addUser.write("secret\nsecret\n");
    addUser.closeWriteChannel();
    if (!addUser.waitForFinished(5000) || addUser.exitCode() != 0) GTEST_SKIP() << "smbpasswd cannot add a user";
    // GVfs and its FUSE bridge live where the session's services find them.
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(root + "/run"));
    qputenv("XDG_DATA_DIRS", "/usr/local/share:/usr/share");
    bus.start(dbus, {"--session", "--nofork", "--print-address=1"});
    if (!bus.waitForReadyRead(5000)) GTEST_SKIP() << "no D-Bus session: " << bus.errorString().toStdString();
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus.readLine().trimmed());

    samba.setProcessChannelMode(QProcess::MergedChannels);
    samba.start(smbd, {"-F", "--debug-stdout", "-d0", "-s", root + "/smb.conf"});
    for (QDeadlineTimer deadline(5000); !Loopback(port) && !deadline.hasExpired();) QThread::msleep(50);
    if (!Loopback(port)) GTEST_SKIP() << "smbd did not start: " << samba.readAll().toStdString();
  }

  void TearDown() override {
    samba.terminate();
    samba.waitForFinished(3000);
    bus.terminate();
    bus.waitForFinished(3000);
    // GIO ends a program whose session bus goes away with SIGTERM; this bus
    // was the case's own, so its end is waited out here.
    std::signal(SIGTERM, SIG_IGN);
    LetDesktopCatchUp();
    std::signal(SIGTERM, SIG_DFL);
    // GVfs's FUSE bridge leaves with the session; its folder must be gone
    // before the temporary folder is removed.
    const QByteArray fuse = QFile::encodeName(dir.path()) + "/run/gvfs";
    for (QDeadlineTimer deadline(3000); Mounted(fuse) && !deadline.hasExpired();) QThread::msleep(50);
    if (Mounted(fuse)) QProcess::execute("fusermount3", {"-u", "-z", QFile::decodeName(fuse)});
  }

  static bool Mounted(const QByteArray& folder) {
    QFile info("/proc/self/mountinfo");
    return info.open(QIODevice::ReadOnly) && info.readAll().contains(" " + folder + " ");
  }
  QString SambaConfig(const QString& root) const {
    return QStringLiteral(
               "[global]\nworkgroup = TESTGROUP\ninterfaces = lo 127.0.0.0/8\nbind interfaces only = yes\n"
               "smb ports = %1\nserver role = standalone server\npassdb backend = smbpasswd\n"
               "smb passwd file = %2/private/smbpasswd\nprivate dir = %2/private\nlock directory = %2/private\n"
               "state directory = %2/private\ncache directory = %2/private\npid directory = %2/private\n"
               "ncalrpc dir = %2/private/ncalrpc\nlog file = %2/private/log.smbd\nload printers = no\n"
               "disable spoolss = yes\n[share]\npath = %2/share\nread only = no\nvalid users = %3\n")
        .arg(port)
        .arg(root, user);
  }
  QByteArray Address(const char* share = "share") const {
    return "smb://127.0.0.1:" + QByteArray::number(port) + "/" + share;
  }

  QTemporaryDir dir;
  QProcess bus;
  QProcess samba;
  int port = 0;
  QString user;
};

TEST_F(SambaShare, MapsBrowsesRenamesAndDisconnects) {
  platform::GioNetworkShares shares;
  int asked = 0;
  const platform::AskLogin login = [&](const platform::LoginRequest& request, platform::LoginAnswer* answer) {
    EXPECT_TRUE(request.needsPassword);
    // The first attempt is turned down; the second logs in.
    if (++asked == 1) return false;
    *answer = {user, "TESTGROUP", "secret", false};
    return true;
  };
  const platform::MapResult declined = shares.Map(Address(), login, {});
  EXPECT_TRUE(declined.declined);
  EXPECT_NE(declined.error, platform::kNoError);

  const platform::MapResult mapped = shares.Map(Address(), login, {});
  ASSERT_EQ(mapped.error, platform::kNoError) << platform::ErrorDescription(mapped.error).toStdString();
  ASSERT_TRUE(mapped.localFolder.endsWith('/'));
  LetDesktopCatchUp();

  const std::vector<NetworkMount> listed = shares.List();
  const auto mount = std::find_if(listed.begin(), listed.end(),
                                  [&](const NetworkMount& m) { return m.localFolder == mapped.localFolder; });
  ASSERT_NE(mount, listed.end());
  EXPECT_TRUE(mount->address.startsWith(QString::fromUtf8(Address())));
  EXPECT_FALSE(mount->kernelMount);
  const std::vector<platform::Volume> drives = platform::MountList::Current();
  EXPECT_TRUE(std::any_of(drives.begin(), drives.end(), [&](const platform::Volume& volume) {
    return volume.path == mapped.localFolder && volume.kind == platform::VolumeKind::Network;
  }));

  platform::FileSystem& fs = platform::RealFileSystem();
  std::vector<QByteArray> names;
  ASSERT_EQ(fs.ListFiles(mapped.localFolder, &names), platform::kNoError);
  EXPECT_EQ(names, std::vector<QByteArray>{"IMG_0001.JPG"});
  ASSERT_EQ(fs.RenameNoReplace(mapped.localFolder + "IMG_0001.JPG", mapped.localFolder + "Holiday 001.JPG"),
            platform::kNoError);
  EXPECT_TRUE(QFile::exists(dir.path() + "/share/Holiday 001.JPG"));

  ASSERT_EQ(shares.Disconnect(*mount), platform::kNoError);
  LetDesktopCatchUp();
  for (const NetworkMount& left : shares.List()) EXPECT_NE(left.localFolder, mapped.localFolder);
  EXPECT_EQ(shares.Disconnect(*mount), platform::ErrorNumberFromErrno(ENOENT, platform::ErrnoContext::Folder));
  EXPECT_NE(shares.Map(Address("no-such-share"), login, {}).error, platform::kNoError);
}

}  // namespace
}  // namespace renvale::test

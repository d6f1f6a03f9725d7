#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QList>
#include <QRegularExpression>
#include <QUrl>
#include <set>

#include "RawFiles.h"
#include "platform/AppPaths.h"
#include "platform/HelpTopics.h"
#include "platform/MountList.h"
#include "platform/NetworkAddress.h"
#include "platform/VideoDecoding.h"

namespace renvale::test {
namespace {

using platform::MountList;
using platform::Volume;
using platform::VolumeKind;

TEST(MountList, ContainingVolumeIsTheLongestMatch) {
  const std::vector<Volume> volumes{{"/", "/", VolumeKind::Root},
                                    {"/home/ann/", "ann", VolumeKind::Home},
                                    {"/media/ann/CANON DC/", "CANON DC", VolumeKind::Removable},
                                    {"/home/ann/remote/", "ann@host:/srv", VolumeKind::Network}};
  const std::pair<QByteArray, int> cases[] = {
      {"/etc/", 0}, {"/home/ann/", 1}, {"/home/ann/Pictures/2024/", 1}, {"/home/ann/remote/x/", 3},
      {"/home/annex/", 0},  // a name that merely starts like the home folder
      {"/media/ann/CANON DC", 2}};
  for (const auto& [folder, volume] : cases) {
    EXPECT_EQ(MountList::ContainingVolume(volumes, folder), volume) << folder.constData();
  }
  EXPECT_EQ(MountList::ContainingVolume({}, "/x/"), -1);
}

TEST(MountList, ReadabilityAndTheLiveList) {
  ScratchFolder folder;
  EXPECT_TRUE(MountList::IsReadable(folder.path()));
  EXPECT_FALSE(MountList::IsReadable(folder / "no-card/"));
  const std::vector<Volume> volumes = MountList::Current();
  ASSERT_GE(volumes.size(), 2u);
  EXPECT_EQ(volumes[0].path, "/");
  EXPECT_EQ(volumes[1].path, qgetenv("HOME") + '/');
}

using platform::NetworkAddress;

QByteArray Parse(const QByteArray& text) { return NetworkAddress::Parse(text.constData(), size_t(text.size())); }

TEST(NetworkAddress, TypedAndPastedAddressesBecomeMountableUris) {
  // Addresses that need no change come back as they were typed.
  for (const char* same : {"smb://nas/photos", "sftp://ann@host:2222", "nfs://nas/export/pics",
                                 "davs://cloud.example/remote.php/webdav/"}) {
    EXPECT_EQ(Parse(same), same) << same;
  }
  const std::pair<QByteArray, QByteArray> cases[] = {
      {"  SMB://nas/photos/2024\n", "smb://nas/photos/2024"},
      {"smb://nas/My Photos/%41", "smb://nas/My%20Photos/%41"},
      {"\\\\nas\\photos", "smb://nas/photos"},
      {"\\\\nas\\My Photos\\100% \xc3\xa9t\xc3\xa9", "smb://nas/My%20Photos/100%25%20%C3%A9t%C3%A9"}};
  for (const auto& [typed, uri] : cases) EXPECT_EQ(Parse(typed), uri) << typed.constData();
}

TEST(NetworkAddress, WhatIsNoNetworkFolderIsRefused) {
  const QByteArray refused[] = {
      "",          "   ",           "/home/ann/Pictures", "file:///home/ann", "http://nas/photos",
      "smb://nas", "smb://nas/",    "smb:///photos",      "nfs://nas",        "sftp://",
      "smb:/nas",  "\\\\nas",       "\\\\nas\\",          "\\\\\\photos",     "\\\\nas\\\\photos",
      "smb",       "(Please choose a network drive or folder)",
  };
  for (const QByteArray& text : refused) EXPECT_EQ(Parse(text), QByteArray()) << text.constData();
  // The parser never reads past the length it is given.
  EXPECT_EQ(NetworkAddress::Parse("smb://nas/photosXYZ", 16), "smb://nas/photos");
  EXPECT_EQ(NetworkAddress::Parse(nullptr, 5), QByteArray());
}

using platform::VideoDecoding;

TEST(VideoDecoding, TheWorkaroundRanksEveryHardwareDecoderOut) {
  const QByteArray ranks = VideoDecoding::SoftwareOnlyRanks({});
  for (const char* decoder : {"vah264dec", "vaapih264dec", "vaapidecodebin", "nvh264dec", "v4l2h264dec"}) {
    EXPECT_TRUE(ranks.split(',').contains(QByteArray(decoder) + ":NONE")) << decoder;
  }
  EXPECT_FALSE(ranks.contains("avdec_")) << "software decoders stay";
  EXPECT_FALSE(ranks.endsWith(','));
  // A rank set on purpose comes last, so that it wins.
  EXPECT_TRUE(VideoDecoding::SoftwareOnlyRanks(" vah264dec:PRIMARY ").endsWith(",vah264dec:PRIMARY"));

  qunsetenv("GST_PLUGIN_FEATURE_RANK");
  VideoDecoding::Choose(false);
  EXPECT_FALSE(qEnvironmentVariableIsSet("GST_PLUGIN_FEATURE_RANK"));
  qputenv("GST_PLUGIN_FEATURE_RANK", "mine:MAX");
  VideoDecoding::Choose(true);
  VideoDecoding::Choose(true);
  EXPECT_EQ(qgetenv("GST_PLUGIN_FEATURE_RANK"), VideoDecoding::SoftwareOnlyRanks("mine:MAX"));
  qunsetenv("GST_PLUGIN_FEATURE_RANK");
}

QString PageText(const QUrl& page) {
  QFile file(QLatin1Char(':') + page.path());
  if (!file.open(QIODevice::ReadOnly)) return {};
  return QString::fromUtf8(file.readAll());
}

// Every topic has a page of its own, and every link of every page, to a page,
// a place on a page or the style sheet, leads somewhere that exists.
TEST(HelpPages, EveryTopicOpensAPageAndEveryLinkResolves) {
  using namespace platform;
  LoadHelpPages();
  std::set<QString> pages;
  for (HelpTopic topic : kAllHelpTopics) {
    const QUrl page(HelpFilePath() + HelpTopicPage(topic));
    SCOPED_TRACE(page.toString().toStdString());
    EXPECT_TRUE(pages.insert(page.toString()).second) << "two topics share a page";
    EXPECT_FALSE(HelpTopicTitle(topic).isEmpty());
    EXPECT_TRUE(PageText(page).contains(QStringLiteral("<h1>")));
  }
  const QStringList files = QDir(QStringLiteral(":/help")).entryList({QStringLiteral("*.html")});
  EXPECT_EQ(files.size(), static_cast<qsizetype>(pages.size())) << "a page no topic or contents entry reaches";
  const QRegularExpression link(QStringLiteral("(?:href|src)=\"([^\"]*)\""));
  for (const QString& name : files) {
    const QUrl page(HelpFilePath() + name);
    for (const QRegularExpressionMatch& match : link.globalMatch(PageText(page))) {
      const QUrl target = page.resolved(QUrl(match.captured(1)));
      SCOPED_TRACE((name + QStringLiteral(" -> ") + match.captured(1)).toStdString());
      ASSERT_EQ(target.scheme(), QStringLiteral("qrc"));
      ASSERT_TRUE(QFile::exists(QLatin1Char(':') + target.path()));
      if (!target.hasFragment()) continue;
      const QString anchor = QStringLiteral("id=\"%1\"").arg(target.fragment());
      EXPECT_TRUE(PageText(target).contains(anchor));
    }
  }
}

}  // namespace
}  // namespace renvale::test

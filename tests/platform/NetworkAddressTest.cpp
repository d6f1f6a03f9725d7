#include <gtest/gtest.h>

#include "platform/NetworkAddress.h"

namespace renvale::test {
namespace {

using platform::NetworkAddress;

QByteArray Parse(const QByteArray& text) { return NetworkAddress::Parse(text.constData(), size_t(text.size())); }

TEST(NetworkAddress, TypedAndPastedAddressesBecomeMountableUris) {
  const struct {
    QByteArray typed;
    QByteArray uri;
  } cases[] = {
      {"smb://nas/photos", "smb://nas/photos"},
      {"  SMB://nas/photos/2024\n", "smb://nas/photos/2024"},
      {"sftp://ann@host:2222", "sftp://ann@host:2222"},
      {"nfs://nas/export/pics", "nfs://nas/export/pics"},
      {"davs://cloud.example/remote.php/webdav/", "davs://cloud.example/remote.php/webdav/"},
      {"smb://nas/My Photos/%41", "smb://nas/My%20Photos/%41"},
      {"\\\\nas\\photos", "smb://nas/photos"},
      {"\\\\nas\\My Photos\\100% \xc3\xa9t\xc3\xa9", "smb://nas/My%20Photos/100%25%20%C3%A9t%C3%A9"},
  };
  for (const auto& c : cases) EXPECT_EQ(Parse(c.typed), c.uri) << c.typed.constData();
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

}  // namespace
}  // namespace renvale::test

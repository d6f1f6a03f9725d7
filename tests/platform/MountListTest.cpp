#include <gtest/gtest.h>

#include "RawFiles.h"
#include "platform/MountList.h"

namespace renvale::test {
namespace {

using platform::MountEntry;
using platform::MountList;
using platform::Volume;
using platform::VolumeKind;

const QByteArray kSample =
    "22 27 0:21 / /proc rw,relatime - proc proc rw\n"
    "27 1 254:0 / / rw,relatime shared:1 - ext4 /dev/vda rw\n"
    "30 27 0:40 / /home rw,relatime shared:2 - ext4 /dev/vdb1 rw\n"
    "41 27 8:17 / /media/ann/CANON\\040DC rw,nosuid shared:30 - vfat /dev/sdb1 rw,fmask=0022\n"
    "42 27 8:33 / /run/media/ann/SD_CARD rw,nosuid - exfat /dev/sdc1 rw\n"
    "43 27 0:50 / /mnt/photos rw,relatime - cifs //nas/photos rw,vers=3.0\n"
    "44 27 0:51 / /mnt/archive rw - nfs4 nas:/export/archive rw\n"
    "45 27 0:52 / /run/user/1000/gvfs rw,nosuid - fuse.gvfsd-fuse gvfsd-fuse rw\n"
    "46 27 0:53 / /media rw - tmpfs tmpfs rw\n"
    "47 27 0:54 / /home/ann/remote rw - fuse.sshfs ann@host:/srv rw\n"
    "garbage line without separator\n";

TEST(MountList, ParsesFieldsAndDecodesEscapes) {
  const std::vector<MountEntry> mounts = MountList::ParseMountInfo(kSample);
  ASSERT_EQ(mounts.size(), 10u);
  EXPECT_EQ(mounts[1], (MountEntry{"/", "ext4", "/dev/vda"}));
  EXPECT_EQ(mounts[3], (MountEntry{"/media/ann/CANON DC", "vfat", "/dev/sdb1"}));
  EXPECT_EQ(mounts[5], (MountEntry{"/mnt/photos", "cifs", "//nas/photos"}));
}

TEST(MountList, ContainingVolumeIsTheLongestMatch) {
  const std::vector<Volume> volumes = MountList::Browsable(MountList::ParseMountInfo(kSample), "/home/ann");
  const struct {
    QByteArray folder;
    int volume;
  } cases[] = {
      {"/etc/", 0},
      {"/home/ann/", 1},
      {"/home/ann/Pictures/2024/", 1},
      {"/home/ann/remote/x/", 7},
      {"/home/annex/", 0},  // a name that merely starts like the home folder
      {"/media/ann/CANON DC", 2},
  };
  for (const auto& c : cases) EXPECT_EQ(MountList::ContainingVolume(volumes, c.folder), c.volume) << c.folder.constData();
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

}  // namespace
}  // namespace renvale::test

#include <gtest/gtest.h>

#include "RawFiles.h"
#include "platform/MountList.h"

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
  const struct {
    QByteArray folder;
    int volume;
  } cases[] = {
      {"/etc/", 0},
      {"/home/ann/", 1},
      {"/home/ann/Pictures/2024/", 1},
      {"/home/ann/remote/x/", 3},
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

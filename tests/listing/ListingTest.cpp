#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <sys/stat.h>

#include "core/FileFilterPatterns.h"
#include "core/FileNameFilter.h"
#include "core/FolderListing.h"
#include "core/NaturalOrder.h"
#include "platform/ErrorNumbers.h"
#include "platform/RawFiles.h"

namespace renvale::test {
namespace {

using core::FileNameFilter;

struct FilterCase {
  QString patterns;
  QByteArray name;
  bool listed;
};

TEST(FileNameFilter, MatchesWithoutRegardToCase) {
  const FilterCase cases[] = {
      {"*.JPG", "IMG_1.JPG", true}, {"*.JPG", "img_2.jpg", true},
      {"*.jpg", "IMG_3.Jpg", true}, {"*.JPG", "a.jpeg", false},
      {"*.JPG", "jpg", false}, {"*.JPG", "x.jpg.bak", false},
      {"*.JPG", "x.bak.jpg", true}, {"*.JPG", "caf\xe9.JPG", true},
      {"*.*", "README", true}, {"*.*", "a.b", true},
      {"*", "noext", true}, {" *.PNG ; *.JPG ", "shot.png", true},
      {"*.PNG;;*.JPG", "shot.jpg", true}, {"IMG_????.*", "img_0001.jpg", true},
      {"IMG_????.*", "IMG_01.jpg", false}, {"*_edit*", "beach_EDIT_2.tif", true},
      {"*_edit*", "beach.tif", false}, {"IMG*", "IMG", true},
      {"*.jp*", "a.jp", true}, {"", "anything", false},
  };
  for (const FilterCase& c : cases) {
    EXPECT_EQ(FileNameFilter(c.patterns).Matches(c.name), c.listed)
        << c.patterns.toStdString() << " / " << c.name.constData();
  }
}

std::vector<QByteArray> Listed(const QByteArray& folder, core::FileFilter filter, int expectedError = 0) {
  std::vector<platform::FileName> files{platform::FileName{"stale"}};
  EXPECT_EQ(core::ListFolderFiles(platform::RealFileSystem(), folder, filter, &files), expectedError);
  std::vector<QByteArray> raw;
  for (const platform::FileName& file : files) raw.push_back(file.raw);
  return raw;
}

TEST(FolderListing, FiltersHidesDotFilesAndFoldersAndSortsNaturally) {
  ScratchFolder folder;
  for (const char* name : {"IMG_10.JPG", "img_9.jpg", ".hidden.jpg", "notes.txt", "caf\xe9.jpg", "README"}) {
    ASSERT_TRUE(WriteRaw(folder / name, ""));
  }
  ASSERT_EQ(::mkdir((folder / "album.jpg").constData(), 0755), 0);

  EXPECT_EQ(Listed(folder.path(), core::FileFilter::TypicalImages),
            (std::vector<QByteArray>{"caf\xe9.jpg", "img_9.jpg", "IMG_10.JPG"}));
  EXPECT_EQ(Listed(folder.path(), core::FileFilter::AllFiles),
            (std::vector<QByteArray>{"caf\xe9.jpg", "img_9.jpg", "IMG_10.JPG", "notes.txt", "README"}));
  EXPECT_TRUE(Listed(folder / "gone/", core::FileFilter::AllFiles, platform::kPathNotFound).empty());
}

struct OrderedPair {
  QByteArray first;
  QByteArray second;
};

TEST(NaturalOrder, PairsInDisplayOrder) {
  const OrderedPair cases[] = {
      {"IMG_9.jpg", "IMG_10.jpg"}, {"img_9.jpg", "IMG_10.JPG"}, {"IMG_0009.jpg", "IMG_10.jpg"},
      {"x2y9", "x2y10"},
      {"99999999999999999999", "100000000000000000000"},  // past 64 bits
      {"a0b", "a1"},
      {"IMG_01", "IMG_1"},    // same value: raw bytes decide
      {"PHOTO", "photo"},     // same letters: raw bytes decide
      {"file", "file0"}, {"file0", "file00"}, {"photo.jpg", "photo1.jpg"},
      {"a 2", "a10"}, {"photo_1", "photoa"},
      {"Zebra", "\xc3\xa9t\xc3\xa9"},  // bytes past ASCII after every letter
      {"b", "C"},
  };
  for (const OrderedPair& c : cases) {
    EXPECT_TRUE(core::NaturalLess(c.first, c.second)) << c.first.constData() << " < " << c.second.constData();
    EXPECT_FALSE(core::NaturalLess(c.second, c.first)) << c.second.constData() << " < " << c.first.constData();
  }
  EXPECT_FALSE(core::NaturalLess("same", "same"));
}

TEST(NaturalOrder, SortingIsIndependentOfTheReadingOrder) {
  const std::vector<QByteArray> expected = {
      "_intro.jpg", "DSC_0001.JPG", "dsc_2.jpg", "DSC_10.jpg", "IMG_1.JPG", "img_2.jpg",
      "IMG_9.jpg",  "IMG_10.jpg",   "IMG_10a.jpg", "IMG_100.jpg", "notes", "Notes2",
      "notes10",    "PHOTO",        "photo",
  };
  std::vector<QByteArray> names = expected;
  std::mt19937 random(7);
  for (int round = 0; round < 5; ++round) {
    std::shuffle(names.begin(), names.end(), random);
    const std::vector<size_t> order = core::NaturalOrder(names);
    std::vector<QByteArray> sorted;
    for (size_t index : order) sorted.push_back(names[index]);
    EXPECT_EQ(sorted, expected);
  }
  EXPECT_TRUE(core::NaturalOrder({}).empty());
}

}  // namespace
}  // namespace renvale::test

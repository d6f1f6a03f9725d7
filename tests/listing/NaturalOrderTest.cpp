#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "core/NaturalOrder.h"

namespace renvale::test {
namespace {

struct OrderedPair {
  QByteArray first;
  QByteArray second;
};

TEST(NaturalOrder, PairsInDisplayOrder) {
  const OrderedPair cases[] = {
      {"IMG_9.jpg", "IMG_10.jpg"},
      {"img_9.jpg", "IMG_10.JPG"},
      {"IMG_0009.jpg", "IMG_10.jpg"},
      {"x2y9", "x2y10"},
      {"99999999999999999999", "100000000000000000000"},  // past 64 bits
      {"a0b", "a1"},
      {"IMG_01", "IMG_1"},    // same value: raw bytes decide
      {"PHOTO", "photo"},     // same letters: raw bytes decide
      {"file", "file0"},
      {"file0", "file00"},
      {"photo.jpg", "photo1.jpg"},
      {"a 2", "a10"},
      {"photo_1", "photoa"},
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

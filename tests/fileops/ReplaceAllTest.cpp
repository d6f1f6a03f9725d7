#include <gtest/gtest.h>

#include "fileops/ReplaceAll.h"

namespace renvale::fileops {
namespace {

struct ReplaceRow { const char *text, *search, *replacement, *expected; };

TEST(ReplaceAll, ReplacesEveryMatchLeftToRightWithoutOverlapOrRescan) {
  const ReplaceRow rows[] = {
      {"IMG_0001.JPG", "", "x", "IMG_0001.JPG"},          // empty search: unchanged
      {"IMG_0001.JPG", "img", "Pic", "IMG_0001.JPG"},     // case counts
      {"IMG_0001.JPG", "IMG", "Pic", "Pic_0001.JPG"},
      {"aaa", "aa", "b", "ba"},                           // no overlap
      {"aaaa.txt", "aa", "b", "bb.txt"},
      {"aa", "a", "aa", "aaaa"},                          // the replacement is not searched again
      {"banana.jpg", "a", "", "bnn.jpg"},                 // empty replacement deletes
      {"x\xff_IMG\xfe", "IMG", "Pic", "x\xff_Pic\xfe"},   // bytes that are not UTF-8 are kept
  };
  for (const ReplaceRow& row : rows) {
    EXPECT_EQ(ReplaceAll(row.text, row.search, row.replacement), QByteArray(row.expected))
        << row.text << " / " << row.search;
  }
}

}  // namespace
}  // namespace renvale::fileops

#include <gtest/gtest.h>

#include "fileops/ReplaceAll.h"

namespace renvale::fileops {
namespace {

struct ReplaceRow { const char *text, *search, *replacement, *expected; };

TEST(ReplaceAll, ReplacesEveryMatchLeftToRightWithoutOverlapOrRescan) {
  const ReplaceRow rows[] = {
      {"IMG_0001.JPG", "", "x", "IMG_0001.JPG"},          // empty search: unchanged
      {"aaa", "aa", "b", "ba"},                           // no overlap
      {"aaaa.txt", "aa", "b", "bb.txt"},
      {"aa", "a", "aa", "aaaa"},                          // the replacement is not searched again
      {"banana.jpg", "a", "", "bnn.jpg"},                 // empty replacement deletes
  };
  for (const ReplaceRow& row : rows) {
    EXPECT_EQ(ReplaceAll(row.text, row.search, row.replacement), QByteArray(row.expected))
        << row.text << " / " << row.search;
  }
}

}  // namespace
}  // namespace renvale::fileops

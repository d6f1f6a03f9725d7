#include <gtest/gtest.h>

#include "fileops/ReplaceAll.h"
#include "fileops/SearchTerms.h"

namespace renvale::fileops {
namespace {

struct ReplaceRow {
  const char* text;
  const char* search;
  const char* replacement;
  const char* expected;
};

TEST(ReplaceAll, ReplacesEveryMatchLeftToRightWithoutOverlapOrRescan) {
  const ReplaceRow rows[] = {
      {"IMG_0001.JPG", "", "x", "IMG_0001.JPG"},          // empty search: unchanged
      {"IMG_0001.JPG", "img", "Pic", "IMG_0001.JPG"},     // case counts
      {"IMG_0001.JPG", "IMG", "Pic", "Pic_0001.JPG"},
      {"aaa", "aa", "b", "ba"},                           // no overlap
      {"aaaa.txt", "aa", "b", "bb.txt"},
      {"aa", "a", "aa", "aaaa"},                          // the replacement is not searched again
      {"banana.jpg", "a", "", "bnn.jpg"},                 // empty replacement deletes
      {"a.jpg.jpg", ".jpg", ".jpeg", "a.jpeg.jpeg"},      // the extension is not protected
      {"x\xff_IMG\xfe", "IMG", "Pic", "x\xff_Pic\xfe"},   // bytes that are not UTF-8 are kept
      {"ab", "abc", "x", "ab"},                           // search longer than the text
  };
  for (const ReplaceRow& row : rows) {
    EXPECT_EQ(ReplaceAll(row.text, row.search, row.replacement), QByteArray(row.expected))
        << row.text << " / " << row.search;
  }
}

TEST(SearchTerms, ChainsFilledPairsInOrderAndMatchesUtf8Bytes) {
  SearchTerms terms;
  EXPECT_FALSE(terms.AnyFilled());
  terms.Set(2, QString(), QStringLiteral("ignored"));
  EXPECT_FALSE(terms.AnyFilled());
  terms.Set(5, QStringLiteral("Pic"), QStringLiteral("Photo"));
  terms.Set(1, QStringLiteral("IMG"), QStringLiteral("Pic"));
  EXPECT_EQ(terms.Apply("IMG_1.jpg"), "Photo_1.jpg");
  terms.Set(0, QStringLiteral(" "), QStringLiteral("\u00e9"));
  EXPECT_TRUE(terms.AnyFilled());
  EXPECT_EQ(terms.Apply("a IMG\xff.jpg"), "a\xc3\xa9Photo\xff.jpg");
}

}  // namespace
}  // namespace renvale::fileops

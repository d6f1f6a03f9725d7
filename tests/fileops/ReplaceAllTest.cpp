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

// Chaining is the run's test; here the terms' bytes.
TEST(SearchTerms, MatchesTheTermsUtf8BytesAndCountsBlanksAsFilled) {
  SearchTerms terms;
  terms.Set(3, QStringLiteral(" "), QStringLiteral("\u00e9"));
  EXPECT_TRUE(terms.AnyFilled());
  EXPECT_EQ(terms.Apply("a b\xff.jpg"), "a\xc3\xa9" "b\xff.jpg");
}

}  // namespace
}  // namespace renvale::fileops

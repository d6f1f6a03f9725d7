#include <gtest/gtest.h>

#include "core/FileNameRules.h"

namespace renvale::test {
namespace {

using core::SplitFileName;

TEST(FileNameRules, SplitsAtLastDotKeepingTheDot) {
  struct Case { const char* name; bool force; const char* base; const char* ext; };
  const Case cases[] = {
      {"a.b.JPG", false, "a.b", ".JPG"}, {"a.b.JPG", true, "a.b", ".jpg"},
      {"README", true, "README", ""},    {"name.", false, "name", "."},
      {".xmp", false, "", ".xmp"},       {"", true, "", ""},
  };
  for (const Case& c : cases) {
    const core::SplitName split = SplitFileName(QString::fromUtf8(c.name), c.force);
    EXPECT_EQ(split.base, QString::fromUtf8(c.base)) << c.name;
    EXPECT_EQ(split.extension, QString::fromUtf8(c.ext)) << c.name;
  }
}

TEST(FileNameRules, ForcedCaseLowersOnlyFromTheLastDot) {
  EXPECT_EQ(core::ApplyForcedExtensionCase("My.Trip.JPG", true), "My.Trip.jpg");
  EXPECT_EQ(core::ApplyForcedExtensionCase("NO DOT", true), "NO DOT");
}

TEST(FileNameRules, RenameGuardAppendsTheSelectedExtension) {
  EXPECT_EQ(core::AppendMissingExtension("b", ".JPG", false), "b.JPG");
  EXPECT_EQ(core::AppendMissingExtension("b", ".JPG", true), "b.jpg");
  // Already there in another case: untouched, and no forced case either.
  EXPECT_EQ(core::AppendMissingExtension("B.jPg", ".JPG", true), "B.jPg");
  // Another extension does not count: the selected one is added after it.
  EXPECT_EQ(core::AppendMissingExtension("b.png", ".JPG", false), "b.png.JPG");
  EXPECT_EQ(core::AppendMissingExtension("PG", ".JPG", false), "PG.JPG");
  EXPECT_EQ(core::AppendMissingExtension("noext", "", true), "noext");
}

TEST(FileNameRules, InsertGuardPutsCaretBeforeAppendedExtension) {
  const core::GuardedText moved = core::GuardExtensionAfterInsert("Trip.jpg07 ", ".JPG");
  EXPECT_EQ(moved.text, "Trip.jpg07 .JPG");
  EXPECT_EQ(moved.caret, 11);
  const core::GuardedText kept = core::GuardExtensionAfterInsert("Trip 07 .jpg", ".JPG");
  EXPECT_EQ(kept.text, "Trip 07 .jpg");
  EXPECT_FALSE(kept.caret.has_value());
}

TEST(FileNameRules, EachForbiddenCharacterIsCaught) {
  for (const char* bad : {"a\\b", "a/b", "a:b", "a*b", "a?b", "a\"b", "a<b", "a>b", "a|b"}) {
    EXPECT_TRUE(core::HasInvalidFilenameChars(QString::fromUtf8(bad))) << bad;
  }
  EXPECT_FALSE(core::HasInvalidFilenameChars("Kids & Pets - 2004.05.01 [1] (x) 'ok' %DATE%"));
}

}  // namespace
}  // namespace renvale::test

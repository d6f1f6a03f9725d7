#include <gtest/gtest.h>

#include "core/BatchBaseCheck.h"

namespace renvale::test {
namespace {

using core::BatchBaseIssue;

TEST(BatchBaseCheck, IssuesInTheirOrder) {
  struct Case {
    const char* base;
    const char* selected;
    const char* timePattern;
    BatchBaseIssue issue;
  };
  const Case cases[] = {
      {"img_0001.JPG", "IMG_0001.jpg", "hh-mm-ss", BatchBaseIssue::NoBaseName},
      {"", "", "hh-mm-ss", BatchBaseIssue::NoBaseName},  // own name checked before emptiness
      {"", "a.jpg", "hh-mm-ss", BatchBaseIssue::EmptyBase},
      {"a:%SERIES%", "a.jpg", "hh-mm-ss", BatchBaseIssue::InvalidCharacters},
      {"Holiday", "a.jpg", "hh-mm-ss", BatchBaseIssue::NoTimeOrSeries},
      {"Holiday %DATE%", "a.jpg", "hh-mm-ss", BatchBaseIssue::NoTimeOrSeries},
      {"Holiday %origfn%", "a.jpg", "hh-mm", BatchBaseIssue::None},
      {"Holiday %Serial%", "a.jpg", "hh-mm", BatchBaseIssue::None},
      {"Holiday %series%", "a.jpg", "hh-mm", BatchBaseIssue::None},
      {"%time%", "a.jpg", "hh-mm-SS", BatchBaseIssue::None},
      {"%time%", "a.jpg", "hh-mm", BatchBaseIssue::TimeWithoutSeconds},
      {"%Date Time%", "a.jpg", "hhmm", BatchBaseIssue::TimeWithoutSeconds},
      {"%DATE TIME% %SERIES%", "a.jpg", "hhmm", BatchBaseIssue::None},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(core::CheckBatchBase(c.base, c.selected, c.timePattern).issue, c.issue) << c.base;
  }
}

TEST(BatchBaseCheck, TextsAndTheirLineBreaks) {
  const core::BatchBaseVerdict own = core::CheckBatchBase("a.jpg", "a.jpg", "");
  EXPECT_TRUE(own.Stops());
  EXPECT_EQ(own.text,
            "Before batch-renaming files, you must enter a New 'base' Filename.\n"
            "Click the 'Help' button in the Batch Mode pane for help.");

  const core::BatchBaseVerdict dup = core::CheckBatchBase("Trip", "a.jpg", "hh-mm-ss");
  EXPECT_TRUE(dup.IsQuestion());
  EXPECT_EQ(dup.text,
            "The base filename does not contain EXIF TIME or a SERIES #.  This could cause "
            "duplicate filenames!\r\n"
            "Windows does not allow duplicate filenames in the same folder.  Do not continue "
            "unless you are certain\r\n"
            "that duplicate filenames will not occur.\r\n"
            "If you are renaming MP3s with ID3 data, be sure *ALL* selected MP3 files contain ID3 "
            "information.\r\n"
            "Continue with the batch renaming?");

  const core::BatchBaseVerdict seconds = core::CheckBatchBase("%TIME%", "a.jpg", "hh-mm");
  EXPECT_TRUE(seconds.IsQuestion());
  EXPECT_EQ(seconds.text,
            "The base filename does not contain a SERIES # and although EXIF TIME is included, the "
            "time format chosen does not include seconds (See Options).  This could cause "
            "duplicate filenames!\nContinue with the batch renaming?");

  EXPECT_EQ(core::CheckBatchBase("a|b", "a.jpg", "").text,
            "Filenames cannot contain the following characters:   \\ / : * ? \" < > |");
}

}  // namespace
}  // namespace renvale::test

#include <gtest/gtest.h>

#include "core/RenameFailureTexts.h"
#include "platform/ErrorNumbers.h"

namespace renvale::test {
namespace {

const char* const kReadOnlyTail =
    "The file being renamed is 'Read Only', the source folder is Write Protected, or the file is "
    "in-use by another applicaton.\r"
    "If you are accessing a memory card through a memory card reader/slot or\r"
    "a cable connected from the camera to computer, examine memory card\r"
    "to be sure the Write Protect (or Lock) switch is not enabled.\r";

TEST(RenameFailureTexts, EachKindOfFailureHasItsOwnWording) {
  const QString tail = QString(kReadOnlyTail) + "File renaming operation cancelled.";
  const QString overwriteTail =
      QString(kReadOnlyTail).replace("being renamed", "being overwritten").chopped(1);
  const std::pair<QString, QString> cases[] = {
      // Individual mode: a blank line before the end, and the system text
      // for an unexpected error.
      {core::IndividualRenameFailureText(platform::kAccessViolation, "ignored"),
       QString("Error renaming file(s).  ***Error Code 70 - Access Violation Error***\r") +
           kReadOnlyTail + "\rFile renaming operation cancelled."},
      {core::IndividualRenameFailureText(platform::kPathFileAccess, "ignored"),
       QString("Error renaming file(s).  ***Error Code 75 - File/Path Access Error***\r") +
           kReadOnlyTail + "\rFile renaming operation cancelled."},
      {core::IndividualRenameFailureText(1028, "No space left on device"),
       "Error renaming file(s).  ***Error Code 1028 - Unexpected Error***\r"
       "No space left on device\rFile renaming operation cancelled."},
      // Batch mode says "file" and has no blank line.
      {core::BatchRenameFailureText(70),
       "Error renaming file.  ***Error Code 70 - Access Violation Error***\r" + tail},
      {core::BatchRenameFailureText(58), "Error renaming file.  ***Error Code 58 - Unexpected Error***\r" + tail},
      {core::OverwriteFailureText(70),
       "Error overwriting file.  ***Error Code 70 - Access Violation Error***\r" + overwriteTail},
      {core::OverwriteFailureText(1013),
       "Error overwriting file.  ***Error Code 1013 - Unexpected Error***\r" + overwriteTail},
  };
  for (const auto& [actual, expected] : cases) EXPECT_EQ(actual, expected);
}

}  // namespace
}  // namespace renvale::test

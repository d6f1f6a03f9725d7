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

TEST(RenameFailureTexts, IndividualKnownErrorsHaveABlankLineBeforeTheEnd) {
  EXPECT_EQ(core::IndividualRenameFailureText(platform::kAccessViolation, "ignored"),
            QString("Error renaming file(s).  ***Error Code 70 - Access Violation Error***\r") +
                kReadOnlyTail + "\rFile renaming operation cancelled.");
  EXPECT_EQ(core::IndividualRenameFailureText(platform::kPathFileAccess, "ignored"),
            QString("Error renaming file(s).  ***Error Code 75 - File/Path Access Error***\r") +
                kReadOnlyTail + "\rFile renaming operation cancelled.");
}

TEST(RenameFailureTexts, IndividualUnexpectedErrorNamesTheSystemText) {
  EXPECT_EQ(core::IndividualRenameFailureText(1028, "No space left on device"),
            "Error renaming file(s).  ***Error Code 1028 - Unexpected Error***\r"
            "No space left on device\rFile renaming operation cancelled.");
}

TEST(RenameFailureTexts, BatchSaysFileAndHasNoBlankLine) {
  const QString tail = QString(kReadOnlyTail) + "File renaming operation cancelled.";
  EXPECT_EQ(core::BatchRenameFailureText(70),
            "Error renaming file.  ***Error Code 70 - Access Violation Error***\r" + tail);
  EXPECT_EQ(core::BatchRenameFailureText(58),
            "Error renaming file.  ***Error Code 58 - Unexpected Error***\r" + tail);
}

TEST(RenameFailureTexts, OverwriteDeleteFailure) {
  const QString tail =
      QString(kReadOnlyTail).replace("being renamed", "being overwritten").chopped(1);
  EXPECT_EQ(core::OverwriteFailureText(70),
            "Error overwriting file.  ***Error Code 70 - Access Violation Error***\r" + tail);
  EXPECT_EQ(core::OverwriteFailureText(1013),
            "Error overwriting file.  ***Error Code 1013 - Unexpected Error***\r" + tail);
}

TEST(RenameFailureTexts, OverwriteQuestion) {
  EXPECT_EQ(core::OverwriteQuestionText("Trip 07.jpg"),
            "Overwrite file: 'Trip 07.jpg'?\n"
            "Overwriting an existing file will cause that file to be lost!");
}

}  // namespace
}  // namespace renvale::test

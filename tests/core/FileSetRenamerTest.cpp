#include <gtest/gtest.h>

#include "core/FileSetRenamer.h"
#include "platform/ErrorNumbers.h"
#include "support/FaultyFileSystem.h"
#include "support/MemoryFileSystem.h"
#include "support/ScriptedMessagePort.h"

namespace renvale::test {
namespace {

// When putting a set back fails too, the person must learn which files are
// left under which names, or they cannot find them again.
TEST(FileSetRenamer, NamesEveryFileThatCouldNotBePutBack) {
  MemoryFileSystem memory;
  for (const char* name : {"/p/A.CRW", "/p/A.THM", "/p/A.xmp"}) memory.Add(name, "x");
  FaultyFileSystem fs(memory);
  fs.FailRename("/p/A.xmp", platform::kPathFileAccess);
  fs.FailRenameFrom("/p/B.CRW", platform::kAccessViolation);
  ScriptedMessagePort port;
  core::FileSetRenamer renamer(fs, port);
  EXPECT_EQ(renamer.RenameSet("/p/", {"A.CRW", "B.CRW"}, {{"A.THM", "B.THM"}, {"A.xmp", "B.xmp"}}),
            platform::kPathFileAccess);
  EXPECT_TRUE(renamer.FailureShown());
  ASSERT_EQ(port.messages.size(), 1u);
  EXPECT_EQ(port.Last().text, "The file set of 'A.CRW' could not be renamed to 'B.CRW'.\r"
                              "'A.xmp' could not be renamed to 'B.xmp': Read-only file system\r"
                              "These files could not be given back their old names:\r"
                              "'B.CRW' (was 'A.CRW')\r"
                              "File renaming operation cancelled.");
  EXPECT_TRUE(memory.Exists("/p/A.THM") && memory.Exists("/p/B.CRW"));
}

// On a memory card that folds letter case, a companion's new spelling finds
// the companion itself: that is no other file in the way.
TEST(FileSetRenamer, CaseOnlyCompanionIsNotInItsOwnWay) {
  MemoryFileSystem fs(true);
  fs.Add("/p/A.CRW", "x");
  fs.Add("/p/A.THM", "x");
  ScriptedMessagePort port;
  EXPECT_EQ(core::FileSetRenamer(fs, port).CheckCompanionTargets("/p/", {"A.CRW", "a.crw"}, {{"A.THM", "a.thm"}}),
            platform::kNoError);
  EXPECT_TRUE(port.messages.empty());
}

}  // namespace
}  // namespace renvale::test

#include <gtest/gtest.h>

#include "core/ExifFormatChoices.h"

namespace renvale::test {
namespace {

TEST(ExifFormatChoices, StoredFormatSelectsItsEntryOrTheFirst) {
  EXPECT_EQ(core::DateFormatIndex("yyyy-mm-dd"), 0);
  EXPECT_EQ(core::DateFormatIndex("mmddyy"), 11);
  EXPECT_EQ(core::DateFormatIndex("dd/mm/yyyy"), 0);
  EXPECT_EQ(core::TimeFormatIndex("hhmm"), 5);
  EXPECT_EQ(core::TimeFormatIndex("HH-MM-SS"), 0);
}

}  // namespace
}  // namespace renvale::test

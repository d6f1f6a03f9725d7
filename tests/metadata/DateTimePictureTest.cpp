#include <gtest/gtest.h>

#include "QStringPrinter.h"

#include "metadata/DateTimePicture.h"
#include "metadata/ExifDateTime.h"

namespace renvale::test {
namespace {

using metadata::ExifDateTimeText;
using metadata::FormatDateTimePicture;

struct PictureCase {
  const char* picture;
  const char* expected;
};

// 2004-07-15 is a Thursday, day 197 of a leap year; July (07) and the
// minute (03) differ, so a month/minute mix-up shows.
const QDate kDate(2004, 7, 15);
const QTime kTime(18, 3, 9);

TEST(DateTimePicture, OptionListPatternsComeOutExactly) {
  const PictureCase cases[] = {
      {"yyyy-mm-dd", "2004-07-15"}, {"yyyy.mm.dd", "2004.07.15"}, {"yyyymmdd", "20040715"},
      {"yy-mm-dd", "04-07-15"},     {"yy.mm.dd", "04.07.15"},     {"yymmdd", "040715"},
      {"mm-dd-yyyy", "07-15-2004"}, {"mm.dd.yyyy", "07.15.2004"}, {"mmddyyyy", "07152004"},
      {"mm-dd-yy", "07-15-04"},     {"mm.dd.yy", "07.15.04"},     {"mmddyy", "071504"},
      {"hh-mm-ss", "18-03-09"},     {"hh.mm.ss", "18.03.09"},     {"hhmmss", "180309"},
      {"hh-mm", "18-03"},           {"hh.mm", "18.03"},           {"hhmm", "1803"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(FormatDateTimePicture(c.picture, kDate, kTime), QString(c.expected)) << c.picture;
  }
}

TEST(DateTimePicture, UserPicturesFollowTheSameRules) {
  const PictureCase cases[] = {
      {"mm-ss", "03-09"},                 // minute before a second
      {"h:m:s", "18:3:9"},                // minute after an hour, no zeros
      {"mm hh mm", "07 18 03"},           // only the one after the hour is a minute
      {"yyyy-mm-dd hh-nn", "2004-07-15 18-03"},
      {"d-m-y", "15-7-197"},              // y alone is the day of the year
      {"yyy", "04197"},                   // runs split greedily
      {"ddd dddd mmm mmmm", "Thu Thursday Jul July"},
      {"w ww q", "5 29 3"},
      {"hh AM/PM h a/p", "06 PM 6 p"},
      {"YYYY-MM-DD", "2004-07-15"},       // codes in either case
      {"\\y\\y \"dd mm\" yyyy", "yy dd mm 2004"},
      {"x_yyyy#", "x_2004#"},             // other characters stay
      {"ttttt", "18:03:09"},
      {"c", "7/15/2004 18:03:09"},
      {"dddddd", "Thursday, July 15, 2004"},
      {"", ""},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(FormatDateTimePicture(c.picture, kDate, kTime), QString(c.expected)) << c.picture;
  }
}

TEST(DateTimePicture, WeekOneHoldsTheFirstOfJanuaryAndStartsOnSunday) {
  EXPECT_EQ(FormatDateTimePicture("ww", QDate(2004, 1, 3), kTime), "1");  // Saturday
  EXPECT_EQ(FormatDateTimePicture("ww", QDate(2004, 1, 4), kTime), "2");  // Sunday
  EXPECT_EQ(FormatDateTimePicture("ww", QDate(2006, 1, 1), kTime), "1");  // a Sunday itself
}

TEST(DateTimePicture, TwelveHourClockAroundMidnightAndNoon) {
  EXPECT_EQ(FormatDateTimePicture("h AM/PM", kDate, QTime(0, 5)), "12 AM");
  EXPECT_EQ(FormatDateTimePicture("h AM/PM", kDate, QTime(12, 5)), "12 PM");
  EXPECT_EQ(FormatDateTimePicture("hh:nn AMPM", kDate, QTime(9, 5)), "09:05 AM");
}

TEST(ExifDateTimeText, GivesTheThreeForms) {
  const QString s = "2004:07:15 18:03:09";
  EXPECT_EQ(ExifDateTimeText(s, 1, "yyyy-mm-dd", "hh.mm.ss"), "2004-07-15");
  EXPECT_EQ(ExifDateTimeText(s, 2, "yyyy-mm-dd", "hh.mm.ss"), "18.03.09");
  EXPECT_EQ(ExifDateTimeText(s, 3, "yyyy-mm-dd", "hh.mm.ss"), "2004-07-15 18.03.09");
  EXPECT_EQ(ExifDateTimeText(s, 4, "yyyy-mm-dd", "hh.mm.ss"), "");
}

TEST(ExifDateTimeText, DateAndTimeEachCarryOnlyTheirOwnHalf) {
  const QString s = "2004:07:15 18:03:09";
  EXPECT_EQ(ExifDateTimeText(s, 1, "yyyy hh-nn", "hh"), "2004 00-00");
  EXPECT_EQ(ExifDateTimeText(s, 2, "yyyy", "yyyy-mm-dd hh"), "1899-12-30 18");
}

TEST(ExifDateTimeText, TextThatIsNoRealDateGivesEmptyForEveryForm) {
  const char* bad[] = {
      "",                     "                   ", "0000:00:00 00:00:00",
      "2004:13:01 10:00:00",  "2003:02:29 10:00:00", "2004:07:15 24:00:00",
      "2004:07:15 18:60:00",  "2004:07:15",          "2004:07:15 18:03",
      "2004:07:1x 18:03:09",  "2004:07:15 18:03:-9", "abcdefghijklmnopqrs",
  };
  for (const char* s : bad) {
    for (int form = 1; form <= 3; ++form) {
      EXPECT_EQ(ExifDateTimeText(s, form, "yyyy-mm-dd", "hh-mm-ss"), "") << s << " form " << form;
    }
    EXPECT_FALSE(metadata::IsRealExifDateTime(s)) << s;
  }
  EXPECT_EQ(ExifDateTimeText("2004:02:29 23:59:59", 3, "yyyymmdd", "hhmmss"), "20040229 235959");
}

}  // namespace
}  // namespace renvale::test

#include <gtest/gtest.h>

#include "QStringPrinter.h"

#include "metadata/DateTimePicture.h"
#include "metadata/ExifDateTime.h"

namespace renvale::test {
namespace {

using metadata::ExifDateTimeText;
using metadata::FormatDateTimePicture;

// 2004-07-15 is a Thursday, day 197 of a leap year; July (07) and the
// minute (03) differ, so a month/minute mix-up shows.
const QDate kDate(2004, 7, 15);
const QTime kTime(18, 3, 9);

TEST(DateTimePicture, PicturesComeOutExactly) {
  const struct {
    const char* picture;
    const char* expected;
    QDate date = kDate;
    QTime time = kTime;
  } cases[] = {
      // the patterns of the option lists
      {"yyyy-mm-dd", "2004-07-15"}, {"yyyy.mm.dd", "2004.07.15"}, {"yyyymmdd", "20040715"},
      {"yy-mm-dd", "04-07-15"},     {"yy.mm.dd", "04.07.15"},     {"yymmdd", "040715"},
      {"mm-dd-yyyy", "07-15-2004"}, {"mm.dd.yyyy", "07.15.2004"}, {"mmddyyyy", "07152004"},
      {"mm-dd-yy", "07-15-04"},     {"mm.dd.yy", "07.15.04"},     {"mmddyy", "071504"},
      {"hh-mm-ss", "18-03-09"},     {"hh.mm.ss", "18.03.09"},     {"hhmmss", "180309"},
      {"hh-mm", "18-03"},           {"hh.mm", "18.03"},           {"hhmm", "1803"},
      // users' own pictures follow the same rules
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
      // week one holds the first of January and starts on Sunday
      {"ww", "1", QDate(2004, 1, 3)},  // Saturday
      {"ww", "2", QDate(2004, 1, 4)},  // Sunday
      {"ww", "1", QDate(2006, 1, 1)},  // a Sunday itself
      // the twelve-hour clock around midnight and noon
      {"h AM/PM", "12 AM", kDate, QTime(0, 5)},
      {"h AM/PM", "12 PM", kDate, QTime(12, 5)},
      {"hh:nn AMPM", "09:05 AM", kDate, QTime(9, 5)},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(FormatDateTimePicture(c.picture, c.date, c.time), QString(c.expected))
        << c.picture << " " << c.date.toString(Qt::ISODate).toStdString();
  }
}

TEST(ExifDateTimeText, FormsCarryOnlyTheirOwnHalf) {
  const struct {
    int form;
    const char* dateFormat;
    const char* timeFormat;
    const char* expected;
  } cases[] = {
      {1, "yyyy-mm-dd", "hh.mm.ss", "2004-07-15"},
      {2, "yyyy-mm-dd", "hh.mm.ss", "18.03.09"},
      {3, "yyyy-mm-dd", "hh.mm.ss", "2004-07-15 18.03.09"},
      {4, "yyyy-mm-dd", "hh.mm.ss", ""},
      {1, "yyyy hh-nn", "hh", "2004 00-00"},
      {2, "yyyy", "yyyy-mm-dd hh", "1899-12-30 18"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(ExifDateTimeText("2004:07:15 18:03:09", c.form, c.dateFormat, c.timeFormat), c.expected)
        << c.form << " " << c.dateFormat << " / " << c.timeFormat;
  }
}

}  // namespace
}  // namespace renvale::test

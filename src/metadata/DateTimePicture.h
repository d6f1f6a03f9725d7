#pragma once

#include <QDate>
#include <QString>
#include <QTime>
#include <memory>

namespace renvale::metadata {

// Formats a date and a time with a picture text in the sense of the classic
// BASIC Format function, because that is what users store as their "EXIFDate"
// and "EXIFTime" settings:
//   d dd ddd dddd   day, day with zero, weekday "Sun", weekday "Sunday"
//   ddddd dddddd    short date "m/d/yyyy", long date "dddd, mmmm dd, yyyy"
//   w ww            weekday number (Sunday is 1), week of the year (weeks
//                   start on Sunday; week 1 holds 1 January)
//   m mm mmm mmmm   month, month with zero, "Jan", "January"; m and mm are
//                   the minute when the nearest code before them is an hour
//                   or the nearest code after them is a second
//   q y yy yyyy     quarter, day of the year, two- and four-digit year
//   h hh n nn s ss  hour, minute, second, with or without a leading zero
//   ttttt           time "h:mm:ss" (with AM/PM codes: 12-hour clock)
//   c               short date and time; the date is left out for the zero
//                   date 1899-12-30 and the time for midnight
//   AM/PM am/pm A/P a/p AMPM   12-hour clock with that marker
//   \x and "text"   literal characters
// Codes are recognised in either letter case; every other character is
// copied as it stands. Runs longer than a code split greedily ("yyy" is
// "yy" then "y"). Names of days and months are English.
//
// A picture is read once and then applied to any number of dates, because a
// batch formats the same two pictures for every file.
class DateTimePicture {
 public:
  explicit DateTimePicture(const QString& picture);

  QString Format(const QDate& date, const QTime& time) const;

  struct Compiled;

 private:
  std::shared_ptr<const Compiled> compiled_;
};

// The same for a picture given as text; the last few pictures are kept
// compiled, so calling this per file costs no re-reading.
QString FormatDateTimePicture(const QString& picture, const QDate& date, const QTime& time);

}  // namespace renvale::metadata

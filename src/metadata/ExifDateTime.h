#pragma once

#include <QDate>
#include <QString>
#include <QTime>

namespace renvale::metadata {

// The forms of an EXIF date for file names, as the insert menu numbers them.
inline constexpr int kFormDate = 1;
inline constexpr int kFormTime = 2;
inline constexpr int kFormDateAndTime = 3;
inline constexpr int kFormSerial = 4;

// Reads a date-time text in the EXIF layout "yyyy:mm:dd hh:mm:ss": the date
// is the first ten characters and the time the last eight, each with its
// colons removed, so the text must be at least 19 characters long. Gives
// false, and leaves the outputs alone, unless both make a real calendar date
// (years 1 to 9999) and a real time of day (00:00:00 to 23:59:59).
bool ReadExifDateTime(const QString& text, QDate* date, QTime* time);
bool IsRealExifDateTime(const QString& text);

// The EXIF layout of a date and time written the way some phones, editors
// and video files write it: the date's parts separated by dashes, slashes,
// dots or colons, blanks (or an ISO "T") between date and time, blanks
// around the whole ("2020-04-24 17:44:15 " gives "2020:04:24 17:44:15").
// Empty unless it is a real date and time with nothing else around it.
QString ExifLayoutDateTime(QStringView text);
// The same for a text that may be in the layout already, as cameras write
// it: then the text itself is handed back rather than a copy.
QString ExifLayoutDateTime(const QString& text);

// The date (form 1), the time (form 2) or both joined by one blank (form 3),
// formatted with the user's date and time pictures (see DateTimePicture.h).
// As in the classic Format the date carries no time (midnight) and the time
// carries the zero date 1899-12-30, so "hh" in a date picture gives "00".
//
// A text that is not a real date and time (blank, "0000:00:00 00:00:00",
// "2004:13:40 25:61:00", shorter than 19 characters, letters where digits
// belong), and any other form number, give an empty string for every form:
// the name simply lacks that part. The date source never hands such a text
// on (it falls back to the next source instead), so this only happens when
// a caller passes one directly.
QString ExifDateTimeText(const QString& text, int form, const QString& dateFormat,
                         const QString& timeFormat);

// Forms 1 and 2 at once (form 3 is the two joined by a blank); false, with
// the outputs left alone, for a text that is not a real date and time.
bool ExifDateAndTimeTexts(const QString& text, const QString& dateFormat, const QString& timeFormat,
                          QString* dateText, QString* timeText);
// The same for a real date and time already read.
void ExifDateAndTimeTexts(const QDate& date, const QTime& time, const QString& dateFormat,
                          const QString& timeFormat, QString* dateText, QString* timeText);

}  // namespace renvale::metadata

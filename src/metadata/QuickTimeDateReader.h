#pragma once

#include <QString>

#include "metadata/BmffExifLocator.h"
#include "metadata/ByteReader.h"

namespace renvale::metadata {

// When a QuickTime or MPEG-4 movie (MOV, MP4, M4V, 3GP) was recorded, as
// "yyyy:mm:dd hh:mm:ss" in local time: the "com.apple.quicktime.creationdate"
// key when the movie has one (phones write it in the local time of the
// recording, offset attached), else the movie header's creation time
// (seconds since 1904 in UTC). Only the box headers on the way to "moov"
// and the few boxes inside it that hold these are read.
class QuickTimeDateReader {
 public:
  static constexpr qint64 kMaxKeyValue = 64;  // "2019-03-10T14:22:05+0100" and more
  static constexpr quint32 kMaxKeys = 4096;

  // Empty when the movie records no date, or a zero or impossible one.
  static QString Read(ByteReader file);

  // The local date and time of `seconds` after 1904-01-01 00:00 UTC; empty
  // for zero and for anything before 1970-01-02 (a clock that was never set,
  // or a 1970 time stored as a 1904 one) or after the year 9999.
  static QString MovieTimeText(quint64 seconds);
  // The date and time a creation-date key gives, as written: the offset
  // after it says where the phone was, and its clock already showed that.
  static QString KeyDateText(const QByteArray& value);

 private:
  using Box = BmffExifLocator::Box;

  static bool LooksLikeBox(const Box& box);
  static QString HeaderDate(ByteReader& moov, const Box& mvhd);
  static QString KeyDate(ByteReader& moov, const Box& meta);
  static bool KeyIndex(ByteReader keys, quint32* index);
  static bool ItemValue(ByteReader ilst, quint32 index, QByteArray* value);
};

}  // namespace renvale::metadata

#pragma once

#include <QByteArray>

namespace renvale::fileops {

// The names SmartName offers, in order, for a file whose name is taken in
// the destination: a sub-series number k (at least two digits) goes after
// a blank when the base ends in a letter ("Beach.jpg" -> "Beach 01.jpg"),
// and in front of the file's own number when it ends in digits
// ("IMG_0012.jpg" -> "IMG_010012.jpg"; "1234.jpg" -> "101234.jpg", the first
// digit staying in front). Names are bytes; only ASCII digits count.
//
// The cases where the old scan ran off the start of the name:
//  - no dot: the whole name is the base and the extension is empty
//    ("IMG" -> "IMG 01", "0012" -> "001012");
//  - a base of one digit: that digit stays in front like the first digit of
//    any all-digit base ("5.jpg" -> "501.jpg").
// Both keep every byte of the name and give a different name for every k,
// so the search for a free name always ends.
class SmartName {
 public:
  static QByteArray Candidate(const QByteArray& name, int k);
};

}  // namespace renvale::fileops

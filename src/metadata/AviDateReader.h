#pragma once

#include <QByteArray>
#include <QString>

#include "metadata/ByteReader.h"

namespace renvale::metadata {

// When an AVI file was recorded, from its "IDIT" chunk (written by cameras
// in their own clock's time, so no zone applies), as "yyyy:mm:dd hh:mm:ss".
// The chunk sits in the "hdrl" list near the start or among the top-level
// chunks; only chunk headers are read on the way, never the frames.
class AviDateReader {
 public:
  static constexpr int kMaxChunks = 256;
  static constexpr qint64 kMaxDateText = 64;

  // Empty when the file is no AVI, records no date, or an impossible one.
  static QString Read(ByteReader file);

  // The two ways cameras write the chunk: "Mon Mar 10 15:04:43 2003" (the C
  // library's clock text) and "2009/10/27 12:14:34" (any of the separators
  // ExifLayoutDateTime takes).
  static QString DateText(const QByteArray& chunk);

 private:
  static QString FindIn(ByteReader& list, qint64 pos, int depth);
  static QString ClockText(const QString& text);
};

}  // namespace renvale::metadata

#pragma once

#include <QByteArray>

namespace renvale::test {

// ID3v2 pieces. A text frame's content is its encoding byte and the text's
// bytes as given (with a terminator when `terminated`).
QByteArray Id3v2TextContent(quint8 encoding, const QByteArray& text, bool terminated = false);
// One frame of version `major` (2: three-letter id and 24-bit size; 3: plain
// 32-bit size; 4: sync-safe size unless `plainSize`, as iTunes wrote them).
QByteArray Id3v2Frame(int major, const QByteArray& id, const QByteArray& content, quint16 flags = 0,
                      bool plainSize = false);
// Header and `body` (frames, then `padding` zero bytes); the size in the
// header is the body's unless `statedSize` is given.
QByteArray MakeId3v2Tag(int major, quint8 flags, const QByteArray& body, int padding = 16,
                        qint64 statedSize = -1);
// Inserts a zero byte after every 0xFF that a zero or a byte of 0xE0 and up
// follows, and after a final 0xFF.
QByteArray Unsynchronised(const QByteArray& bytes);

// A QuickTime movie: optional "ftyp", then "moov" holding "mvhd" (version 1
// when `longTimes`) with `created` seconds since 1904 and, when `keyDate`
// is not empty, a "meta" box with the creation-date key of that value
// (`isoMeta`: with the version and flags Apple's own box lacks), then a
// small "mdat". `mdatFirst` puts the media data before "moov".
struct MovieFields {
  quint64 created = 0;
  QByteArray keyDate{};
  bool longTimes = false;
  bool ftyp = true;
  bool isoMeta = false;
  bool mdatFirst = false;
};
QByteArray MakeQuickTimeMovie(const MovieFields& fields);

// An AVI file whose "IDIT" chunk holds `idit` (none when empty), inside the
// "hdrl" list or, when `topLevel`, after it.
QByteArray MakeAvi(const QByteArray& idit, bool topLevel = false);

}  // namespace renvale::test

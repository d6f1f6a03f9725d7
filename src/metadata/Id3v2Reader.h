#pragma once

#include <QByteArray>
#include <QString>

#include "metadata/ByteReader.h"
#include "metadata/mdlID3.h"

namespace renvale::metadata {

// The ID3 version 2 tag at the start of a music file (versions 2.2, 2.3 and
// 2.4): title, artist, album, track, year, genre and comment, into the same
// record the ID3v1 reader fills. Only the frame headers and the frames it
// keeps are read; a size from the file never reaches past the file.
class Id3v2Reader {
 public:
  static constexpr qint64 kHeaderSize = 10;
  // A text frame longer than this is cut (pictures and lyrics are skipped
  // unread, so only a hostile file gets near it).
  static constexpr qint64 kMaxFrameRead = 64 * 1024;
  // A version 2.2 or 2.3 tag that is unsynchronised as a whole must be
  // decoded before its frames can be found; only this much of it is.
  static constexpr qint64 kMaxUnsynchronisedTag = 1024 * 1024;
  static constexpr int kMaxFrames = 4096;

  // Empties `tag`, then reads the tag at the start of `source`; `version`
  // gets 2, 3 or 4. False when the source starts with no valid tag header.
  static bool Read(ByteSource& source, Id3Tag* tag, int* version);

  // The first text of a text frame's content: `encoding` 0 ISO-8859-1,
  // 1 UTF-16 with a byte-order mark (big-endian without one), 2 UTF-16BE,
  // 3 UTF-8. `used` gets the bytes taken, terminator included.
  static QString DecodeText(quint8 encoding, const char* data, qint64 size, qint64* used);
  // The words of a genre frame: "(13)" and "13" are numbers of the ID3v1
  // list, "(13)Text" is refined by its text, "(RX)" and "(CR)" are Remix
  // and Cover.
  static QString GenreText(const QString& text);
  // Removes the zero byte that unsynchronisation put after every 0xFF.
  static QByteArray Resynchronised(const QByteArray& bytes);

 private:
  struct Header {
    int major = 0;
    quint8 flags = 0;
    qint64 length = 0;  // of the tag after its header, within the source
  };
  struct Frame {
    QByteArray id;
    qint64 content = 0;
    qint64 size = 0;  // as the frame header says
    quint16 flags = 0;
  };

  static bool ReadHeader(ByteReader& file, Header* header);
  static void ReadFrames(ByteReader body, const Header& header, Id3Tag* tag);
  static qint64 FramesStart(ByteReader& body, const Header& header);
  static bool ReadFrameHeader(ByteReader& body, int major, qint64 pos, Frame* frame);
  static qint64 FrameSize(ByteReader& body, int major, qint64 pos);
  static bool LandsOnFrame(ByteReader& body, qint64 pos);
  static bool ValidFrameId(const QByteArray& id);
  static bool FrameContent(ByteReader& body, const Header& header, const Frame& frame, QByteArray* out);
  static void KeepFrame(const QByteArray& id, const QByteArray& content, Id3Tag* tag, bool* commentFinal);
  static QString FrameText(const QByteArray& content);
  static QString CommentText(const QByteArray& content, bool* described);
};

}  // namespace renvale::metadata

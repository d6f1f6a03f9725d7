#pragma once

#include <QByteArray>

namespace renvale::test {

// The fields of an ID3v1 tag as raw bytes; each is cut or zero-padded to
// its length in the tag.
struct Id3v1Fields {
  QByteArray title;    // 30 bytes
  QByteArray artist;   // 30
  QByteArray album;    // 30
  QByteArray year;     // 4
  QByteArray comment;  // 30, or 28 when `track` is set
  int track = 0;       // 1..255 makes a version 1.1 tag; 0 a version 1.0 tag
  int genre = 255;     // 255: no genre
};

// The 128-byte tag block.
QByteArray MakeId3v1Tag(const Id3v1Fields& fields);

// An MP3 file: `frames` MPEG-1 Layer III frames of silence (128 kbit/s,
// 44.1 kHz, mono; 417 bytes each), followed by the tag when `tag` is given.
QByteArray MakeMp3(const Id3v1Fields* tag, int frames = 8);

// A WAV file: `ms` milliseconds of a 440 Hz tone, 8 kHz mono 16-bit PCM.
QByteArray MakeWav(int ms);

}  // namespace renvale::test

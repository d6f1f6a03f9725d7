#include "support/SampleAudio.h"

namespace renvale::test {
namespace {

// Sync, MPEG-1, Layer III, no CRC; 128 kbit/s, 44.1 kHz, no padding; mono,
// original. An all-zero side information block makes the frame silent.
constexpr char kFrameHeader[] = "\xFF\xFB\x90\xC4";
constexpr int kFrameLength = 144 * 128000 / 44100;

QByteArray Padded(const QByteArray& bytes, int length) {
  QByteArray out = bytes.left(length);
  out.append(QByteArray(length - out.size(), '\0'));
  return out;
}

}  // namespace

QByteArray MakeId3v1Tag(const Id3v1Fields& fields) {
  QByteArray tag("TAG");
  tag += Padded(fields.title, 30);
  tag += Padded(fields.artist, 30);
  tag += Padded(fields.album, 30);
  tag += Padded(fields.year, 4);
  if (fields.track > 0) {
    tag += Padded(fields.comment, 28);
    tag += '\0';
    tag += char(fields.track);
  } else {
    tag += Padded(fields.comment, 30);
  }
  tag += char(fields.genre);
  return tag;
}

QByteArray MakeMp3(const Id3v1Fields* tag, int frames) {
  QByteArray frame(kFrameHeader, 4);
  frame.append(QByteArray(kFrameLength - frame.size(), '\0'));
  QByteArray mp3;
  for (int i = 0; i < frames; ++i) mp3 += frame;
  if (tag != nullptr) mp3 += MakeId3v1Tag(*tag);
  return mp3;
}

}  // namespace renvale::test

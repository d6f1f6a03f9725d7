#include "support/SampleAudio.h"

#include <cmath>

#include "support/Bytes.h"

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

QByteArray MakeWav(int ms) {
  constexpr int kRate = 8000;
  QByteArray samples;
  for (int i = 0; i < kRate * ms / 1000; ++i) {
    samples += Bytes(static_cast<qint16>(8000 * std::sin(2 * M_PI * 440 * i / kRate)), false);
  }
  const auto size = static_cast<quint32>(samples.size());
  // PCM, one channel, 2 bytes a sample, 16 bits.
  return "RIFF" + Le32(36 + size) + "WAVEfmt " + Le32(16) + Le16(1) + Le16(1) + Le32(kRate) + Le32(kRate * 2) +
         Le16(2) + Le16(16) + "data" + Le32(size) + samples;
}

}  // namespace renvale::test

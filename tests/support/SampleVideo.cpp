#include "support/SampleVideo.h"

#include <QBuffer>
#include <QImage>
#include <QtEndian>

namespace renvale::test {
namespace {

QByteArray Le(quint32 value, int bytes = 4) {
  QByteArray out(4, '\0');
  qToLittleEndian(value, out.data());
  return out.left(bytes);
}

QByteArray Chunk(const QByteArray& id, const QByteArray& content) {
  QByteArray chunk = id + Le(quint32(content.size())) + content;
  if (content.size() % 2) chunk += '\0';
  return chunk;
}

QByteArray List(const QByteArray& type, const QByteArray& content) { return Chunk("LIST", type + content); }

QByteArray Jpeg(int width, int height, QColor color) {
  QImage image(width, height, QImage::Format_RGB32);
  image.fill(color);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "JPEG", 90);
  return bytes;
}

}  // namespace

QByteArray MakeMotionJpegAvi(int width, int height, int frames, QColor color) {
  const quint32 w = quint32(width), h = quint32(height), n = quint32(frames);
  const QByteArray frame = Jpeg(width, height, color);
  const QByteArray avih = Le(100000) + Le(0) + Le(0) + Le(0x10) + Le(n) + Le(0) + Le(1) + Le(0) + Le(w) + Le(h) +
                          QByteArray(16, '\0');
  const QByteArray strh = QByteArray("vidsMJPG") + Le(0) + Le(0) + Le(0) + Le(1) + Le(10) + Le(0) + Le(n) + Le(0) +
                          Le(0xFFFFFFFF) + Le(0) + Le(0, 2) + Le(0, 2) + Le(w, 2) + Le(h, 2);
  const QByteArray strf = Le(40) + Le(w) + Le(h) + Le(1, 2) + Le(24, 2) + "MJPG" + Le(w * h * 3) + QByteArray(16, '\0');
  const QByteArray hdrl = List("hdrl", Chunk("avih", avih) + List("strl", Chunk("strh", strh) + Chunk("strf", strf)));
  QByteArray movi;
  QByteArray index;
  for (quint32 i = 0; i < n; ++i) {
    index += QByteArray("00dc") + Le(0x10) + Le(quint32(4 + movi.size())) + Le(quint32(frame.size()));
    movi += Chunk("00dc", frame);
  }
  const QByteArray body = "AVI " + hdrl + List("movi", movi) + Chunk("idx1", index);
  return "RIFF" + Le(quint32(body.size())) + body;
}

}  // namespace renvale::test

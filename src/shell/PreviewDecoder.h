#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>

#include "metadata/PreviewOrientation.h"

namespace renvale::platform {
class FileSystem;
}

namespace renvale::shell {

// A picture made ready for the preview area: decoded no larger than the
// area asks for and stood upright, with the size the caption names.
struct DecodedPreview {
  QImage image;       // empty when nothing could be decoded
  QSize ownSize;      // the picture's own pixel size (for a RAW, the RAW's where the file states it)
  metadata::PreviewTurn turn = metadata::PreviewTurn::None;
  QString exifError;  // the "EXIF Error: " text to show, if any
};

// Decodes a picture for the preview without ever holding the whole of a
// large one: the JPEG decoder scales while decoding. RAW files show the
// largest JPEG their camera embedded; a CRW without one shows its THM.
// Safe on any thread when the file system reads from any thread.
class PreviewDecoder {
 public:
  static DecodedPreview Decode(platform::FileSystem& fs, const QByteArray& path, const QSize& area);

  // The size to ask the decoder for: the picture fitted into `area` (with
  // width and height swapped when a quarter turn follows), never larger
  // than the picture itself.
  static QSize DecodeSize(const QSize& picture, const QSize& area, metadata::PreviewTurn turn);
  static QImage Turned(const QImage& image, metadata::PreviewTurn turn);

 private:
  static QImage DecodeDevice(QIODevice& device, const QSize& area, metadata::PreviewTurn turn, QSize* ownSize);
  static QImage DecodeRaw(platform::FileSystem& fs, const QByteArray& path, const QSize& area,
                          metadata::PreviewTurn turn, QSize* ownSize);
  static QByteArray ThumbnailPartner(platform::FileSystem& fs, const QByteArray& path);
};

}  // namespace renvale::shell

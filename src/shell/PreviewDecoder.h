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
  QImage shown;       // `image` already in the area's size, ready to be put on screen
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
  // `fill` when the picture will be stretched over the whole area rather
  // than fitted into it.
  static DecodedPreview Decode(platform::FileSystem& fs, const QByteArray& path, const QSize& area, bool fill);

  // The size to ask the decoder for: the picture fitted into `area` (with
  // width and height swapped when a quarter turn follows), or covering it
  // when `fill`, so that stretching never enlarges a picture decoded too
  // small; never larger than the picture itself.
  static QSize DecodeSize(const QSize& picture, const QSize& area, metadata::PreviewTurn turn, bool fill);
  static QImage Turned(const QImage& image, metadata::PreviewTurn turn);
  // The picture as the area shows it: stretched over all of it when
  // `fill`, else fitted into it with its proportions.
  static QImage ForArea(const QImage& image, const QSize& area, bool fill);

 private:
  struct Target {
    QSize area;
    bool fill;
    metadata::PreviewTurn turn;
  };

  static DecodedPreview DecodeUnscaled(platform::FileSystem& fs, const QByteArray& path, const QSize& area,
                                       bool fill);
  static QImage DecodeDevice(QIODevice& device, const Target& target, QSize* ownSize);
  static QImage DecodeRaw(platform::FileSystem& fs, const QByteArray& path, const Target& target, QSize* ownSize);
  static QImage DecodeHeif(platform::FileSystem& fs, const QByteArray& path, const Target& target, QSize* ownSize);
  static QByteArray ThumbnailPartner(platform::FileSystem& fs, const QByteArray& path);
};

}  // namespace renvale::shell

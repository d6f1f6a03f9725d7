#include "shell/PreviewDecoder.h"

#include <QBuffer>
#include <QImageReader>
#include <QTransform>

#include "metadata/ExifReader.h"
#include "metadata/ExifStatusCheck.h"
#include "metadata/FileByteSource.h"
#include "metadata/MetadataTexts.h"
#include "metadata/RawPreviewLocator.h"
#include "platform/FileName.h"
#include "platform/FileSystem.h"
#include "platform/widgets/HeifPicture.h"
#include "platform/PathParts.h"
#include "platform/ReadableFileDevice.h"
#include "shell/PreviewKind.h"

namespace renvale::shell {

namespace {

using metadata::PreviewTurn;

bool QuarterTurn(PreviewTurn turn) {
  return turn == PreviewTurn::QuarterClockwise || turn == PreviewTurn::QuarterCounterClockwise;
}

// A preview larger than any screen is never needed.
constexpr qint64 kMaxEmbeddedJpeg = 64LL << 20;
// A phone's HEIC is a few megabytes; a file far larger is no picture to show.
constexpr qint64 kMaxHeifFile = 256LL << 20;

}  // namespace

QSize PreviewDecoder::DecodeSize(const QSize& picture, const QSize& area, PreviewTurn turn, bool fill) {
  if (!picture.isValid() || picture.isEmpty()) return {};
  QSize room = area.expandedTo(QSize(1, 1));
  if (QuarterTurn(turn)) room.transpose();
  const QSize scaled = picture.scaled(room, fill ? Qt::KeepAspectRatioByExpanding : Qt::KeepAspectRatio);
  if (scaled.width() >= picture.width() || scaled.height() >= picture.height()) return picture;
  return scaled.expandedTo(QSize(1, 1));
}

QImage PreviewDecoder::Turned(const QImage& image, PreviewTurn turn) {
  switch (turn) {
    case PreviewTurn::None: return image;
    case PreviewTurn::QuarterClockwise: return image.transformed(QTransform().rotate(90));
    case PreviewTurn::QuarterCounterClockwise: return image.transformed(QTransform().rotate(-90));
    case PreviewTurn::Half: return image.transformed(QTransform().rotate(180));
  }
  return image;
}

QImage PreviewDecoder::ForArea(const QImage& image, const QSize& area, bool fill) {
  const QSize size = image.size().scaled(area.expandedTo(QSize(1, 1)), fill ? Qt::IgnoreAspectRatio : Qt::KeepAspectRatio);
  if (size == image.size()) return image;
  return image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

// The scaling to the area is done here, off the window's thread, so that
// putting the picture on screen costs the window no more than a hand-over.
DecodedPreview PreviewDecoder::Decode(platform::FileSystem& fs, const QByteArray& path, const QSize& area,
                                      bool fill) {
  DecodedPreview result = DecodeUnscaled(fs, path, area, fill);
  if (!result.image.isNull()) result.shown = ForArea(result.image, area, fill);
  return result;
}

DecodedPreview PreviewDecoder::DecodeUnscaled(platform::FileSystem& fs, const QByteArray& path, const QSize& area,
                                              bool fill) {
  DecodedPreview result;
  metadata::ExifReader exif;
  if (metadata::LoadExifQuietly(exif, fs, path, &result.exifError)) {
    result.turn = metadata::PreviewTurnForOrientation(exif.Tag(metadata::texts::kTagOrientation));
  }
  const QString name = platform::FileName{platform::BaseName(path)}.Display();
  if (IsHeifPictureName(name)) {
    // The file's own transformations stand it upright; its EXIF orientation
    // says the same again and must not turn it twice.
    result.turn = PreviewTurn::None;
    result.image = DecodeHeif(fs, path, {area, fill, PreviewTurn::None}, &result.ownSize);
    return result;
  }
  const Target target{area, fill, result.turn};
  if (IsRawPictureName(name)) {
    result.image = DecodeRaw(fs, path, target, &result.ownSize);
    // The caption names the RAW's own size where its EXIF states one.
    const QSize stated(exif.Tag(metadata::texts::kTagWidth).toInt(), exif.Tag(metadata::texts::kTagLength).toInt());
    if (!stated.isEmpty()) result.ownSize = stated;
    return result;
  }
  std::unique_ptr<platform::ReadableFile> file;
  if (fs.OpenForRead(path, &file) != 0) return result;
  platform::ReadableFileDevice device(std::move(file));
  result.image = DecodeDevice(device, target, &result.ownSize);
  return result;
}

QImage PreviewDecoder::DecodeDevice(QIODevice& device, const Target& target, QSize* ownSize) {
  QImageReader reader(&device);
  reader.setAutoTransform(false);  // the EXIF rule below turns it, and only it
  *ownSize = reader.size();
  // Asking for the scaled size is what keeps a 45-megapixel JPEG within
  // the reader's allocation limit and the decode short.
  const QSize scaled = DecodeSize(*ownSize, target.area, target.turn, target.fill);
  if (scaled.isValid() && scaled != *ownSize) reader.setScaledSize(scaled);
  const QImage image = reader.read();
  if (image.isNull()) return {};
  if (!ownSize->isValid()) *ownSize = image.size();
  return Turned(image, target.turn);
}

QImage PreviewDecoder::DecodeRaw(platform::FileSystem& fs, const QByteArray& path, const Target& target,
                                 QSize* ownSize) {
  std::unique_ptr<platform::ReadableFile> file;
  if (fs.OpenForRead(path, &file) != 0) return {};
  metadata::EmbeddedJpeg jpeg;
  QByteArray bytes;
  {
    metadata::FileByteSource source(*file);
    if (metadata::RawPreviewLocator::Locate(source, &jpeg) && jpeg.length <= kMaxEmbeddedJpeg) {
      bytes.resize(jpeg.length);
      if (!source.Read(jpeg.offset, bytes.data(), jpeg.length)) bytes.clear();
    }
  }
  file.reset();
  if (bytes.isEmpty()) {
    const QByteArray thm = ThumbnailPartner(fs, path);
    if (thm.isEmpty() || fs.OpenForRead(thm, &file) != 0) return {};
    platform::ReadableFileDevice device(std::move(file));
    return DecodeDevice(device, target, ownSize);
  }
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::ReadOnly);
  return DecodeDevice(buffer, target, ownSize);
}

// libheif decodes only the whole picture; it is scaled down at once.
QImage PreviewDecoder::DecodeHeif(platform::FileSystem& fs, const QByteArray& path, const Target& target,
                                  QSize* ownSize) {
  QByteArray bytes;
  if (fs.ReadWholeFile(path, kMaxHeifFile, &bytes) != 0) return {};
  const QImage image = platform::HeifPicture::Decode(bytes, ownSize);
  if (image.isNull()) return {};
  const QSize size = DecodeSize(image.size(), target.area, target.turn, target.fill);
  return size == image.size() ? image : image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

// Canon's CRW keeps its viewable picture in the THM file of the same name.
QByteArray PreviewDecoder::ThumbnailPartner(platform::FileSystem& fs, const QByteArray& path) {
  const qsizetype dot = path.lastIndexOf('.');
  if (dot < 0 || path.mid(dot + 1).toLower() != "crw") return {};
  for (const char* extension : {".THM", ".thm"}) {
    const QByteArray partner = path.left(dot) + extension;
    if (fs.Exists(partner)) return partner;
  }
  return {};
}

}  // namespace renvale::shell

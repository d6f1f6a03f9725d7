// Decoding for the preview: scaled while decoding, turned by the EXIF
// orientation, RAW files through their embedded JPEG.

#include <gtest/gtest.h>

#include <QBuffer>
#include <QImage>
#include <QTemporaryDir>

#include "platform/FileSystem.h"
#include "shell/PreviewDecoder.h"
#include "support/SampleImages.h"
#include "support/SampleRaw.h"
#include "support/SampleRawFiles.h"

namespace renvale::test {
namespace {

using metadata::PreviewTurn;
using shell::PreviewDecoder;

// A JPEG whose left half is red and right half blue, with an orientation.
QByteArray SidedJpeg(int width, int height, int orientation) {
  QImage image(width, height, QImage::Format_RGB32);
  image.fill(Qt::blue);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width / 2; ++x) image.setPixel(x, y, qRgb(255, 0, 0));
  }
  QByteArray jpeg;
  QBuffer buffer(&jpeg);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "JPEG", 95);
  ExifFields exif;
  exif.orientation = orientation;
  const QByteArray tiff = MakeExifTiff(exif, false);
  const QByteArray body = QByteArray("Exif\0\0", 6) + tiff;
  const int length = int(body.size()) + 2;
  return jpeg.left(2) + QByteArray("\xFF\xE1", 2) + char(length >> 8) + char(length & 0xFF) + body + jpeg.mid(2);
}

bool Red(QRgb pixel) { return qRed(pixel) > 200 && qBlue(pixel) < 80; }

class PreviewDecoderTest : public ::testing::Test {
 protected:
  QByteArray Put(const char* name, const QByteArray& bytes) {
    const QString path = dir.path() + '/' + name;
    EXPECT_TRUE(WriteFile(path, bytes));
    return path.toUtf8();
  }
  shell::DecodedPreview Decode(const char* name, const QByteArray& bytes, QSize area = {400, 400}) {
    return PreviewDecoder::Decode(platform::RealFileSystem(), Put(name, bytes), area, false);
  }
  QTemporaryDir dir;
};

// Where the red (left) half of the picture ends up after each turn.
TEST_F(PreviewDecoderTest, TurnsByTheOrientation) {
  const struct {
    int orientation;
    QSize size;
    QPoint red;  // a point that must be red
  } rows[] = {
      {1, {80, 40}, {5, 20}},  {0, {80, 40}, {5, 20}},   // upright; no tag
      {6, {40, 80}, {20, 5}},                           // a clockwise quarter turn: left goes up
      {8, {40, 80}, {20, 75}},                          // counter-clockwise: left goes down
      {3, {80, 40}, {75, 20}},                          // half turn
      {2, {80, 40}, {75, 20}},                          // mirrored: the catch-all half turn
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.orientation);
    const shell::DecodedPreview decoded = Decode("turn.jpg", SidedJpeg(80, 40, row.orientation));
    ASSERT_FALSE(decoded.image.isNull());
    EXPECT_EQ(decoded.image.size(), row.size);
    EXPECT_TRUE(Red(decoded.image.pixel(row.red)));
    EXPECT_EQ(decoded.ownSize, QSize(80, 40));  // the caption names the stored size
    EXPECT_TRUE(decoded.exifError.isEmpty());
  }
}

TEST_F(PreviewDecoderTest, DecodesNoLargerThanTheAreaNeeds) {
  EXPECT_EQ(PreviewDecoder::DecodeSize({6000, 4000}, {300, 300}, PreviewTurn::None, false), QSize(300, 200));
  EXPECT_EQ(PreviewDecoder::DecodeSize({6000, 4000}, {300, 150}, PreviewTurn::QuarterClockwise, false), QSize(150, 100));
  EXPECT_EQ(PreviewDecoder::DecodeSize({60, 40}, {300, 300}, PreviewTurn::None, false), QSize(60, 40));
  // Stretched over the area, the decode covers it instead.
  EXPECT_EQ(PreviewDecoder::DecodeSize({6000, 4000}, {300, 300}, PreviewTurn::None, true), QSize(450, 300));
  EXPECT_EQ(PreviewDecoder::DecodeSize({6000, 4000}, {600, 150}, PreviewTurn::QuarterClockwise, true), QSize(900, 600));
  EXPECT_EQ(PreviewDecoder::DecodeSize({600, 400}, {900, 100}, PreviewTurn::None, true), QSize(600, 400));
  const shell::DecodedPreview decoded = Decode("big.jpg", SidedJpeg(1200, 800, 1), {120, 120});
  EXPECT_EQ(decoded.image.size(), QSize(120, 80));
  EXPECT_EQ(decoded.ownSize, QSize(1200, 800));
}

TEST_F(PreviewDecoderTest, RawShowsItsEmbeddedJpeg) {
  const shell::DecodedPreview decoded = Decode("DSCF0001.RAF", MakeRafFile(SidedJpeg(160, 120, 1)));
  ASSERT_FALSE(decoded.image.isNull());
  EXPECT_EQ(decoded.image.size(), QSize(160, 120));
  EXPECT_TRUE(Red(decoded.image.pixel(5, 60)));
}

TEST_F(PreviewDecoderTest, CrwWithoutPreviewShowsItsThm) {
  Put("CRW_0001.THM", MakeThm("2004:07:15 18:03:09", "2004:07:15 18:03:09"));
  const shell::DecodedPreview decoded = Decode("CRW_0001.CRW", MakeCrw());
  EXPECT_FALSE(decoded.image.isNull());
  EXPECT_TRUE(Decode("CRW_0002.CRW", MakeCrw()).image.isNull());
}

TEST_F(PreviewDecoderTest, WhatIsNoPictureDecodesToNothing) {
  EXPECT_TRUE(Decode("notes.dat2", "just text").image.isNull());
  EXPECT_TRUE(Decode("cut.jpg", SidedJpeg(80, 40, 1).left(30)).image.isNull());
  EXPECT_TRUE(PreviewDecoder::Decode(platform::RealFileSystem(), dir.path().toUtf8() + "/gone.jpg", {9, 9}, true)
                  .image.isNull());
}

}  // namespace
}  // namespace renvale::test

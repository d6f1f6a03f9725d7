#include <gtest/gtest.h>

#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include "platform/FileSystem.h"
#include "shell/MediaControlRules.h"
#include "shell/PreviewDecoder.h"
#include "shell/PreviewKind.h"
#include "support/SampleImages.h"
#include "support/SampleRaw.h"
#include "support/SampleRawFiles.h"

namespace renvale::test {
namespace {

using platform::MediaState;
using shell::MediaControlRules;

TEST(MediaControlRules, SecondsInTheHashHashHashPointZeroZeroLayout) {
  const std::pair<qint64, const char*> rows[] = {{0, ".00"}, {4, ".00"}, {5, ".01"}, {500, ".50"}, {1234, "1.23"},
      {59999, "60.00"}, {123456, "123.46"}, {3600000, "3600.00"}, {-40, ".00"}};
  for (const auto& [ms, text] : rows) EXPECT_EQ(MediaControlRules::SecondsText(ms), text) << ms;
}

TEST(MediaControlRules, WhichControlsWork) {
  // play, pause, stop, step back, step forward, volume, position
  const struct { MediaState state; bool seekable, audio; qint64 position; const char* expected; } rows[] = {
      {MediaState::Empty, true, true, 0, "-------"},    {MediaState::Loading, true, true, 0, "-------"},
      {MediaState::Failed, true, true, 0, "-------"},   {MediaState::Stopped, true, true, 0, "P---FVS"},
      {MediaState::Playing, true, true, 500, "-PSBFVS"}, {MediaState::Paused, true, false, 1000, "P-SB--S"},
      {MediaState::Paused, false, true, 500, "P-S--V-"},
  };
  for (const auto& row : rows) {
    const shell::MediaControls c = MediaControlRules::ControlsFor(
        {row.state, row.seekable, row.audio, false, row.position, 1000, 0});
    const char got[] = {c.play ? 'P' : '-',     c.pause ? 'P' : '-',       c.stop ? 'S' : '-',
                        c.stepBack ? 'B' : '-', c.stepForward ? 'F' : '-', c.volume ? 'V' : '-',
                        c.position ? 'S' : '-', '\0'};
    EXPECT_STREQ(got, row.expected) << static_cast<int>(row.state) << " at " << row.position;
  }
}

TEST(MediaControlRules, AStepIsAFrameOfVideoOrASecondOfSound) {
  const struct { bool video; double rate; qint64 position; int direction; qint64 target; } rows[] = {
      {true, 0, 1000, 1, 1040},   {true, 30, 1000, 1, 1033}, {true, 30, 1000, -1, 967},
      {false, 30, 1000, 1, 2000}, {false, 0, 500, -1, 0},    {false, 0, 9500, 1, 10000},
  };
  for (const auto& row : rows) {
    const shell::MediaFacts facts{MediaState::Paused, true, true, row.video, row.position, 10000, row.rate};
    EXPECT_EQ(MediaControlRules::StepTarget(facts, row.direction), row.target) << row.position << row.direction;
  }
}

// Decoding for the preview: scaled while decoding, turned by the EXIF
// orientation, RAW files through their embedded JPEG.
using metadata::PreviewTurn;
using shell::PreviewDecoder;

// The sample pictures grow redder to the right.
QByteArray TurnedJpeg(int width, int height, int orientation) {
  ExifFields exif;
  exif.orientation = orientation;
  return MakeExifJpeg(&exif, width, height);
}

bool Red(QRgb pixel) { return qRed(pixel) > 200; }

class PreviewDecoderTest : public ::testing::Test {
 protected:
  shell::DecodedPreview Decode(const char* name, const QByteArray& bytes, QSize area = {400, 400}) {
    EXPECT_TRUE(WriteFile(dir.filePath(name), bytes));
    return PreviewDecoder::Decode(platform::RealFileSystem(), dir.filePath(name).toUtf8(), area, false);
  }
  QTemporaryDir dir;
};

// Where the red (right) edge of the picture ends up after each turn.
TEST_F(PreviewDecoderTest, TurnsByTheOrientation) {
  const struct { int orientation; QSize size; QPoint red; } rows[] = {
      {1, {80, 40}, {75, 20}}, {0, {80, 40}, {75, 20}},  // upright; no tag
      {6, {40, 80}, {20, 75}},                           // a clockwise quarter turn: right goes down
      {8, {40, 80}, {20, 4}},                            // counter-clockwise: right goes up
      {3, {80, 40}, {4, 20}},                            // half turn
      {2, {80, 40}, {4, 20}},                            // mirrored: the catch-all half turn
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.orientation);
    const shell::DecodedPreview decoded = Decode("turn.jpg", TurnedJpeg(80, 40, row.orientation));
    ASSERT_EQ(decoded.image.size(), row.size);
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
  const shell::DecodedPreview decoded = Decode("big.jpg", TurnedJpeg(1200, 800, 1), {120, 120});
  EXPECT_EQ(decoded.image.size(), QSize(120, 80));
  EXPECT_EQ(decoded.ownSize, QSize(1200, 800));
  // Ready for the screen: fitted, or stretched over the whole area.
  EXPECT_EQ(decoded.shown.size(), QSize(120, 80));
  EXPECT_EQ(PreviewDecoder::ForArea(decoded.image, {60, 90}, true).size(), QSize(60, 90));
}

TEST_F(PreviewDecoderTest, RawShowsItsPreviewAndACrwWithoutOneItsThm) {
  const shell::DecodedPreview raf = Decode("DSCF0001.RAF", MakeRafFile(TurnedJpeg(160, 120, 6)));
  ASSERT_EQ(raf.image.size(), QSize(120, 160));
  EXPECT_TRUE(Red(raf.image.pixel(60, 155)));
  Decode("CRW_0001.THM", MakeThm("2004:07:15 18:03:09", "2004:07:15 18:03:09"));
  EXPECT_FALSE(Decode("CRW_0001.CRW", MakeCrw()).image.isNull());
  EXPECT_TRUE(Decode("CRW_0002.CRW", MakeCrw()).image.isNull());
}

// A phone's HEIC, stored lying on its side, stands up once, not twice.
TEST_F(PreviewDecoderTest, HeicStandsUpByItsOwnTransformations) {
  const QString heic = qEnvironmentVariable("RENVALE_TESTDATA") + "/preview/exiv2__2021-02-13-1929.heic";
  if (!QFile::exists(heic)) GTEST_SKIP() << "no test data";
  const shell::DecodedPreview decoded =
      PreviewDecoder::Decode(platform::RealFileSystem(), QFile::encodeName(heic), {400, 400}, false);
  EXPECT_EQ(decoded.ownSize, QSize(4032, 3024));
  EXPECT_EQ(decoded.image.size(), QSize(300, 400));
  EXPECT_TRUE(Decode("cut.heic", "ftypheic").image.isNull());
}

using shell::PreviewKind;

TEST(PreviewKind, ByTheLastFourThenThreeCharacters) {
  constexpr PreviewKind M = PreviewKind::Media, N = PreviewKind::Notice, P = PreviewKind::Picture;
  const struct { const char* name; PreviewKind withBoth, withNeither; } rows[] = {
      {"clip.AVI", M, M},     {"clip.mpeg", M, M},     {"clipmpeg", M, M},  // four characters, no dot needed
      {"clip.MOV", M, N},     {"phone.3gp", M, N},     {"song.Mp3", M, M},
      {"song.wma", M, M},     {"song.ram", M, N},      {"song.rm", M, N},
      {"song.RA", M, N},      {"tune.mid", M, M},      {"x.wm", M, M},
      {"notes.txt", N, N},    {"setup.EXE", N, N},     {"slides.ppt", N, N},
      {"IMG_0001.JPG", P, P}, {"README", P, P},        {"photo.cr2", P, P},
      {"a.rmvb", P, P},       {"a.movie", P, P},       {"x.mp4", P, P},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(shell::PreviewKindFor(row.name, true, true), row.withBoth);
    EXPECT_EQ(shell::PreviewKindFor(row.name, false, false), row.withNeither);
  }
  // Each switch governs only its own kinds.
  EXPECT_EQ(shell::PreviewKindFor("clip.mov", true, false), M);
  EXPECT_EQ(shell::PreviewKindFor("song.rm", false, true), M);
}

}  // namespace
}  // namespace renvale::test

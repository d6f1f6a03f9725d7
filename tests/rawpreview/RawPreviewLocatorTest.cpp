// The embedded-preview locator on RAW-shaped files with real JPEGs inside,
// on the CR3 a camera wrote, and on hostile bytes.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QSize>

#include "metadata/MemoryByteSource.h"
#include "metadata/RawPreviewLocator.h"
#include "support/Bytes.h"
#include "support/SampleImages.h"
#include "support/SampleRawFiles.h"

namespace renvale::test {
namespace {

using metadata::EmbeddedJpeg;
using metadata::RawPreviewLocator;

QByteArray U16(quint16 v, bool be) { return Bytes(v, be); }
QByteArray U32(quint32 v, bool be) { return Bytes(v, be); }

struct Tag { quint16 tag, type; quint32 count, value; };

// A file grown piece by piece; every piece starts on an even offset.
struct Layout {
  bool be = false;
  QByteArray bytes;
  quint32 Add(const QByteArray& piece) {
    if (bytes.size() % 2 != 0) bytes += '\0';
    const quint32 at = quint32(bytes.size());
    bytes += piece;
    return at;
  }
  quint32 Ifd(const std::vector<Tag>& tags, quint32 next = 0) {
    QByteArray ifd = U16(quint16(tags.size()), be);
    for (const Tag& t : tags) {
      ifd += U16(t.tag, be) + U16(t.type, be) + U32(t.count, be);
      ifd += t.type == 3 ? U16(quint16(t.value), be) + U16(0, be) : U32(t.value, be);
    }
    return Add(ifd + U32(next, be));
  }
  void FirstIfd(quint32 at) { bytes.replace(4, 4, U32(at, be)); }
};

Layout Tiff(bool be, const char* magic = nullptr) {
  Layout file{be, be ? QByteArray("MM\0*", 4) : QByteArray("II*\0", 4)};
  if (magic != nullptr) file.bytes = QByteArray(magic, 4);
  file.bytes += U32(0, be);
  return file;
}

QByteArray Small() { return MakeExifJpeg(nullptr, 160, 120); }
QByteArray Large() { return MakeExifJpeg(nullptr, 640, 480); }
// The head of a lossless JPEG (SOF3) as CR2 and DNG keep their sensor data
// in: larger than any preview, yet no picture Qt can show.
QByteArray Lossless() {
  return QByteArray("\xFF\xD8\xFF\xC3\x00\x0B\x0C\x0F\xA0\x17\x70\x01\x01\x11\x00", 15) + QByteArray(64, '\x55');
}

bool Locate(const QByteArray& bytes, EmbeddedJpeg* found) {
  metadata::MemoryByteSource source(bytes.constData(), bytes.size());
  return RawPreviewLocator::Locate(source, found);
}

// NEF/DNG: a thumbnail in IFD0, previews and raw data in sub-IFDs.
QByteArray NefShaped(bool be) {
  Layout f = Tiff(be);
  const quint32 small = f.Add(Small()), large = f.Add(Large()), raw = f.Add(Lossless());
  const quint32 sub1 = f.Ifd({{0x0103, 3, 1, 7}, {0x0111, 4, 1, raw}, {0x0117, 4, 1, quint32(Lossless().size())}});
  const quint32 sub2 = f.Ifd({{0x0201, 4, 1, large}, {0x0202, 4, 1, quint32(Large().size())}});
  const quint32 list = f.Add(U32(sub1, be) + U32(sub2, be));
  f.FirstIfd(f.Ifd({{0x014A, 4, 2, list}, {0x0201, 4, 1, small}, {0x0202, 4, 1, quint32(Small().size())}}));
  return f.bytes;
}

// CR2: the preview as IFD0's single JPEG strip, a thumbnail in IFD1, the
// raw data in IFD3, all on the chain of next-directory offsets.
QByteArray Cr2Shaped(bool be) {
  Layout f = Tiff(be);
  const quint32 large = f.Add(Large()), small = f.Add(Small()), raw = f.Add(Lossless());
  const quint32 ifd3 = f.Ifd({{0x0103, 3, 1, 6}, {0x0111, 4, 1, raw}, {0x0117, 4, 1, quint32(Lossless().size())}});
  const quint32 ifd1 = f.Ifd({{0x0201, 4, 1, small}, {0x0202, 4, 1, quint32(Small().size())}}, ifd3);
  f.FirstIfd(f.Ifd({{0x0103, 3, 1, 6}, {0x0111, 4, 1, large}, {0x0117, 4, 1, quint32(Large().size())}}, ifd1));
  return f.bytes;
}

// RW2: Panasonic's own tag 0x2E holds the whole JPEG as UNDEFINED bytes.
QByteArray Rw2Shaped() {
  Layout f = Tiff(false, "IIU\0");
  const quint32 small = f.Add(Small()), large = f.Add(Large());
  f.FirstIfd(f.Ifd({{0x002E, 7, quint32(Large().size()), large}}, f.Ifd({{0x0201, 4, 1, small}, {0x0202, 4, 1, quint32(Small().size())}})));
  return f.bytes;
}

// CRW: the JPEG lies in a sub-heap of the root heap.
QByteArray CrwShaped() {
  QByteArray file = QByteArray("II", 2) + U32(26, false) + "HEAPCCDR" + U16(1, false) + U16(2, false);
  file += QByteArray(26 - int(file.size()), '\0');
  const auto record = [](quint16 tag, qsizetype size) {
    return U16(1, false) + U16(tag, false) + U32(quint32(size), false) + U32(0, false) + U32(quint32(size), false);
  };
  const QByteArray sub = Large() + record(0x2007, Large().size());
  return file + sub + record(0x300A, sub.size());
}

// A JPEG length reaching past the end is a damaged file, not a preview.
QByteArray PastTheEnd() {
  Layout f = Tiff(false);
  const quint32 jpeg = 8 + 2 + 2 * 12 + 4;  // right after the one directory, at the file's end
  f.FirstIfd(f.Ifd({{0x0201, 4, 1, jpeg}, {0x0202, 4, 1, quint32(Large().size() + 1)}}));
  f.Add(Large());
  return f.bytes;
}

// An IFD that is its own next directory and its own sub-IFD.
QByteArray Loop() {
  Layout f = Tiff(false);
  const quint32 at = quint32(f.bytes.size());
  f.FirstIfd(f.Ifd({{0x014A, 4, 1, at}}, at));
  return f.bytes;
}

TEST(RawPreviewLocator, FindsTheLargestDecodablePreviewInEachContainer) {
  const std::pair<const char*, QByteArray> rows[] = {
      {"NEF/DNG sub-IFDs, little-endian", NefShaped(false)}, {"NEF/DNG sub-IFDs, big-endian", NefShaped(true)},
      {"CR2 directory chain, little-endian", Cr2Shaped(false)}, {"CR2 directory chain, big-endian", Cr2Shaped(true)},
      {"RW2 JpgFromRaw", Rw2Shaped()}, {"CRW sub-heap", CrwShaped()}, {"RAF header", MakeRafFile(Large())},
      {"X3F section", MakeX3fFile(Large())}, {"none: past the end", PastTheEnd()}, {"none: loop", Loop()},
  };
  for (const auto& [name, file] : rows) {
    SCOPED_TRACE(name);
    EmbeddedJpeg found;
    const bool offered = !QByteArray(name).startsWith("none");
    ASSERT_EQ(Locate(file, &found), offered);
    if (!offered) continue;
    EXPECT_EQ(found.offset, file.indexOf(Large()));
    EXPECT_EQ(found.length, Large().size());
    EXPECT_EQ(QSize(found.width, found.height), QSize(640, 480));
  }
}

TEST(RawPreviewLocator, FindsTheCanonPreviewOfARealCr3) {
  QFile file(qEnvironmentVariable("RENVALE_TESTDATA") + "/preview/exiv2__Canon-R6-pruned.CR3");
  if (!file.open(QIODevice::ReadOnly)) GTEST_SKIP() << "no test data";
  const QByteArray bytes = file.readAll();
  EmbeddedJpeg found;
  ASSERT_TRUE(Locate(bytes, &found));
  EXPECT_EQ(QSize(found.width, found.height), QSize(1620, 1080));
  // ExifTool counts the box's six padding bytes into the 389456.
  EXPECT_EQ(found.length, 389450);
  EXPECT_EQ(bytes.mid(found.offset + found.length - 2, 2), QByteArray("\xFF\xD9"));
}

// Every camera file and every hostile file: the locator ends and whatever
// it offers lies inside the file and starts like a JPEG.
TEST(RawPreviewLocator, EndsOnEveryTestFileAndEveryCut) {
  int files = 0;
  for (const char* folder : {"malformed", "camera", "preview"}) {
    for (const QFileInfo& info : QDir(qEnvironmentVariable("RENVALE_TESTDATA") + '/' + folder).entryInfoList(QDir::Files)) {
      QFile file(info.filePath());
      ASSERT_TRUE(file.open(QIODevice::ReadOnly));
      const QByteArray bytes = file.read(8 << 20);
      for (const QByteArray& cut : {bytes, bytes.left(bytes.size() / 2), bytes.left(300)}) {
        EmbeddedJpeg found;
        if (!Locate(cut, &found)) continue;
        SCOPED_TRACE(info.fileName().toStdString());
        EXPECT_LE(found.offset + found.length, cut.size());
        EXPECT_EQ(cut.mid(found.offset, 2), QByteArray("\xFF\xD8"));
      }
      ++files;
    }
  }
  EXPECT_GT(files, 8);
}

}  // namespace
}  // namespace renvale::test

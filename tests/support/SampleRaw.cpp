#include "support/SampleRaw.h"

#include "support/Bytes.h"
#include "support/SampleImages.h"

namespace renvale::test {
namespace {

constexpr int kHeaderLength = 26;
constexpr int kTextStart = 100;
constexpr int kTextSpacing = 100;

}  // namespace

QByteArray MakeCrw(const QStringList& texts, int heapSize) {
  const int needed = kTextStart + int(texts.size()) * kTextSpacing + 6;
  const int heap = std::max(heapSize, needed);
  QByteArray crw(kHeaderLength + heap, '\0');
  crw.replace(0, 2, "II");
  crw.replace(2, 4, Le32(kHeaderLength));
  crw.replace(6, 8, "HEAPCCDR");
  crw.replace(14, 4, Le32(0x00010002));
  for (int i = 0; i < texts.size(); ++i) {
    const QByteArray text = texts[i].toLatin1().left(kTextSpacing - 1);
    crw.replace(kHeaderLength + kTextStart + i * kTextSpacing, text.size(), text);
  }
  // The record table (count 0) sits at the heap's end; the heap's last four
  // bytes give its offset from the heap start.
  crw.replace(crw.size() - 4, 4, Le32(quint32(heap - 6)));
  return crw;
}

QByteArray MakeThm(const QString& dateTimeOriginal, const QString& dateTime) {
  ExifFields exif = TypicalExifFields();
  exif.dateTimeOriginal = dateTimeOriginal;
  exif.dateTime = dateTime;
  return MakeExifJpeg(&exif, 160, 120);
}

}  // namespace renvale::test

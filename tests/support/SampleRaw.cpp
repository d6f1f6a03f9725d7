#include "support/SampleRaw.h"

#include <QtEndian>

#include "support/SampleImages.h"

namespace renvale::test {
namespace {

constexpr int kHeaderLength = 26;
constexpr int kTextStart = 100;
constexpr int kTextSpacing = 100;

void PutLe32(QByteArray* bytes, int at, quint32 value) {
  qToLittleEndian(value, bytes->data() + at);
}

}  // namespace

QByteArray MakeCrw(const QStringList& texts, int heapSize) {
  const int needed = kTextStart + int(texts.size()) * kTextSpacing + 6;
  const int heap = std::max(heapSize, needed);
  QByteArray crw(kHeaderLength + heap, '\0');
  crw.replace(0, 2, "II");
  PutLe32(&crw, 2, kHeaderLength);
  crw.replace(6, 8, "HEAPCCDR");
  PutLe32(&crw, 14, 0x00010002);
  for (int i = 0; i < texts.size(); ++i) {
    const QByteArray text = texts[i].toLatin1().left(kTextSpacing - 1);
    crw.replace(kHeaderLength + kTextStart + i * kTextSpacing, text.size(), text);
  }
  // The record table (count 0) sits at the heap's end; the heap's last four
  // bytes give its offset from the heap start.
  PutLe32(&crw, crw.size() - 4, quint32(heap - 6));
  return crw;
}

QByteArray MakeThm(const QString& dateTimeOriginal, const QString& dateTime) {
  ExifFields exif = TypicalExifFields();
  exif.dateTimeOriginal = dateTimeOriginal;
  exif.dateTime = dateTime;
  return MakeExifJpeg(&exif, 160, 120);
}

}  // namespace renvale::test

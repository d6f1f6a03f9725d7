// libFuzzer target for the recorded dates of videos: any bytes as a
// QuickTime/MPEG-4 movie or an AVI file (the first bytes choose, as in a
// real file), read through a memory source that ends where the input ends.
// The two date-text readers get the input's head directly too.
#include <QByteArray>
#include <QString>
#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "metadata/AviDateReader.h"
#include "metadata/ExifDateTime.h"
#include "metadata/MemoryByteSource.h"
#include "metadata/QuickTimeDateReader.h"
#include "metadata/VideoDateReader.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace renvale::metadata;
  const char* bytes = reinterpret_cast<const char*>(data);
  MemoryByteSource source(bytes, static_cast<qint64>(size));
  const QString date = VideoDateReader::Read(source);
  if (!date.isEmpty() && !IsRealExifDateTime(date)) __builtin_trap();  // only real dates come out
  const QByteArray head(bytes, static_cast<qsizetype>(std::min<size_t>(size, 64)));
  qsizetype total = date.size() + AviDateReader::DateText(head).size() + QuickTimeDateReader::KeyDateText(head).size();
  if (size >= 8) {
    quint64 seconds = 0;
    for (int i = 0; i < 8; ++i) seconds = seconds << 8 | data[i];
    total += QuickTimeDateReader::MovieTimeText(seconds).size();
  }
  return total < 0 ? -1 : 0;
}

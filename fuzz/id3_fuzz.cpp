// libFuzzer target for the ID3v1 reader: the last 128 of any bytes as a
// tag, and the byte-to-text conversion in each of its modes. The conversion
// gets the input's tail, so its last byte is still the buffer's last byte
// and a read past it is caught, while long inputs stay cheap.
#include <QString>
#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "metadata/mdlID3.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const char* bytes = reinterpret_cast<const char*>(data);
  const auto length = static_cast<qint64>(size);
  renvale::metadata::Id3Tag tag;
  qsizetype total = 0;
  if (renvale::metadata::ParseId3Tag(bytes, length, &tag)) {
    for (const QString* field : {&tag.title, &tag.artist, &tag.album, &tag.year, &tag.genre,
                                 &tag.comment, &tag.track}) {
      total += renvale::metadata::WithoutControlCharacters(*field).size();
    }
    total += renvale::metadata::Id3TrackText(tag.track).size();
  }
  const qint64 tail = std::min<qint64>(length, renvale::metadata::kId3TagSize);
  for (int mode = 0; mode <= 2; ++mode) {
    total += renvale::metadata::Id3FixedText(bytes + (length - tail), tail, mode, mode != 1).size();
  }
  if (size > 0) total += renvale::metadata::Id3GenreName(data[0]).size();
  return total < 0 ? -1 : 0;
}

// libFuzzer target for the ID3v2 reader: any bytes as the start of a music
// file, read through a memory source that ends where the input ends, so a
// size taken from the bytes that reaches past them is caught. The text
// decoder and the genre words get the input directly too.
#include <QString>
#include <cstddef>
#include <cstdint>

#include "metadata/Id3v2Reader.h"
#include "metadata/MemoryByteSource.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using renvale::metadata::Id3v2Reader;
  const char* bytes = reinterpret_cast<const char*>(data);
  const auto length = static_cast<qint64>(size);
  renvale::metadata::MemoryByteSource source(bytes, length);
  renvale::metadata::Id3Tag tag;
  int version = 0;
  qsizetype total = 0;
  if (Id3v2Reader::Read(source, &tag, &version)) {
    for (const QString* field : {&tag.title, &tag.artist, &tag.album, &tag.year, &tag.genre, &tag.comment,
                                 &tag.track}) {
      total += field->size();
    }
  }
  if (size > 0) {
    qint64 used = 0;
    const QString text = Id3v2Reader::DecodeText(data[0] & 3, bytes + 1, length - 1, &used);
    total += Id3v2Reader::GenreText(text).size() + used;
  }
  return total < 0 ? -1 : 0;
}

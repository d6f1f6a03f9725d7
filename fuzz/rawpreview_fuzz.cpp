// libFuzzer target for the embedded-preview locator: any bytes; whatever it
// offers must lie inside them and start like a JPEG.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "metadata/MemoryByteSource.h"
#include "metadata/RawPreviewLocator.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const char* bytes = reinterpret_cast<const char*>(data);
  renvale::metadata::MemoryByteSource source(bytes, static_cast<qint64>(size));
  renvale::metadata::EmbeddedJpeg found;
  if (!renvale::metadata::RawPreviewLocator::Locate(source, &found)) return 0;
  const bool inside = found.offset >= 0 && found.length >= 4 && found.offset + found.length <= qint64(size);
  if (!inside || uint8_t(bytes[found.offset]) != 0xFF || uint8_t(bytes[found.offset + 1]) != 0xD8) std::abort();
  return 0;
}

// libFuzzer target for the network address reader: any bytes as typed text.
#include <cstddef>
#include <cstdint>

#include "platform/NetworkAddress.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const QByteArray uri = renvale::platform::NetworkAddress::Parse(reinterpret_cast<const char*>(data), size);
  // Whatever is accepted is one line of plain ASCII, as a URI must be.
  for (const char c : uri) {
    if (c <= ' ' || c >= 0x7f) __builtin_trap();
  }
  return 0;
}

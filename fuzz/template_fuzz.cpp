// libFuzzer target for the template file reader: any bytes as a template.
#include <cstddef>
#include <cstdint>

#include "core/TemplateFile.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  const renvale::core::TemplateReadResult result = renvale::core::ReadTemplate(bytes);
  qsizetype total = 0;
  for (const QString& caption : result.captions) total += caption.size();
  return total < 0 ? -1 : 0;
}

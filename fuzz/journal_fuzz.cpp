// libFuzzer target for the journal reader: any bytes as a journal file. A
// plan it accepts must survive being written and read again, and again
// with its steps added a second time.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "fileops/JournalFormat.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using renvale::fileops::JournalFormat;
  const renvale::fileops::JournalRead read =
      JournalFormat::Read(reinterpret_cast<const char*>(data), static_cast<qint64>(size));
  if (read.status != renvale::fileops::JournalStatus::Ok) return 0;
  const QByteArray again = JournalFormat::Write(read.plan);
  const renvale::fileops::JournalRead reread = JournalFormat::Read(again.constData(), again.size());
  if (reread.status != renvale::fileops::JournalStatus::Ok || reread.plan.steps.size() != read.plan.steps.size()) {
    std::abort();
  }
  return 0;
}

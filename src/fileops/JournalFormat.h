#pragma once

#include <QByteArray>

#include "core/OperationPlan.h"

namespace renvale::fileops {

// How a journal file read back.
enum class JournalStatus { Ok, Truncated, Garbled, Newer };

struct JournalRead {
  JournalStatus status = JournalStatus::Garbled;
  core::OperationPlan plan;  // only with Ok
};

// The bytes of one journal file. Lines of text, so that a person can read
// one when something went badly wrong: a first line naming the format and
// its version, the operation, one line per step (paths in hex, since names
// are bytes and may hold line breaks), and a last line with a checksum of
// everything before it. A file cut short lacks that last line; a file
// changed by anything else fails its checksum.
class JournalFormat {
 public:
  static constexpr int kVersion = 1;

  static QByteArray Write(const core::OperationPlan& plan);
  // Reads `size` bytes at `data`; never reads past them, never throws.
  static JournalRead Read(const char* data, qint64 size);
};

}  // namespace renvale::fileops

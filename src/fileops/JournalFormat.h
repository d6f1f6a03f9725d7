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
//
// A long operation may add steps as it goes (version 2): each addition is
// more step lines and a checksum line of its own, covering the lines since
// the one before. An addition cut short (lacking its checksum line) holds
// steps never taken, since an operation takes a step only once its
// addition is on the disk, so a reader leaves it out.
class JournalFormat {
 public:
  static constexpr int kVersion = 2;

  static QByteArray Write(const core::OperationPlan& plan);
  // The bytes that add `steps` to a journal written by Write.
  static QByteArray Addition(const std::vector<core::PlanStep>& steps);
  // Reads `size` bytes at `data`; never reads past them, never throws.
  static JournalRead Read(const char* data, qint64 size);
};

}  // namespace renvale::fileops

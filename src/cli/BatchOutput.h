#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace renvale::cli {

// One file of a run as it is reported.
struct OutputRow {
  enum class Status { Planned, Renamed, Skipped, Unchanged };
  QByteArray given;  // the argument that named the file, raw bytes
  QString oldName;
  QString newName;
  QString dateSource;
  QStringList notes;
  Status status = Status::Planned;
};

// "old → new" with a note per line beneath it, for people, each line
// ended, added to the end of `text`.
void AppendPlainLine(const OutputRow& row, QString* text);
// The same as one JSON object on one line, for scripts.
QString JsonLine(const OutputRow& row);

}  // namespace renvale::cli

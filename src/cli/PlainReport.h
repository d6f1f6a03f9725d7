#pragma once

#include <QHash>
#include <QStringList>
#include <QTextStream>
#include <vector>

#include "cli/BatchOutput.h"

namespace renvale::cli {

// What a plain run tells while it goes: each renamed file's "given → new"
// line on standard output, in the order the files were given, as soon as
// every file before it has ended; the files skipped or never reached get
// their lines on standard error. A file's new name is held only until its
// line is out, so a card's worth of names is not kept to the end.
class PlainReport {
 public:
  // `given` outlives the report; `errors` collects the standard-error lines.
  PlainReport(QTextStream& out, QStringList& errors, const std::vector<QByteArray>& given);

  // The file at `file` (its place among `given`) ended so.
  void Ended(size_t file, OutputRow::Status status, const QString& newName);
  // Tells the files not told yet, those never reached among them; true
  // when every file got its name or kept its own.
  bool Finish();

  // One file's end as any run that renames tells it: on `out` (unless null)
  // the line of a renamed file, in `errors` the line of one skipped or never
  // reached. False for those two: the file did not get its name.
  static bool TellOne(QTextStream* out, QStringList& errors, const QByteArray& given, OutputRow::Status status,
                      const QString& newName);

 private:
  void Tell(size_t file, OutputRow::Status status, const QString& newName);

  QTextStream& out_;
  QStringList& errors_;
  const std::vector<QByteArray>& given_;
  std::vector<OutputRow::Status> status_;
  QHash<size_t, QString> held_;  // new names of files that ended while one given before them had not
  size_t next_ = 0;              // the first file not told yet
  bool everyFileNamed_ = true;
};

}  // namespace renvale::cli

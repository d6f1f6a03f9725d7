#pragma once

#include <QString>
#include <set>

#include "fileops/TransferVerbs.h"

namespace renvale::fileops {

// What a transfer tells at its end: the one result line (success,
// cancellation or the error that ended it), the notes it remembered on the
// way, and the SmartName report.
class TransferSummary {
 public:
  // In the order the end-of-run box lists them.
  enum class Note { Skipped, Overwritten, NotOverwritten, SourcesNotDeleted, NotMoved, SmartNamed };

  explicit TransferSummary(TransferVerbs verbs) : verbs_(std::move(verbs)) {}

  void Remember(Note note) { notes_.insert(note); }
  void Cancel();
  // The run ended on an error: `heading` and its `detail`.
  void Fail(const QString& heading, const QString& detail);
  bool Ended() const { return !result_.isEmpty(); }

  // Records one SmartName change (display names) for the report.
  void SmartNamed(const QString& destination, const QString& from, const QString& to);
  bool HasSmartNames() const { return !report_.isEmpty(); }
  const QString& Report() const { return report_; }

  // The result line, a blank line, then one line per remembered note.
  QString Text() const;

 private:
  QString NoteText(Note note) const;

  TransferVerbs verbs_;
  QString result_;
  std::set<Note> notes_;
  QString report_;
};

}  // namespace renvale::fileops

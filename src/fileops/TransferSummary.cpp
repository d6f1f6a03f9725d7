#include "fileops/TransferSummary.h"

#include "fileops/FileopsTexts.h"

namespace renvale::fileops {

namespace text = transfer_text;

void TransferSummary::Cancel() {
  if (Ended()) return;
  result_ = text::Cancelled(verbs_) + text::kCR + text::MayNotHaveBeen(verbs_);
}

void TransferSummary::Fail(const QString& heading, const QString& detail) {
  if (Ended()) return;
  result_ = heading + text::kCR + detail;
}

void TransferSummary::SmartNamed(const QString& destination, const QString& from, const QString& to) {
  if (report_.isEmpty()) report_ = text::ReportHeading(verbs_, destination);
  report_ += text::ReportLine(from, to);
  Remember(Note::SmartNamed);
}

QString TransferSummary::NoteText(Note note) const {
  switch (note) {
    case Note::Skipped:
      return text::NoteSkipped(verbs_);
    case Note::Overwritten:
      return text::kNoteOverwritten;
    case Note::NotOverwritten:
      // A replacement that failed is both: the old file stayed, so it was
      // neither deleted nor overwritten.
      return text::NoteNotOverwritten(verbs_) + text::kCR + text::NoteTargetsNotDeleted(verbs_);
    case Note::SourcesNotDeleted:
      return text::kNoteSourcesNotDeleted;
    case Note::NotMoved:
      return text::kNoteNotMoved;
    case Note::SmartNamed:
      return text::kNoteSmartName;
  }
  return {};
}

QString TransferSummary::Text() const {
  QString result = Ended() ? result_ : text::Success(verbs_);
  if (!notes_.empty()) result += text::kCR;
  for (const Note note : notes_) result += text::kCR + NoteText(note);
  return result;
}

}  // namespace renvale::fileops

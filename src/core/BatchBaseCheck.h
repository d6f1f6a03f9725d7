#pragma once

#include <QString>

// The checks "Start Batch Renaming" makes on the base name before it touches
// any file, as one pure decision. The caller shows the text: a notice for
// the stopping issues, a Yes/No question with the warning icon for the
// duplicate-name warnings (No stops the batch). The quick tip that follows
// is the caller's.

namespace renvale::core {

enum class BatchBaseIssue {
  None,
  NoBaseName,          // the box still holds the selected file's own name
  EmptyBase,
  InvalidCharacters,
  NoTimeOrSeries,      // question: likely duplicate names
  TimeWithoutSeconds,  // question: time pattern lacks seconds, no series
};

struct BatchBaseVerdict {
  BatchBaseIssue issue = BatchBaseIssue::None;
  QString text;  // the exact message; empty for None

  bool IsQuestion() const {
    return issue == BatchBaseIssue::NoTimeOrSeries || issue == BatchBaseIssue::TimeWithoutSeconds;
  }
  bool Stops() const { return issue != BatchBaseIssue::None && !IsQuestion(); }
};

// `base` is the new-name box text, `selectedFileName` the name of the
// selected (current) file, `timePattern` the "EXIFTime" setting. The checks
// run in this order and the first that applies wins: own name (compared
// without regard to case), empty, forbidden characters, then on the
// upper-cased base: "%ORIGFN%" or "%SERIAL%" passes; none of "%TIME%",
// "%SERIES%", "%DATE TIME%" asks; "%TIME%" or "%DATE TIME%" without
// "%SERIES%" asks when the pattern has no "ss" in any case.
BatchBaseVerdict CheckBatchBase(const QString& base, const QString& selectedFileName,
                                const QString& timePattern);

}  // namespace renvale::core

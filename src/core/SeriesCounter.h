#pragma once

#include <QString>

#include "core/SeriesBox.h"
#include "core/SettingsRecord.h"

namespace renvale::core {

// Hands out series numbers from the "Next Series #:" box. The box text is
// the only store of the next number, so every call reads it afresh (the user
// may have typed into it) and writes the result back formatted with the
// current "Placeholders" pattern. The settings are read on every call, so a
// change in the options applies at once.
class SeriesCounter {
 public:
  SeriesCounter(SeriesBox& box, const SettingsRecord& settings);

  // Returns the number now in the box, formatted, and leaves the following
  // number in the box. With "Placeholders" 2 and "99" in the box: "99",
  // box "100".
  QString TakeSeriesText();

  // Re-prints the box's value with the current pattern ("7" -> "0007").
  void ReformatSeriesBox();

  // Gives back the last number taken: box value - 1, re-formatted.
  void StepBackSeries();

  // Puts 1 into the box, formatted ("0001" with "Placeholders" 4).
  void ResetSeries();

  // Puts `value` into the box as plain decimal text, so that the next
  // TakeSeriesText hands it out (the random batch draws this way).
  void PutNextValue(qint64 value);

  // What "(Series #)" inserts: in batch mode the "%SERIES%" token, which
  // consumes nothing; otherwise TakeSeriesText. Either way followed by the
  // "SeriesSpacing" separator. The caller records that a number was used.
  QString InsertionText(bool batchMode);

 private:
  QString Format(qint64 value) const;

  SeriesBox& box_;
  const SettingsRecord& settings_;
};

}  // namespace renvale::core

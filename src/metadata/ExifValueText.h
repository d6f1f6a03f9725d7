#pragma once

#include <QString>

#include "metadata/ExifRawValue.h"
#include "metadata/ExifTagTable.h"

namespace renvale::metadata {

// Turns a tag's stored value into the text the reader answers: texts cut at
// their first NUL and trimmed, numbers in decimal, and the photographic
// values in the usual notation ("f/5.6", "1/250 s", "-0.67 EV", "50 mm",
// words for Orientation, ExposureProgram and Flash; see ExifTexts). A value
// of an unusable type or out of any sensible range gives an empty text.
class ExifValueText {
 public:
  static QString Format(ExifTag tag, const ExifRawValue& value);

 private:
  static QString Text(const ExifRawValue& value);
  static QString DateText(const ExifRawValue& value);
  static QString Version(const ExifRawValue& value);
  static bool Integer(const ExifRawValue& value, qint64* out);
  static bool Ratio(const ExifRawValue& value, double* out);
  static QString Decimal(double value, int decimals);
  static QString IntegerText(const ExifRawValue& value);
  static QString OrientationText(const ExifRawValue& value);
  static QString ProgramText(const ExifRawValue& value);
  static QString FlashText(const ExifRawValue& value);
  static QString FNumberText(double fNumber);
  static QString ApertureText(const ExifRawValue& value);
  static QString ShutterText(const ExifRawValue& value);
  static QString BiasText(const ExifRawValue& value);
  static QString FocalLengthText(const ExifRawValue& value);
};

}  // namespace renvale::metadata

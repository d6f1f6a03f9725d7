#include "core/SeriesCounter.h"

#include "core/CoreTexts.h"
#include "core/SeriesFormat.h"

namespace renvale::core {

SeriesCounter::SeriesCounter(SeriesBox& box, const SettingsRecord& settings)
    : box_(box), settings_(settings) {}

QString SeriesCounter::TakeSeriesText() {
  const qint64 value = ReadSeriesNumber(box_.Text());
  box_.SetText(Format(value + 1));
  return Format(value);
}

void SeriesCounter::ReformatSeriesBox() { box_.SetText(Format(ReadSeriesNumber(box_.Text()))); }

void SeriesCounter::StepBackSeries() { box_.SetText(Format(ReadSeriesNumber(box_.Text()) - 1)); }

void SeriesCounter::ResetSeries() {
  box_.SetText(QStringLiteral("1"));
  ReformatSeriesBox();
}

void SeriesCounter::PutNextValue(qint64 value) { box_.SetText(QString::number(value)); }

QString SeriesCounter::InsertionText(bool batchMode) {
  const QString number = batchMode ? texts::kTokenSeries : TakeSeriesText();
  return number + SeriesSeparator(settings_.seriesSpacing);
}

QString SeriesCounter::Format(qint64 value) const {
  return FormatSeriesNumber(value, SeriesPattern(settings_.placeholders));
}

}  // namespace renvale::core

#include "core/BatchBaseCheck.h"

#include <QStringList>

#include "core/CoreTexts.h"
#include "core/FileNameRules.h"

namespace renvale::core {

namespace {

QString NoTimeOrSeriesText() {
  QStringList lines;
  for (const QString& line : texts::kNoTimeOrSeriesLines) lines << line;
  return lines.join(texts::kCrLf);
}

BatchBaseVerdict CheckDuplicateRisk(const QString& base, const QString& timePattern) {
  const QString upper = base.toUpper();
  if (upper.contains(texts::kTokenOrigFn) || upper.contains(texts::kTokenSerial)) return {};
  const bool hasSeries = upper.contains(texts::kTokenSeries);
  const bool hasTime = upper.contains(texts::kTokenTime) || upper.contains(texts::kTokenDateTime);
  if (!hasTime && !hasSeries) return {BatchBaseIssue::NoTimeOrSeries, NoTimeOrSeriesText()};
  if (hasTime && !hasSeries && !timePattern.contains(QLatin1String("ss"), Qt::CaseInsensitive)) {
    return {BatchBaseIssue::TimeWithoutSeconds,
            texts::kTimeWithoutSecondsLine1 + texts::kLf + texts::kContinueBatch};
  }
  return {};
}

}  // namespace

BatchBaseVerdict CheckBatchBase(const QString& base, const QString& selectedFileName,
                                const QString& timePattern) {
  if (base.compare(selectedFileName, Qt::CaseInsensitive) == 0) {
    return {BatchBaseIssue::NoBaseName,
            texts::kNoBaseNameLine1 + texts::kLf + texts::kNoBaseNameLine2};
  }
  if (base.isEmpty()) return {BatchBaseIssue::EmptyBase, texts::kPleaseEnterBaseFilename};
  if (HasInvalidFilenameChars(base)) {
    return {BatchBaseIssue::InvalidCharacters, texts::kInvalidFilenameChars};
  }
  return CheckDuplicateRisk(base, timePattern);
}

}  // namespace renvale::core

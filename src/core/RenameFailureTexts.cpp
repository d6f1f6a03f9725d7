#include "core/RenameFailureTexts.h"

#include <QStringList>

#include "core/CoreTexts.h"
#include "platform/ErrorNumbers.h"

namespace renvale::core {

namespace {

// `lead` ("Error renaming file.  ***Error Code") followed by the number's
// own words.
QString FirstLine(const QString& lead, int errorNumber) {
  if (errorNumber == platform::kAccessViolation) return lead + texts::kErrorCode70Suffix;
  if (errorNumber == platform::kPathFileAccess) return lead + texts::kErrorCode75Suffix;
  return lead + QLatin1Char(' ') + QString::number(errorNumber) + texts::kUnexpectedErrorSuffix;
}

bool IsKnownError(int errorNumber) {
  return errorNumber == platform::kAccessViolation || errorNumber == platform::kPathFileAccess;
}

QStringList LockedLines(const QString& whatIsLocked) {
  return {whatIsLocked, texts::kMemoryCardLine1, texts::kMemoryCardLine2, texts::kMemoryCardLine3};
}

}  // namespace

QString IndividualRenameFailureText(int errorNumber, const QString& systemDescription) {
  QStringList lines{FirstLine(texts::kRenameErrorIndividual, errorNumber)};
  if (IsKnownError(errorNumber)) {
    lines << LockedLines(texts::kRenamedFileLocked) << QString();
  } else {
    lines << systemDescription;
  }
  lines << texts::kRenameCancelled;
  return lines.join(texts::kCr);
}

QString BatchRenameFailureText(int errorNumber) {
  QStringList lines{FirstLine(texts::kRenameErrorBatch, errorNumber)};
  lines << LockedLines(texts::kRenamedFileLocked) << texts::kRenameCancelled;
  return lines.join(texts::kCr);
}

QString OverwriteFailureText(int errorNumber) {
  QStringList lines{FirstLine(texts::kOverwriteError, errorNumber)};
  lines << LockedLines(texts::kOverwrittenFileLocked);
  return lines.join(texts::kCr);
}

QString OverwriteQuestionText(const QString& newName) {
  return texts::kOverwritePrefix + newName + texts::kOverwriteSuffix + texts::kLf +
         texts::kOverwriteWarning;
}

}  // namespace renvale::core

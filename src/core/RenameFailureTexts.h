#pragma once

#include <QString>

// The fixed texts shown when a rename or the delete before an overwrite
// fails, and the overwrite question. Error numbers come from the platform
// layer: 70 and 75 have their own first lines, any other number is shown as
// an unexpected error. Lines are joined by CR. The individual rename says
// "file(s)", the batch "file"; both wordings are the product's.

namespace renvale::core {

// "Rename / Done" failed. For an unexpected error `systemDescription`
// (platform::ErrorDescription of the number) is the second line.
QString IndividualRenameFailureText(int errorNumber, const QString& systemDescription);

// A file of the batch could not be renamed. The batch names no system
// description, not even for unexpected errors: its further lines are always
// the read-only and memory-card lines.
QString BatchRenameFailureText(int errorNumber);

// The existing target could not be deleted after the user agreed to
// overwrite it (batch).
QString OverwriteFailureText(int errorNumber);

// "Overwrite file: 'name'?" LF "Overwriting an existing file will cause
// that file to be lost!", asked Yes/No/Cancel with the warning icon under
// texts::kOverwriteTitle.
QString OverwriteQuestionText(const QString& newName);

}  // namespace renvale::core

#pragma once

#include <QString>

// Texts that tell the user where their files stand after a rename went wrong
// half-way: a file set that could not move as a whole, and an overwrite whose
// rename failed after the old target was deleted. They name the files, so
// they are patterns filled with QString::arg.

namespace renvale::core::texts {

// "File Set - Renaming Error" (critical icon); lines joined by CR.
inline const QString kFileSetNotRenamed = QStringLiteral("The file set of '%1' could not be renamed to '%2'.");
inline const QString kFileSetMemberFailed = QStringLiteral("'%1' could not be renamed to '%2': %3");
inline const QString kFileSetTargetTaken =
    QStringLiteral("'%1' cannot be renamed to '%2', because a file of that name already exists.");
inline const QString kFileSetKeptOldNames = QStringLiteral("All files of the set have kept their old names.");
inline const QString kFileSetNotRestored =
    QStringLiteral("These files could not be given back their old names:");
inline const QString kFileSetNotRestoredFile = QStringLiteral("'%1' (was '%2')");

// Appended to a rename failure after the user agreed to overwrite.
inline const QString kTargetDeletedRenameFailed = QStringLiteral(
    "The existing file '%1' had already been deleted as you agreed, but '%2' keeps its old name.");

}  // namespace renvale::core::texts

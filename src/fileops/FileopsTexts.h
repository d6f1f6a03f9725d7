#pragma once

#include <QString>

// The fixed texts of "DEL" and of filename search and replace, word for word
// as the user sees them. "Recycle Bin" stays although the files go to the
// desktop's trash: users and help pages know the words. The search and
// replace clash asks "Cancel the file moving operation?" although it
// renames: the question is shared with the move dialog. "&&" in captions
// shows as one ampersand. Messages of several lines are joined with CR;
// results lines are each preceded by LF.

namespace renvale::fileops::texts {

inline const QString kCr = QStringLiteral("\r");
inline const QString kLf = QStringLiteral("\n");

// ---- "DEL" -------------------------------------------------------------
inline const QString kConfirmDeleteTitle = QStringLiteral("Confirm Delete");
inline const QString kConfirmDeleteSelected =
    QStringLiteral("Are you sure you want to move all selected files to the Recycle Bin?");
inline const QString kConfirmDeleteOnePrefix = QStringLiteral("Are you sure you want to move '");
inline const QString kConfirmDeleteOneSuffix = QStringLiteral("' to the Recycle Bin?");
inline const QString kCouldNotTrashPrefix = QStringLiteral("Could not move file '");
inline const QString kCouldNotTrashSuffix = QStringLiteral("' to Recycle Bin!");
inline const QString kCouldNotTrashOne = QStringLiteral("Could not move file to Recycle Bin!");
inline const QString kNoFileIsSelected = QStringLiteral("No file is selected!");
inline const QString kNoFileSelectedCaption = QStringLiteral("( No File Selected )");
inline const QString kAutoPreviewDisabled = QStringLiteral("Auto-Preview is disabled.  See 'Options' menu.");

// ---- Search and replace: the dialogs ----------------------------------
inline const QString kSandRCaption = QStringLiteral("Filename Search & Replace");
inline const QString kSandRInstruction = QStringLiteral(
    "You can specify up to 6 search && replace terms below.  Leave extra fields blank if they are "
    "not needed.  Search && Replace is performed on selected files in the folder currently selected "
    "in the main Renvale window.  Search terms are case-sensitive.");
inline const QString kSearchTermCaption = QStringLiteral("Search Term # %1");
inline const QString kIfFilenameContains = QStringLiteral("If the filename contains");
inline const QString kReplaceItWith = QStringLiteral("replace it with");
inline const QString kExecuteButton = QStringLiteral("Execute Search && Replace");
inline const QString kExitButton = QStringLiteral("Exit");
inline const QString kHelpButton = QStringLiteral("Help");
inline const QString kScanning = QStringLiteral("Scanning filenames...");
inline const QString kResultsCaption = QStringLiteral("Filename Search & Replace - Results Window");
inline const QString kResultsDesignText = QStringLiteral("Results Window");
inline const QString kOkButton = QStringLiteral("OK");

// ---- Search and replace: messages --------------------------------------
inline const QString kSelectFilesToSearch = QStringLiteral("Please select file(s) to search first.");
inline const QString kFillInSearchTerm =
    QStringLiteral("Please fill in the text boxes for at least one Search Term.");
inline const QString kClashPrefix = QStringLiteral("The file '");
inline const QString kClashSuffix = QStringLiteral("' already exists.");
inline const QString kClashWarning =
    QStringLiteral("Overwrite the existing file?  The existing file will be lost!");
inline const QString kCancelQuestion = QStringLiteral("Cancel the file moving operation?");
inline const QString kCouldNotOverwrite = QStringLiteral("Could not overwrite the file.");
inline const QString kReadOnlyOrProtected =
    QStringLiteral("The file or folder is 'Read Only' or Write Protected.");
inline const QString kErrorNumberPrefix = QStringLiteral("Error #");
inline const QString kContinueOrCancel = QStringLiteral(
    "Click OK to continue renaming files or Cancel to cancel the file renaming operation.");
inline const QString kRenameError70 =
    QStringLiteral("Error renaming file.  ***Error Code 70 - Access Violation Error***");
inline const QString kRenameError75 =
    QStringLiteral("Error renaming file.  ***Error Code 75 - File/Path Access Error***");
// The number follows "Code" without a blank.
inline const QString kRenameErrorOtherPrefix = QStringLiteral("Error renaming file.  ***Error Code");
inline const QString kRenameErrorOtherSuffix = QStringLiteral(" - Unexpected Error***");
inline const QString kRenameErrorLines[] = {
    QStringLiteral("The file being renamed is 'Read Only' or the source folder is Write Protected."),
    QString(),
    QStringLiteral("If you are accessing a memory card through a memory card reader/slot or"),
    QStringLiteral("a cable connected from the camera to computer, examine memory card"),
    QStringLiteral("to be sure the Write Protect (or Lock) switch is not enabled."),
    QString(),
    QStringLiteral("File renaming operation cancelled.")};
inline const QString kNothingMatched = QStringLiteral(
    "Search & Replace Complete.  No files matched the search term(s), therefore no filenames were "
    "changed.");
inline const QString kCheckTerms = QStringLiteral("You might want to check the search terms and try again.");
inline const QString kRenamingComplete =
    QStringLiteral("Search & Replace Renaming Complete.  Click OK for the results.");

// ---- Search and replace: results lines ---------------------------------
inline const QString kWasRenamedTo = QStringLiteral(" was renamed to ");
inline const QString kNotRenamedPrefix = QStringLiteral("The file '");
inline const QString kNotRenamedMiddle = QStringLiteral("' was not renamed to '");
inline const QString kBecauseExisted = QStringLiteral("' because the new proposed filename already existed.");
inline const QString kBecauseNotOverwritten = QStringLiteral(
    "' because the new proposed filename already existed and could not be overwritten.");
inline const QString kRunCancelled = QStringLiteral("The file renaming operation was cancelled.");
inline const QString kRunCancelledNotWritable =
    QStringLiteral("File renaming operation was cancelled because the folder cannot be written to.");

}  // namespace renvale::fileops::texts

#pragma once

#include <QString>

#include "fileops/TransferVerbs.h"

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

// Every fixed text of moving and copying, word for word, double blanks
// included. CR joins the pieces of a message box, LF those of the SmartName
// results window.
namespace renvale::fileops::transfer_text {

inline const QString kCR = QStringLiteral("\r");
inline const QString kLF = QStringLiteral("\n");

// The dialog.
inline const QString kDialogCaption = QStringLiteral("Move or copy file(s)");
inline const QString kModeFrame = QStringLiteral("Transfer Mode");
inline const QString kMove = QStringLiteral("Move");
inline const QString kCopy = QStringLiteral("Copy");
inline const QString kPolicyFrame =
    QStringLiteral("If a file being moved or copied already exists in the destination folder...");
inline const QString kPolicyAsk = QStringLiteral("Ask if I want to overwrite the existing file");
inline const QString kPolicyNever =
    QStringLiteral("Never overwrite the existing file (source will not be moved or copied)");
inline const QString kPolicyAlways = QStringLiteral("Always overwrite the existing file (*** use with caution ***)");
inline const QString kPolicySmartName = QStringLiteral("Use SmartName (See Help)");
inline const QString kDestinationLabel =
    QStringLiteral("The selected file(s) will be moved or copied to the following folder:");
inline const QString kNoDestination = QStringLiteral("(Please choose destination folder)");
inline const QString kChooseDestination = QStringLiteral("Choose Destination Folder...");
inline const QString kHistoryLabel = QStringLiteral("Recently used folders history:");
inline const QString kClearHistory = QStringLiteral("Clear History");
inline const QString kTransferFiles = QStringLiteral("Transfer File(s)");
inline const QString kCancel = QStringLiteral("Cancel");
inline const QString kExit = QStringLiteral("Exit");
inline const QString kHelp = QStringLiteral("Help");
inline const QString kResultsCaption = QStringLiteral("SmartName - Results Window");
inline const QString kResultsClose = QStringLiteral("OK");
inline const QString kProgress = QStringLiteral("Progress");

// Choosing and remembering folders.
inline const QString kChoosePrompt = QStringLiteral("Choose a destination to move or copy file(s) to...");
inline const QString kInvalidFolder = QStringLiteral("An invalid folder was chosen.  Please choose an actual folder.");
inline const QString kClearHistoryQuestion = QStringLiteral("Clear Recent Folder History?");
inline const QString kCancelTransferQuestion =
    QStringLiteral("Cancel the file transfer?  Files already moved or copied will remain moved or copied.");
inline const QString kChooseFirst = QStringLiteral("Please choose a destination folder first.");

// The run.
inline QString SameFolder(const TransferVerbs& v) {
  return QStringLiteral("File(s) could not be ") + v.verbed + QStringLiteral(".  The destination folder is the same as source!") +
         kCR + QStringLiteral("Please choose a different destination folder.");
}
inline const QString kSourceProtected =
    QStringLiteral("It appears that the source drive or folder is write-protected or locked.") + kLF +
    QStringLiteral("Files cannot be MOVED from a write-protected or locked source.") + kLF +
    QStringLiteral("If the source is a digital camera or memory card, please be sure it is not write-protected.") + kCR +
    kCR + QStringLiteral("Would you like to COPY the file(s) instead?");
inline QString Cancelled(const TransferVerbs& v) {
  return QStringLiteral("The file ") + v.verb + QStringLiteral(" operation was cancelled.");
}
inline QString MayNotHaveBeen(const TransferVerbs& v) {
  return QStringLiteral("Some files may not have been ") + v.verbed + QStringLiteral(".");
}
inline QString OverwriteQuestion(const QString& name) {
  return QStringLiteral("The file '") + name + QStringLiteral("' already exists in the destination folder.") + kCR +
         QStringLiteral("Overwrite the existing file?  The existing file will be lost!");
}
inline QString CancelQuestion(const TransferVerbs& v) {
  return QStringLiteral("Cancel the file ") + v.verb + QStringLiteral(" operation?");
}
inline QString CouldNot(const TransferVerbs& v) { return QStringLiteral("Could not ") + v.verb + QStringLiteral(" file(s)."); }
inline const QString kDestinationReadOnly = QStringLiteral("The destination folder is 'Read Only' or Write Protected.");
inline const QString kDestinationVanished =
    QStringLiteral("The destination folder no longer exists, and has been removed from folder history.") + kCR +
    QStringLiteral("Please choose another folder or recreate the missing one.");
inline const QString kDestinationNotWritable = QStringLiteral("The destination folder could not be written to.");
inline QString ErrorNumber(int n) { return QStringLiteral("Error #") + QString::number(n); }
inline QString ContinueOrCancel(const TransferVerbs& v) {
  return QStringLiteral("Click OK to continue ") + v.verbing + QStringLiteral(" files or Cancel to cancel the file ") +
         v.verb + QStringLiteral(" operation.");
}
inline const QString kSourceNotDeleted = QStringLiteral("Could not delete source file after copying to destination.");
inline const QString kSourceReadOnly = QStringLiteral("The source file or folder is 'Read Only' or Write Protected.");
inline QString TargetNotDeleted(const TransferVerbs& v) {
  return QStringLiteral("Could not delete destination file before ") + v.verbing + QStringLiteral(" source.");
}
inline const QString kTargetReadOnly = QStringLiteral("The destination file or folder is 'Read Only' or Write Protected.");

// The end of a run.
inline QString Success(const TransferVerbs& v) { return QStringLiteral("File(s) ") + v.verbed + QStringLiteral(" successfully."); }
inline QString NoteSkipped(const TransferVerbs& v) {
  return QStringLiteral("Some files were not ") + v.verbed + QStringLiteral(" because they already existed in destination folder.");
}
inline const QString kNoteOverwritten = QStringLiteral(
    "Some files in destination folder were overwritten because they already existed, and 'Always Overwrite' was enabled.");
inline QString NoteNotOverwritten(const TransferVerbs& v) {
  return QStringLiteral("Some files may not have been ") + v.verbed +
         QStringLiteral(". Some existing destination files could not be overwritten.");
}
inline QString NoteTargetsNotDeleted(const TransferVerbs& v) {
  return QStringLiteral("Some existing destination files could not be deleted prior to ") + v.verbing;
}
inline const QString kNoteSourcesNotDeleted = QStringLiteral("Some source files could not be deleted.");
inline const QString kNoteNotMoved = QStringLiteral("Some files may not have been moved.");
inline const QString kNoteSmartName = QStringLiteral(
    "Some source file(s) had sub-series #s added because destination folder contained identical filename(s) (SmartName).");
inline const QString kSmartNameChanged =
    QStringLiteral("SmartName changed the names of some of the files because the destination") + kCR +
    QStringLiteral("folder contained identical filename(s).  Click OK for results.");

// The SmartName report.
inline QString ReportHeading(const TransferVerbs& v, const QString& destination) {
  return QStringLiteral("SmartName made the following changes to filenames while ") + v.verbing +
         QStringLiteral(" them to the destination folder:") + kLF + kLF + QStringLiteral("Destination Folder: '") +
         destination + QStringLiteral("'") + kLF;
}
inline QString ReportLine(const QString& from, const QString& to) {
  return kLF + QStringLiteral("'") + from + QStringLiteral("' was changed to '") + to + QStringLiteral("'.");
}

}  // namespace renvale::fileops::transfer_text

namespace renvale::fileops::texts {

// ---- The journal of operations ------------------------------------------
inline const QString kJournalTruncated = QStringLiteral(
    "The record of an operation in '%1' is incomplete: it was cut short while being written.  It cannot be used "
    "to undo or finish that operation.");
inline const QString kJournalGarbled = QStringLiteral(
    "The record of an operation in '%1' is damaged.  It cannot be used to undo or finish that operation.");
inline const QString kJournalNewer = QStringLiteral(
    "The record of an operation in '%1' was written by a newer version of Renvale.  This version cannot use it "
    "to undo or finish that operation.");
inline const QString kJournalSetAside = QStringLiteral("It has been kept aside as '%1'.");
inline const QString kJournalNotSetAside = QStringLiteral("It could not be moved aside: %1");

inline const QString kReplayPassedOver = QStringLiteral("'%1' was passed over: %2");
inline const QString kReplayChanged =
    QStringLiteral("it has been renamed, moved, replaced or deleted since.");
inline const QString kReplayNotInTrash = QStringLiteral("the trash no longer holds it.");
inline const QString kReplayCopyKept = QStringLiteral("the copy was kept.");
inline const QString kUndoCopiesQuestion = QStringLiteral(
    "Undoing this copy moves the %1 copied file(s) to the trash.  The originals stay where they are." "\r"
    "Move the copies to the trash?");

// ---- Undo, the history and recovery ---------------------------------------
inline const QString kKindRename = QStringLiteral("Rename");
inline const QString kKindBatchRename = QStringLiteral("Batch Rename");
inline const QString kKindSearchReplace = QStringLiteral("Search & Replace");
inline const QString kKindMove = QStringLiteral("Move");
inline const QString kKindCopy = QStringLiteral("Copy");
inline const QString kKindTrash = QStringLiteral("Delete to Trash");
inline const QString kKindTemplateDelete = QStringLiteral("Template Delete");
inline const QString kDescribeOne = QStringLiteral("%1 of %2 file");
inline const QString kDescribeMany = QStringLiteral("%1 of %2 files");
inline const QString kUndoCaption = QStringLiteral("Undo %1");
inline const QString kUndoDone = QStringLiteral("Undo of %1: %2 file(s) were put back.");
inline const QString kPassedOverHeading = QStringLiteral("These files were left as they are:");
inline const QString kRecoveryTitle = QStringLiteral("Unfinished Operation");
inline const QString kRecoveryQuestion = QStringLiteral(
    "Renvale was stopped in the middle of %1 in '%2'." "\r"
    "%3 file(s) were done, %4 were not yet done, %5 have changed since and will be left alone." "\r\r"
    "Yes finishes the operation, No undoes what was done, Cancel decides later (Edit > Operation History...).");
inline const QString kRecoveryFinished = QStringLiteral("The operation was finished: %1 more file(s) were done.");
inline const QString kRecoveryUndone = QStringLiteral("The operation was undone: %1 file(s) were put back.");

}  // namespace renvale::fileops::texts

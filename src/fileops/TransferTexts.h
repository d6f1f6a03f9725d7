#pragma once

#include <QString>

#include "fileops/TransferVerbs.h"

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

#pragma once

#include <QString>

// The fixed texts of composing names, series numbers, the button texts and
// the renames, word for word as the user sees them. Double blanks and
// misspellings ("applicaton") are deliberate: users and help pages quote
// them. ("( No File Selected )" here has blanks inside the brackets; the
// list's own label, kNoFileSelected, has none. Both are the product's.)
// Messages made of several lines keep their lines here and are joined by the
// functions that build them (CR in message boxes, CR LF or LF where noted).

namespace renvale::core::texts {

inline const QString kCr = QStringLiteral("\r");
inline const QString kLf = QStringLiteral("\n");
inline const QString kCrLf = QStringLiteral("\r\n");

// ---- Tokens (the lower-case spellings are these lower-cased) -----------
inline const QString kTokenOrigFn = QStringLiteral("%ORIGFN%");
inline const QString kTokenDate = QStringLiteral("%DATE%");
inline const QString kTokenTime = QStringLiteral("%TIME%");
inline const QString kTokenDateTime = QStringLiteral("%DATE TIME%");
inline const QString kTokenSeries = QStringLiteral("%SERIES%");
inline const QString kTokenSerial = QStringLiteral("%SERIAL%");
inline const QString kTokenTitle = QStringLiteral("%TITLE%");
inline const QString kTokenArtist = QStringLiteral("%ARTIST%");
inline const QString kTokenAlbum = QStringLiteral("%ALBUM%");
inline const QString kTokenTrack = QStringLiteral("%TRACK%");

// ---- Composition -------------------------------------------------------
inline const QString kPleaseSelectFileFirst =
    QStringLiteral("Please select a file to rename first.");
inline const QString kInvalidFilenameChars =
    QStringLiteral("Filenames cannot contain the following characters:   \\ / : * ? \" < > |");
inline const QString kNoSerialInFile = QStringLiteral(
    "A Serial Number was not found in this file.  Do not rely on Serial Numbers to keep filenames "
    "unique unless you are sure that ALL files to be renamed contain a unique serial number.  "
    "It is recommended that you use a Series # instead when renaming this file.");
inline const QString kNoSerialInLastSelected = QStringLiteral(
    "A Serial Number was not found in the last-selected file.  Do not rely on Serial Numbers to "
    "keep filenames unique unless you are sure that ALL files to be renamed contain a unique "
    "serial number.  It is recommended that you use Series #s instead when batch renaming the "
    "selected files.");
inline const QString kNoTempFilename = QStringLiteral("There is no new filename to save as Temp.");
inline const QString kExifErrorPrefix = QStringLiteral("EXIF Error: ");

// "EXIF+" menu, captions in order ("&&" shows as one ampersand); empty = separator.
inline const QString kMenuInsertDate = QStringLiteral("Insert Date");
inline const QString kMenuInsertTime = QStringLiteral("Insert Time");
inline const QString kMenuInsertDateTime = QStringLiteral("Insert Date && Time");
inline const QString kMenuInsertSerial = QStringLiteral("Insert Serial (Limited Availability)");
inline const QString kMenuInsertTitle = QStringLiteral("ID3> Insert Title");
inline const QString kMenuInsertArtist = QStringLiteral("ID3> Insert Artist");
inline const QString kMenuInsertAlbum = QStringLiteral("ID3> Insert Album");
inline const QString kMenuInsertTrack = QStringLiteral("ID3> Insert Track #");
inline const QString kMenuViewExif = QStringLiteral("View EXIF && Other Info (Current File)");
inline const QString kMenuCancel = QStringLiteral("-Cancel-");

// "Insert+" menu: captions and the texts they insert, index for index.
inline const QString kCommonWordCaptions[] = {
    QStringLiteral("(SPACE)"), QStringLiteral("' - '"),    QStringLiteral("' && '"),
    QStringLiteral("' at '"),  QStringLiteral("' with '"), QStringLiteral("' on '"),
    QStringLiteral("' in '")};
inline const QString kCommonWords[] = {
    QStringLiteral(" "),      QStringLiteral(" - "),  QStringLiteral(" & "), QStringLiteral(" at "),
    QStringLiteral(" with "), QStringLiteral(" on "), QStringLiteral(" in ")};

// ---- Series numbers ----------------------------------------------------
// The tool tip names a reset to 0 although the reset sets 1; kept as it is.
inline const QString kSeriesBoxToolTip =
    QStringLiteral("Adjust next series # (Double-click to reset to 0)");

// ---- Custom and temp buttons, templates --------------------------------
inline const QString kEditPromptButton = QStringLiteral("Enter new text for Button #");
inline const QString kEditPromptTemp = QStringLiteral("Enter new text for Temp #");
inline const QString kEditorFrameCaption = QStringLiteral("Rename Button");
inline const QString kEditorBoxToolTip = QStringLiteral("Double-click to clear");
inline const QString kEditorOkToolTip = QStringLiteral("Click to store text");
inline const QString kTempButtonToolTip = QStringLiteral("Save current filename to a Temp button");
inline const QString kTemplateExtension = QStringLiteral(".rnt");

// ---- Individual rename -------------------------------------------------
inline const QString kPleaseEnterNewFilename = QStringLiteral("Please enter a new filename.");
inline const QString kSameAsOriginal =
    QStringLiteral("The filename entered is the same as the original!");
inline const QString kNoFileIsSelected = QStringLiteral("No file is selected!");
inline const QString kClearBoxToolTip = QStringLiteral("Clear 'New Filename' box");
inline const QString kNoFileSelectedLabelAfterRename = QStringLiteral("( No File Selected )");
inline const QString kAutoPreviewDisabledAfterRename =
    QStringLiteral("Auto-Preview is disabled.  See 'Options' menu.");
inline const QString kFilesInFolderPrefix = QStringLiteral("Files in folder (");
inline const QString kFilesInFolderSuffix = QStringLiteral("):");

// Overwrite question: Yes/No/Cancel, warning icon; lines joined by LF.
inline const QString kOverwriteTitle = QStringLiteral("Filename already exists!");
inline const QString kOverwritePrefix = QStringLiteral("Overwrite file: '");
inline const QString kOverwriteSuffix = QStringLiteral("'?");
inline const QString kOverwriteWarning =
    QStringLiteral("Overwriting an existing file will cause that file to be lost!");

// ---- Rename failures (lines joined by CR) ------------------------------
inline const QString kRenameErrorIndividual =
    QStringLiteral("Error renaming file(s).  ***Error Code");
inline const QString kRenameErrorBatch = QStringLiteral("Error renaming file.  ***Error Code");
inline const QString kOverwriteError = QStringLiteral("Error overwriting file.  ***Error Code");
inline const QString kErrorCode70Suffix = QStringLiteral(" 70 - Access Violation Error***");
inline const QString kErrorCode75Suffix = QStringLiteral(" 75 - File/Path Access Error***");
inline const QString kUnexpectedErrorSuffix = QStringLiteral(" - Unexpected Error***");
inline const QString kRenamedFileLocked = QStringLiteral(
    "The file being renamed is 'Read Only', the source folder is Write Protected, or the file is "
    "in-use by another applicaton.");
inline const QString kOverwrittenFileLocked = QStringLiteral(
    "The file being overwritten is 'Read Only', the source folder is Write Protected, or the "
    "file is in-use by another applicaton.");
inline const QString kMemoryCardLine1 =
    QStringLiteral("If you are accessing a memory card through a memory card reader/slot or");
inline const QString kMemoryCardLine2 =
    QStringLiteral("a cable connected from the camera to computer, examine memory card");
inline const QString kMemoryCardLine3 =
    QStringLiteral("to be sure the Write Protect (or Lock) switch is not enabled.");
inline const QString kRenameCancelled = QStringLiteral("File renaming operation cancelled.");
inline const QString kFileSetErrorTitle = QStringLiteral("File Set - Renaming Error");

// ---- Batch rename ------------------------------------------------------
// "No base name": two lines joined by LF.
inline const QString kNoBaseNameLine1 =
    QStringLiteral("Before batch-renaming files, you must enter a New 'base' Filename.");
inline const QString kNoBaseNameLine2 =
    QStringLiteral("Click the 'Help' button in the Batch Mode pane for help.");
inline const QString kPleaseEnterBaseFilename =
    QStringLiteral("Please enter a new 'base' filename.");
// Duplicate warning without time or series: lines joined by CR LF.
inline const QString kNoTimeOrSeriesLines[] = {
    QStringLiteral("The base filename does not contain EXIF TIME or a SERIES #.  This could cause "
                   "duplicate filenames!"),
    QStringLiteral("Windows does not allow duplicate filenames in the same folder.  Do not "
                   "continue unless you are certain"),
    QStringLiteral("that duplicate filenames will not occur."),
    QStringLiteral("If you are renaming MP3s with ID3 data, be sure *ALL* selected MP3 files "
                   "contain ID3 information."),
    QStringLiteral("Continue with the batch renaming?")};
// Duplicate warning for time without seconds: two lines joined by LF.
inline const QString kTimeWithoutSecondsLine1 = QStringLiteral(
    "The base filename does not contain a SERIES # and although EXIF TIME is included, the time "
    "format chosen does not include seconds (See Options).  This could cause duplicate filenames!");
inline const QString kContinueBatch = QStringLiteral("Continue with the batch renaming?");
inline const QString kProcessingFiles = QStringLiteral("Processing files.  Please wait.......");
inline const QString kRandomSeriesNote = QStringLiteral(
    "NOTE: Batch-renaming using RANDOM series #s does not work correctly with file sets, and is "
    "therefore not recommended.");


// What the selection tells the window.
inline const QString kNoFileSelected = QStringLiteral("(No File Selected)");
inline const QString kAutoPreviewDisabledTools =
    QStringLiteral("Auto-Preview is disabled.  See 'Tools|Program Options' menu.");
inline QString FilesSelected(int count) { return QStringLiteral("%1 files selected").arg(count); }

// Where files stand after a rename went wrong half-way. They name the files,
// so they are patterns filled with QString::arg.
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

// The name preview: one note per problem a file's new name would meet.
// They name other files and rows, so they are patterns.
inline const QString kNoteSameNewName = QStringLiteral("Same new name as row %1 ('%2').");
inline const QString kNoteExistingFile =
    QStringLiteral("A file of this name is already in the folder and keeps it; the batch will ask before replacing it.");
inline const QString kNoteLetterCase = QStringLiteral("Differs only in letter case from '%1'.");
inline const QString kNoteForbiddenCharacter = QStringLiteral("Holds a character that is not allowed: %1");
inline const QString kNoteTooLong =
    QStringLiteral("Longer than the file system allows (%1 bytes, at most 255).");
inline const QString kNoteUnchanged = QStringLiteral("The name does not change.");
inline const QString kNoteWaitsFor = QStringLiteral("Renamed after '%1' has left this name.");
inline const QString kNoteTravelsWith = QStringLiteral("Renamed along with '%1'.");

// ---- The journal ---------------------------------------------------------
// Shown when the plan of an operation cannot be written: nothing changes,
// because a change that could not be undone after a crash is not made.
inline const QString kPlanNotKept = QStringLiteral(
    "Nothing was changed: the plan of this operation could not be saved for Undo (%1).");
// The same, once files have been renamed under the part of the plan kept.
inline const QString kPlanRestNotKept = QStringLiteral(
    "The remaining files were not renamed: the plan of the rest of this operation could not be saved for "
    "Undo (%1).");

}  // namespace renvale::core::texts

#pragma once

#include <QString>

#include "core/CoreTexts.h"

// The main window's own texts, kept exactly as the program shows them.
namespace renvale::shell::texts {

inline const QString& kNoFileSelected = core::texts::kNoFileSelected;
inline const QString kNoFilesToSelect = QStringLiteral("There are no files in this folder to select!");

inline const QString kDriveUnaccessableTitle = QStringLiteral("Drive Unaccessable");
inline const QString kDriveUnaccessableText =
    QStringLiteral("Could not access selected drive.\n"
                   "If it uses removable media, please be sure it is inserted and ready.\n"
                   "If this is a network drive, be sure you have permission to access it and "
                   "that the computer is turned on.");
// A folder or file given at start that cannot be opened: told without a
// dialog, in the folder pane's words for a place it cannot read.
inline QString StartPathUnaccessable(const QString& path) {
  return kDriveUnaccessableTitle + QStringLiteral(": ") + path;
}
inline const QString kInvalidFolderChosen =
    QStringLiteral("An invalid folder was chosen.  Please choose an actual folder.");
inline const QString kOnlyDrivesOrFolders = QStringLiteral("Only DRIVES or FOLDERS can be dropped here!");
inline const QString kChooseFolderPrompt =
    QStringLiteral("Choose a location containing files you wish to work with...");
inline const QString kDefaultPickerTitle = QStringLiteral("Select A Directory");

// Captions.
inline const QString kNewFilenameCaption = QStringLiteral("New Filename:");
inline const QString kNextSeriesCaption = QStringLiteral("Next Series #:");
inline const QString kBatchFrameCaption = QStringLiteral("Batch Mode (Multiple files selected)");
inline const QString kBatchHint =
    QStringLiteral("To exit \"Batch Mode\", select a single file from the Files list below.");
using core::texts::kProcessingFiles;
using core::texts::kRandomSeriesNote;

inline QString FilesInFolderLabel(int count) {
  return core::texts::kFilesInFolderPrefix + QString::number(count) + core::texts::kFilesInFolderSuffix;
}

// The preview area.
inline const QString kLoadingImage = QStringLiteral("(Loading Image...)");
inline const QString kPreviewUnavailable = QStringLiteral("(Preview Unavailable)");
inline const QString kNoFileSelectedToPreview = QStringLiteral("No file is selected!");
inline const QString kOpenWithExternalViewer = QStringLiteral("Open with external viewer");
inline const QString kNoExternalApplication =
    QStringLiteral("Unable to preview file externally.\n"
                   "This computer does not appear to have an application associated with this type of file.");

// The media player.
inline const QString kLoadingMedia = QStringLiteral("(Loading media file...)");
inline const QString kVolume = QStringLiteral("Volume");
inline const QString kPosition = QStringLiteral("Position");
inline const QString kStepBack = QStringLiteral("Step back");
inline const QString kStepForward = QStringLiteral("Step forward");
inline const QString kCurrentPosition = QStringLiteral("Current Position (seconds)");
inline const QString kTotalLength = QStringLiteral("Total Length (seconds)");
inline const QString kPositionSeparator = QStringLiteral(" / ");
inline const QString kLoadTimedOut = QStringLiteral("it did not open within 15 seconds");
inline const QString kNotARegularFile = QStringLiteral("it is not a file that holds sound or video");
inline const QString kUnknownMediaFailure = QStringLiteral("its kind or its encoding is not supported");

// "song.mp3  -  cannot be played (Could not demultiplex stream.)": why in
// the framework's own words.
inline QString UnplayableCaption(const QString& name, const QString& reason) {
  return name + QStringLiteral("  -  cannot be played (") + reason + QLatin1Char(')');
}

// "IMG_0001.JPG  -  1600w X 1200h": the picture's own size, before any turn.
inline QString PictureCaption(const QString& name, int width, int height) {
  return name + QStringLiteral("  -  ") + QString::number(width) + QStringLiteral("w X ") + QString::number(height) +
         QStringLiteral("h");
}

// The About window.
inline const QString kAboutCaption = QStringLiteral("About ");
inline const QString kAboutDescription = QStringLiteral("The easy way to rename digital photos, and more!");
inline const QString kAboutOk = QStringLiteral("OK");

// "Preview New Names...": the button beside "Start Batch Renaming", the View
// menu entry and the window they open.
inline const QString kPreviewNamesButton = QStringLiteral("Preview New Names...");
inline const QString kPreviewNamesAction = QStringLiteral("Preview &New Names...");
inline const QString kPreviewNamesTitle = QStringLiteral("Preview New Names");
inline const QString kPreviewStart = QStringLiteral("Start Batch Renaming");
inline const QString kPreviewClose = QStringLiteral("Close");
inline const QString kPreviewColumnCurrent = QStringLiteral("Current Name");
inline const QString kPreviewColumnNew = QStringLiteral("New Name");
inline const QString kPreviewColumnDate = QStringLiteral("Date Source");
inline const QString kPreviewColumnNotes = QStringLiteral("Notes");
inline QString PreviewSummary(int files, int noted) {
  return QStringLiteral("%1 files; %2 with notes. Nothing has been renamed yet.").arg(files).arg(noted);
}

// Map Network Drive and Disconnect Network Drive. Linux has no drive letters:
// a mapped share's local folder stands where the letter stood.
inline const QString kMapDriveCaption = QStringLiteral("Map Network Drive");
inline const QString kNetFolderLabel = QStringLiteral("Network Drive or Folder:");
inline const QString kNoNetFolder = QStringLiteral("(Please choose a network drive or folder)");
inline const QString kChooseNetFolder = QStringLiteral("Choose network drive or folder to map...");
inline const QString kChooseNetFolderPrompt = QStringLiteral("Choose a network drive or folder to map...");
inline const QString kMapButton = QStringLiteral("Map Drive or Folder");
inline const QString kCancelButton = QStringLiteral("Cancel");
inline const QString kHelpButton = QStringLiteral("Help");
inline const QString kNotNetworkFolder = QStringLiteral("The folder chosen does not appear to be a network folder.");
inline const QString kPleaseChooseNetFolder = QStringLiteral("Please choose a network drive or folder");
inline const QString kCouldNotMapChosen = QStringLiteral("Could not map the drive or folder chosen.");
inline QString MappedText(const QString& localFolder, const QString& address) {
  return QStringLiteral("Network drive or folder mapped successfully.\nLocal Drive Letter is: ") + localFolder +
         QStringLiteral("\nMapped to: ") + address;
}
inline QString CouldNotMapText(int errorNumber) {
  return QStringLiteral("Could not map network drive or folder.  Error #") + QString::number(errorNumber);
}
inline const QString kDisDriveCaption = QStringLiteral("Disconnect Network Drive");
inline const QString kChooseDriveToDisconnect = QStringLiteral("Please choose which network drive to disconnect...");
inline const QString kDisconnectButton = QStringLiteral("Disconnect");
inline const QString kNoMappedDrives =
    QStringLiteral("Renvale did not find any drive letters mapped to a network drive or folder.");
inline QString DisconnectedText(const QString& drive) {
  return QStringLiteral("Network Drive '") + drive + QStringLiteral("' has been disconnected.");
}
inline const QString kCouldNotDisconnect =
    QStringLiteral("Could not disconnect selected drive.\nPlease be sure it is a network drive.");
// The login the server asks for while a share is being mapped.
inline const QString kLoginCaption = QStringLiteral("Network Login");
inline const QString kLoginUser = QStringLiteral("&User name:");
inline const QString kLoginDomain = QStringLiteral("&Domain:");
inline const QString kLoginPassword = QStringLiteral("&Password:");
inline const QString kLoginAnonymous = QStringLiteral("Connect &anonymously");
inline const QString kLoginConnect = QStringLiteral("Connect");

// ---- Edit menu, the operation history -----------------------------------
inline const QString kEditMenu = QStringLiteral("&Edit");
inline const QString kUndoNothing = QStringLiteral("&Undo");
inline const QString kHistoryMenu = QStringLiteral("Operation &History...");
inline const QString kHistoryTitle = QStringLiteral("Operation History");
inline const QString kHistoryColumns[] = {QStringLiteral("When"), QStringLiteral("What"), QStringLiteral("Files"),
                                          QStringLiteral("Folder")};
inline const QString kHistoryUndone = QStringLiteral("%1 (undone)");
inline const QString kHistoryUnfinished = QStringLiteral("%1 (unfinished)");
inline const QString kHistoryUndoButton = QStringLiteral("&Undo Newest");
inline const QString kHistoryClose = QStringLiteral("Close");
inline const QString kHistoryEmpty = QStringLiteral("No operations have been recorded yet.");

}  // namespace renvale::shell::texts

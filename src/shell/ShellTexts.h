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

}  // namespace renvale::shell::texts

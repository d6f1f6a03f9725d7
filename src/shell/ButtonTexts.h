#pragma once

#include <QString>

// The fixed texts of the temp pop-up and the templates dialog, word for word
// as the user sees them. The shared messages (characters a file name cannot
// hold, "-Cancel-") live with the renaming core's texts.
namespace renvale::shell::texts {

// "Filename as Temp+" pop-up, one entry per temp button.
inline const QString kTempMenuEntries[] = {QStringLiteral("Temp1"), QStringLiteral("Temp2"),
                                           QStringLiteral("Temp3")};

// The templates dialog.
inline const QString kManTempCaption = QStringLiteral("Manage Templates");
inline const QString kExistingTemplates = QStringLiteral("Existing Templates:");
inline const QString kSaveGroup = QStringLiteral("Save Template");
inline const QString kSaveHint = QStringLiteral("Enter filename below or choose an existing template to overwrite it.");
inline const QString kOpenGroup = QStringLiteral("Open Template");
inline const QString kOpenHint = QStringLiteral("Choose an existing template and click 'Open'");
inline const QString kDeleteGroup = QStringLiteral("Delete Template");
inline const QString kDeleteHint = QStringLiteral("Choose an existing template and click 'Delete'");
inline const QString kSaveButton = QStringLiteral("Save");
inline const QString kOpenButton = QStringLiteral("Open");
inline const QString kDeleteButton = QStringLiteral("Delete");
inline const QString kDoneButton = QStringLiteral("Done");
inline const QString kHelpButton = QStringLiteral("Help");
inline const QString kNewTemplateName = QStringLiteral("New Template");

// The templates dialog's messages.
inline const QString kPleaseEnterFilename = QStringLiteral("Please enter a filename.");
inline const QString kOverwriteTemplate = QStringLiteral("Overwrite the existing file?");
inline const QString kFileExistsTitle = QStringLiteral("File Exists");
inline const QString kTemplateSaved = QStringLiteral("The template has been saved.");
inline const QString kChooseFileToOpen = QStringLiteral("Please choose a file to open.");
inline const QString kTemplateApplied = QStringLiteral("The selected template has been applied to the buttons.");
inline const QString kChooseTemplateToDelete = QStringLiteral("Please choose a template to delete.");
inline const QString kConfirmDeleteTitle = QStringLiteral("Confirm Delete");
inline const QString kConfirmDeletePrefix = QStringLiteral("Are you sure you want to move '");
inline const QString kConfirmDeleteSuffix = QStringLiteral("' to the Recycle Bin?");
inline const QString kTemplateNotTrashed = QStringLiteral("Could not move template to Recycle Bin!");
inline const QString kTemplateTrashed = QStringLiteral("The template has been moved to the Recycle Bin.");

}  // namespace renvale::shell::texts

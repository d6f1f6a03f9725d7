#pragma once

#include <QString>

// The options window's captions and messages, word for word. A "&&" in a
// group caption shows as one "&".
namespace renvale::shell::texts {

inline const QString kOptionsCaption = QStringLiteral("Renvale Options");

inline const QString kResizingGroup = QStringLiteral("Main Window Resizing");
inline const QString kResizeFonts = QStringLiteral("Resize fonts too");

inline const QString kFilterGroup = QStringLiteral("File Filter && Extensions");
inline const QString kForceLowerCase = QStringLiteral("Force lower-case extensions");
inline const QString kAllFiles = QStringLiteral("All Files");
inline const QString kTypicalImageFiles = QStringLiteral("Typical Image Files");

inline const QString kQuickTipsGroup = QStringLiteral("Quick Tips");
inline const QString kRestoreQuickTips = QStringLiteral("Restore Quick Tips");
inline const QString kRestoreQuickTipsNote = QStringLiteral(
    "Clicking this button will enable Quick Tips if you have turned them off via a Quick Tip window.");

inline const QString kExifFormatGroup = QStringLiteral("EXIF Date && Time Format");
inline const QString kDateGroup = QStringLiteral("Date");
inline const QString kTimeGroup = QStringLiteral("Time");
inline const QString kChooseFormat = QStringLiteral("Choose Format >");
inline const QString kSampleLabel = QStringLiteral("SAMPLE: ");
// What the sample labels show before the first choice is made.
inline const QString kDateSampleDesign = QStringLiteral("2004-01-24");
inline const QString kTimeSampleDesign = QStringLiteral("22-12-03");

inline const QString kSeriesGroup = QStringLiteral("Series #s");
inline const QString kPlaceholdersGroup = QStringLiteral("Series # Placeholders");
inline const QString kPlaceholderChoices[] = {
    QStringLiteral("No placeholders"), QStringLiteral("2 digits"), QStringLiteral("3 digits"),
    QStringLiteral("4 digits"), QStringLiteral("5 digits")};
inline const QString kSpacingGroup = QStringLiteral("Auto-Spacing");
inline const QString kSpacingChoices[] = {QStringLiteral("Insert a space before the series #"),
                                          QStringLiteral("Insert a dash before the series #"),
                                          QStringLiteral("No spacing")};
// The spacing sample is this name with the separator before the number.
inline const QString kSpacingSampleBase = QStringLiteral("Filename");
inline const QString kSpacingSampleNumber = QStringLiteral("01.JPG");
inline const QString kAutoResetSeries = QStringLiteral(
    "Automatically reset the 'Next Series #' to 1 after completing a batch renaming operation");

inline const QString kToolTipsGroup = QStringLiteral("Tool Tips");
inline const QString kShowToolTips = QStringLiteral("Show Tool Tips");

inline const QString kPreviewGroup = QStringLiteral("Preview Window");
inline const QString kLargeView = QStringLiteral("Large View (ignores proportion)");
inline const QString kThumbnailView = QStringLiteral("Thumbnail View (maintains proportion)");
inline const QString kAutoPreview = QStringLiteral("Automatically show preview");

// The only messages of the options window, all with the information icon.
inline const QString kRestartForFonts =
    QStringLiteral("When turning this option off, you must restart Renvale for the change to take effect.");
inline const QString kQuickTipsRestored = QStringLiteral("Quick Tips have been restored.");
inline const QString kDirectShowEnabled = QStringLiteral("DirectShow bug work-around has been enabled.");
inline const QString kDirectShowDisabled = QStringLiteral("DirectShow bug work-around has been disabled.");

}  // namespace renvale::shell::texts

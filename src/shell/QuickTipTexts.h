#pragma once

#include <QString>

// The quick-tip window's texts and the tips themselves, kept exactly as the
// program shows them.
namespace renvale::shell::texts {

inline const QString kQuickTipCaption = QStringLiteral("Quick Tip");
inline const QString kQuickTipDesignText = QStringLiteral("Quick Tips");
inline const QString kNoMoreTip = QStringLiteral("Don't show me this Quick Tip again");
inline const QString kTipsOff = QStringLiteral("Don't show me ANY Quick Tips again");
inline const QString kQuickTipOk = QStringLiteral("OK");
// The icon shows no text of its own; this is what a screen reader says.
inline const QString kTipIconName = QStringLiteral("Information");

inline const QString kTipsOffTitle = QStringLiteral("Quick Tips");
inline const QString kTipsOffWarning = QStringLiteral(
    "Choosing this option will turn off ALL Quick Tips.  Whether you are new to Renvale, or new to this version "
    "(some things have changed!), it is recommended that you leave them on for a while (feel free to turn them off "
    "individually as you learn the features though).  Should you decide to turn them back on later, you can do so "
    "from the 'Tools|Program Options' menu.");
inline const QString kAllTipsTurnedOff = QStringLiteral("All Quick Tips have been turned off.");

// Tip n is kQuickTips[n - 1]. 19 and 20 have no text and are never shown.
// A blank line parts the topics of one tip.
inline const char* const kQuickTips[] = {
    // 1: the first start
    "Welcome to Renvale!  To get started, simply browse to a folder where you keep your pictures (a memory card "
    "works just as well), then click a file in the File List to select it, or select two or more files to rename "
    "them all at once in Batch Mode.\n\n"
    "Also note that no changes to the files themselves are made until you click [Rename/Done] in individual mode, "
    "or [Start Batch Renaming] in Batch Mode, so feel free to experiment.\n\n"
    "Buttons with a '+' in them denotes that clicking them will display a menu of further choices.\n\n"
    "If you'd like to rename files that Renvale doesn't support (documents, or anything else that is not a "
    "picture), make sure 'All Files' is chosen under 'File Filter & Extensions' in the 'Tools|Program Options' "
    "menu, and they are renamed just like pictures.",
    // 2: EXIF+
    "EXIF stands for 'EXchangeable Image File' format: most digital cameras store the date and time a picture was "
    "taken, and often a serial number, inside each picture they write.\n\n"
    "When renaming files individually, clicking this button inserts the date or time the selected picture was "
    "taken; in Batch Mode it inserts a code such as %DATE% that is replaced by each file's own date when the "
    "files are renamed.\n\n"
    "Note:  Not all images contain this information (edited or scanned pictures often lose it); for those the "
    "date of the file itself is used.\n\n"
    "You can find options for EXIF Date & Time in the 'Tools|Program Options' menu.\n\n"
    "You can also view more detailed EXIF information about the selected picture from this button as well.",
    // 3: Orig. Filename
    "Clicking the [Original Filename] button allows you to insert the original filename into the 'New Filename' "
    "box (without its extension), so that you can add to a name rather than replace it; in Batch Mode each file "
    "keeps its own original name.",
    // 4: Insert+
    "Clicking the [Insert+] button allows you to insert various commonly-used words or separators, such as ' - ', "
    "' & ', ' at ' or ' with ', at the cursor in the 'New Filename' box.",
    // 5: (Series #)
    "Clicking the [Series #] button allows you to insert a series # into the 'New Filename' box; each file renamed "
    "takes the number shown in the 'Next Series #' box, and the box moves on to the next one.\n\n"
    "You can find options for the Series # in the 'Tools|Program Options' menu.",
    // 6: DEL
    "Clicking the [DEL] button allows you to 'delete' the currently selected file(s) by sending them to the Trash, "
    "after asking you first; a file deleted by mistake can be brought back from the Trash.",
    // 7: Revert
    "Clicking the [Revert] button will change the 'New Filename' back to the original filename of the selected "
    "file, undoing whatever you typed or inserted.\n\n"
    "Remember, no filenames are changed UNTIL you click [Rename/Done] in individual mode, or [Start Batch Renaming] "
    "in Batch Mode.",
    // 8: Clear
    "Clicking the [Clear] button will clear the 'New Filename' box, so that you can build a new name from "
    "scratch.\n\n"
    "Remember, no filenames are changed until you click [Rename/Done] or [Start Batch Renaming].",
    // 9: Filename as Temp+
    "Clicking the [Filename as Temp+] button allows you to save the current 'New Filename' to one of the three "
    "'temp' buttons, so that you can insert it again with one click while renaming other files.",
    // 10: Rename/Done
    "Click the [Rename/Done] button after you are finished creating the new filename; only then is the selected "
    "file renamed.\n\n"
    "Note that after renaming a file, the File List is refreshed and the renamed file is selected again, so you "
    "can see its new name at once.",
    // 11: custom buttons
    "LEFT-clicking on a 'custom' button inserts that button's text into the 'New Filename' box.\n\n"
    "RIGHT-clicking on a 'custom' button allows you to edit the text the button holds; custom buttons remember "
    "their text from one session to the next.\n\n"
    "If you have several different subjects that you like to photograph (such as kids, pets or holidays), save a "
    "set of custom buttons for each of them as a template from the 'Tools|Manage Templates' menu.",
    // 12: temp buttons
    "LEFT-clicking on a 'temp' button inserts that button's text into the 'New Filename' box.\n\n"
    "RIGHT-clicking on a 'temp' button allows you to edit the text it holds; temp buttons are emptied when "
    "Renvale closes.\n\n"
    "Please note that when saving and loading templates, only the 'custom' buttons are saved and loaded; the "
    "'temp' buttons are left as they are.",
    // 13: the New Filename box
    "Welcome to the easiest and fastest file renamer available for your digital camera pictures!\n\n"
    "This is where you enter the new filename for the currently selected file: type it, or build it with the "
    "buttons around the box, then click [Rename/Done] (or press Enter).",
    // 14: the Next Series # box
    "The 'Next Series #' box allows you to adjust which number is next in a series; type any number to start "
    "from there.\n\n"
    "You can change the formatting of the series # (such as 01, 001, etc) by going to the 'Tools|Program Options' "
    "menu.\n\n"
    "You can quickly reset the Next Series # to 1 by double-clicking on the 'Next Series #' box.",
    // 15: batch renaming
    "When processing many files, you need to be sure that all filenames will be unique, or Renvale will have to "
    "ask you about each name that is already taken; include the EXIF time with seconds, or a Series #, in the "
    "base filename.\n\n"
    "You can find options for the Series # in the 'Tools|Program Options' menu.",
    // 16: Transfer
    "Clicking the [Transfer] button allows you to move or copy the currently selected file(s) to another folder, "
    "and to choose what happens when a file of the same name is already there.\n\n"
    "MOVING a file means that once it is copied to the destination folder, it is deleted from the folder it came "
    "from; COPYING leaves the original where it was.",
    // 17: Filename Search & Replace
    "Renvale's 'Filename Search & Replace' is a powerful function that allows you to replace up to six pieces of "
    "text in the names of all selected files at once, for example to change 'IMG_' into 'Holiday '.",
    // 18: Map Network Drive
    "This function allows you to assign a local drive letter to a drive or folder on your network, such as a "
    "shared folder on another computer or a network storage box; on this system the share is given a local "
    "folder instead, which appears in the drive list so that you can browse and rename its files like any other.",
    // 19, 20: none
    "",
    "",
    // 21: unique filenames
    "The best way to ensure that filenames will be unique is to insert a Series # at the end of the base filename "
    "(click [Series #]), so that every file gets a number of its own.",
};

}  // namespace renvale::shell::texts

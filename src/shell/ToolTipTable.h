#pragma once

#include <QString>
#include <array>

namespace renvale::shell {

struct ToolTipEntry {
  const char* objectName;
  const char* text;
};

// The tool tip of each control, switched on and off as a whole by the
// "ToolTips" setting. Control arrays share one entry.
inline constexpr std::array<ToolTipEntry, 28> kToolTips{{
    {"Drive1", "Click to choose a drive"},
    {"Dir1", "Double-click to choose a folder"},
    {"File1", "Click to choose a file"},
    {"Command1", "Click to add to filename, Right-click to edit"},
    {"OrigFN", "Insert Original Filename"},
    {"exif", "Insert or View EXIF & ID3 data"},
    {"ShPrev", "Show preview of selected file"},
    {"UnSupported", "Show preview of selected file using external application"},
    {"Command5", "Insert commonly-used words"},
    {"Command6", "Insert series #"},
    {"Command3", "Click to store text"},
    {"Text3", "Double-click to clear"},
    // The box really resets to 1, so its tip says so.
    {"Text2", "Adjust next series # (Double-click to reset to 1)"},
    {"Text1", "Type new filename or click buttons to 'build' one"},
    {"Command4", "Delete selected file(s)"},
    {"Command13", "Move or copy selected file(s)"},
    {"Command14", "Select all files in this folder"},
    {"Command7", "Revert to original filename"},
    {"Command8", "Clear 'New Filename' box"},
    {"Command10", "Save current 'New Filename' to a Temp button"},
    {"Command2", "Save the changes made to the filename"},
    {"Command11", "Rename all selected files"},
    {"Command12", "Get help with batch renaming"},
    {"Check1", "Generate random series #s to mix up the file order"},
    {"toggleBrowseA", "Switch to Simple Folder Browsing"},
    {"toggleBrowseS", "Switch to Advanced Folder Browsing"},
    {"Command15", "Choose a folder containing files to work with"},
    {"CmdRefresh", "Refresh Files List"},
}};

}  // namespace renvale::shell

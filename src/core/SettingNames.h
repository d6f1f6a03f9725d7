#pragma once

#include <QString>

// Every name and fixed text the settings file uses. The names are part of
// the file format: a user's settings from an earlier version must still load,
// so none of these may change.
namespace renvale::core::setting {

// Keys: "" is the top level, kLastCustom the group of custom button captions.
inline constexpr QLatin1StringView kMainKey{""};
inline constexpr QLatin1StringView kLastCustom{"Last Custom"};

inline constexpr QLatin1StringView kWindowTop{"Window Top"};
inline constexpr QLatin1StringView kWindowLeft{"Window Left"};
inline constexpr QLatin1StringView kWindowHeight{"Window Height"};
inline constexpr QLatin1StringView kWindowWidth{"Window Width"};
inline constexpr QLatin1StringView kBrowseMode{"BrowseMode"};
inline constexpr QLatin1StringView kAutoPreview{"AutoPreview"};
inline constexpr QLatin1StringView kPreviewStyle{"PreviewStyle"};
inline constexpr QLatin1StringView kFileFilter{"FileFilter"};
inline constexpr QLatin1StringView kForceLCE{"ForceLCE"};
inline constexpr QLatin1StringView kResizeFonts{"ResizeFonts"};
inline constexpr QLatin1StringView kSeriesSpacing{"SeriesSpacing"};
inline constexpr QLatin1StringView kAutoResetSeries{"AutoResetSeries"};
inline constexpr QLatin1StringView kExifDate{"EXIFDate"};
inline constexpr QLatin1StringView kExifTime{"EXIFTime"};
inline constexpr QLatin1StringView kToolTips{"ToolTips"};
inline constexpr QLatin1StringView kPlaceholders{"Placeholders"};
inline constexpr QLatin1StringView kLastFolder{"Last Folder"};
inline constexpr QLatin1StringView kTransferMode{"Transfer Mode"};
inline constexpr QLatin1StringView kMoveOption{"Move Option"};
inline constexpr QLatin1StringView kLastMovePath{"Last Move Path"};
inline constexpr QLatin1StringView kPlayQT{"PlayQT"};
inline constexpr QLatin1StringView kPlayRM{"PlayRM"};
inline constexpr QLatin1StringView kFixDirectShow{"FixDirectShow"};
inline constexpr QLatin1StringView kNoTipsAtAll{"NoTipsAtAll"};

// Numbered families: the prefix followed by the number, no leading zeros.
inline constexpr QLatin1StringView kCustomPrefix{"Custom "};                 // "Custom 1"
inline constexpr QLatin1StringView kFolderHistoryPrefix{"Folder History "};  // "Folder History 15"
inline constexpr QLatin1StringView kNoTipPrefix{"NoTip"};                    // "NoTip7"
// A custom button with no caption falls back to this, with no blank: "Custom4".
inline constexpr QLatin1StringView kCustomCaptionPrefix{"Custom"};

// Stored texts.
inline constexpr QLatin1StringView kOn{"1"};
inline constexpr QLatin1StringView kOff{"0"};
inline constexpr QLatin1StringView kSpacingBlank{" "};
inline constexpr QLatin1StringView kSpacingDash{"-"};
inline constexpr QLatin1StringView kSpacingNone{"X"};
inline constexpr QLatin1StringView kDefaultExifDate{"yyyy-mm-dd"};
inline constexpr QLatin1StringView kDefaultExifTime{"hh-mm-ss"};

inline QString Numbered(QLatin1StringView prefix, int n) { return prefix + QString::number(n); }

}  // namespace renvale::core::setting

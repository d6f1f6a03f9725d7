#pragma once

namespace renvale::metadata {

// Every fixed text the EXIF tag reader produces: its status texts and the
// words and units of the values it answers. Callers compare the no-EXIF
// status only by its last ten characters, "not found.", so every other
// status text must end differently.
struct ExifTexts {
  // Status texts.
  static constexpr const char* kNoExif = "EXIF data not found.";
  static constexpr const char* kCannotOpen = "Cannot open the file for reading: ";  // + system text
  static constexpr const char* kCannotRead = "Cannot read the file: ";              // + system text
  static constexpr const char* kDamagedHeader = "The EXIF data is damaged: its TIFF header is invalid.";
  static constexpr const char* kDamagedIfd0 = "The EXIF data is damaged: its first directory lies outside it.";

  // "Orientation", by EXIF value 1 to 8 (index 0 unused). The preview looks
  // at the first three letters only: "Nor" leaves the picture alone, "Clo"
  // turns it a quarter clockwise, "Cou" a quarter counter-clockwise, and any
  // other word a half turn. Each word says what the stored picture needs to
  // stand upright. Values outside 1 to 8 give no text at all: a half turn
  // for a code no camera defines would do more harm than leaving it be.
  static constexpr const char* kOrientation[9] = {
      "",
      "Normal",
      "Mirrored left to right",
      "Upside down (half turn)",
      "Mirrored top to bottom",
      "Mirrored left to right, then counter-clockwise quarter turn",
      "Clockwise quarter turn",
      "Mirrored left to right, then clockwise quarter turn",
      "Counter-clockwise quarter turn",
  };

  // "ExposureProgram", by EXIF value 0 to 8; other values give kUnknown.
  static constexpr const char* kExposureProgram[9] = {
      "Not defined",      "Manual",         "Normal program", "Aperture priority", "Shutter priority",
      "Creative program", "Action program", "Portrait mode",  "Landscape mode",
  };
  static constexpr const char* kUnknown = "Unknown (%1)";

  // "Flash": the parts of the bit field, joined by kFlashJoin. Bit 5 alone
  // says the camera has no flash; value 0 is the common "nothing happened".
  static constexpr const char* kFlashNone = "No flash";
  static constexpr const char* kFlashNoFunction = "No flash function";
  static constexpr const char* kFlashModes[4] = {"", "On", "Off", "Auto"};  // bits 3-4
  static constexpr const char* kFlashFired = "fired";
  static constexpr const char* kFlashNotFired = "did not fire";
  static constexpr const char* kFlashReturnNotDetected = "return not detected";  // bits 1-2 = 2
  static constexpr const char* kFlashReturnDetected = "return detected";          // bits 1-2 = 3
  static constexpr const char* kFlashRedEye = "red-eye reduction";                // bit 6
  static constexpr const char* kFlashJoin = ", ";
  static constexpr const char* kFlashUnknown = "Unknown";  // undefined bits set

  // Units: "f/5.6", "1/250 s", "0.5 s", "+0.67 EV", "50 mm".
  static constexpr const char* kFNumberPrefix = "f/";
  static constexpr const char* kSecondsSuffix = " s";
  static constexpr const char* kFractionPrefix = "1/";
  static constexpr const char* kEvSuffix = " EV";
  static constexpr const char* kMillimetreSuffix = " mm";
};

}  // namespace renvale::metadata

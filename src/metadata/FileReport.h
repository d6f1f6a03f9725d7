#pragma once

#include <QByteArray>
#include <QString>

namespace renvale::platform {
class FileSystem;
class MessagePort;
}  // namespace renvale::platform

namespace renvale::metadata {

// The two texts of the file information window.
struct FileReportTexts {
  QString exif;     // lines end in LF
  QString general;  // lines end in CR LF
};

// General facts about the file at `path`: size, dates, write protection and,
// for an ".mp3" name, its ID3 tag. A file that cannot be looked at shows a
// size of 0 and empty dates.
QString BuildGeneralInfo(platform::FileSystem& fs, const QByteArray& path);

// What the EXIF reader tells about `folder` + `rawName`, or, when it gives
// no "DateTimeOriginal", where the exposure date will come from. A reader
// error shows "EXIF Error: " + status and gives an empty text.
QString BuildExifReport(platform::FileSystem& fs, platform::MessagePort& messages,
                        const QByteArray& folder, const QByteArray& rawName);

// The explanation lines for a file without "DateTimeOriginal", chosen by the
// head scan's result and the last three letters of the name (lower case).
struct MissingExifFacts {
  QString name;      // the file name as shown
  QString scan;      // ScanExifDateInHead's result
  QString created;   // FileCreatedText
  QString modified;  // FileModifiedText
};
QString ExplainMissingExif(const MissingExifFacts& facts);

// Both texts for one file.
FileReportTexts BuildFileReport(platform::FileSystem& fs, platform::MessagePort& messages,
                                const QByteArray& folder, const QByteArray& rawName);

}  // namespace renvale::metadata

#pragma once

#include <QByteArray>
#include <QString>

namespace renvale::platform {
class FileSystem;
class MessagePort;
}  // namespace renvale::platform

namespace renvale::metadata {

// How the preview turns a picture to stand it upright.
enum class PreviewTurn { None, QuarterCounterClockwise, QuarterClockwise, Half };

// The turn for the reader's "Orientation" word, told by its first three
// letters (case matters): "Nor" and an empty word need none, "Cou" a quarter
// turn counter-clockwise, "Clo" a quarter turn clockwise. Every other word,
// the mirrored ones included, gives a half turn: a deliberate catch-all.
PreviewTurn PreviewTurnForOrientation(const QString& word);

// Reads the orientation of `folder` + `rawName` with the reader's status
// rule ("EXIF Error: " message, then no turn).
PreviewTurn ExifOrientationForPreview(platform::FileSystem& fs, platform::MessagePort& messages,
                                      const QByteArray& folder, const QByteArray& rawName);

}  // namespace renvale::metadata

#include "metadata/PreviewOrientation.h"

#include "metadata/ExifReader.h"
#include "metadata/ExifStatusCheck.h"
#include "metadata/MetadataTexts.h"
#include "platform/FileName.h"

namespace renvale::metadata {

PreviewTurn PreviewTurnForOrientation(const QString& word) {
  if (word.isEmpty()) return PreviewTurn::None;
  const QString start = word.left(3);
  if (start == texts::kOrientationUpright) return PreviewTurn::None;
  if (start == texts::kOrientationCounter) return PreviewTurn::QuarterCounterClockwise;
  if (start == texts::kOrientationClockwise) return PreviewTurn::QuarterClockwise;
  return PreviewTurn::Half;
}

PreviewTurn ExifOrientationForPreview(platform::FileSystem& fs, platform::MessagePort& messages,
                                      const QByteArray& folder, const QByteArray& rawName) {
  ExifReader reader;
  if (!LoadExifChecked(reader, fs, messages, platform::JoinPath(folder, rawName))) {
    return PreviewTurn::None;
  }
  return PreviewTurnForOrientation(reader.Tag(texts::kTagOrientation));
}

}  // namespace renvale::metadata

#include "metadata/PreviewOrientation.h"

#include "metadata/MetadataTexts.h"

namespace renvale::metadata {

PreviewTurn PreviewTurnForOrientation(const QString& word) {
  if (word.isEmpty()) return PreviewTurn::None;
  const QString start = word.left(3);
  if (start == texts::kOrientationUpright) return PreviewTurn::None;
  if (start == texts::kOrientationCounter) return PreviewTurn::QuarterCounterClockwise;
  if (start == texts::kOrientationClockwise) return PreviewTurn::QuarterClockwise;
  return PreviewTurn::Half;
}

}  // namespace renvale::metadata

#pragma once

#include <QString>

namespace renvale::metadata {

// How the preview turns a picture to stand it upright.
enum class PreviewTurn { None, QuarterCounterClockwise, QuarterClockwise, Half };

// The turn for the reader's "Orientation" word, told by its first three
// letters (case matters): "Nor" and an empty word need none, "Cou" a quarter
// turn counter-clockwise, "Clo" a quarter turn clockwise. Every other word,
// the mirrored ones included, gives a half turn: a deliberate catch-all.
PreviewTurn PreviewTurnForOrientation(const QString& word);

}  // namespace renvale::metadata

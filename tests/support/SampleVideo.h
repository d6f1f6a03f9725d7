#pragma once

#include <QByteArray>
#include <QColor>

namespace renvale::test {

// A playable AVI: `frames` Motion-JPEG frames of `width` x `height` at 10
// per second, every frame filled with `color`, so that a test can tell a
// frame on screen from black.
QByteArray MakeMotionJpegAvi(int width, int height, int frames, QColor color);

}  // namespace renvale::test

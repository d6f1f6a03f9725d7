#include "core/WindowPlacement.h"

#include <QRegularExpression>
#include <algorithm>
#include <climits>
#include <cmath>

namespace renvale::core {

namespace {

constexpr double kTwipsPerInch = 1440.0;
constexpr int kSmallestStoredSize = 1000;
// How much of the window must stay on screen past its top-left corner.
constexpr int kReachableMargin = 500;

// Clamped first: a hand-edited "99999999999" must not overflow.
int RoundToInt(double value) {
  return static_cast<int>(std::lround(std::clamp(value, double{INT_MIN}, double{INT_MAX})));
}

int FloorAt(int value, int floor) { return value < 0 ? floor : value; }

bool BothPresent(const QString& a, const QString& b) { return !a.isEmpty() && !b.isEmpty(); }

TwipRect KeptReachable(TwipRect rect, TwipSize screen) {
  if (rect.top > screen.height - kReachableMargin) rect.top = 0;
  if (rect.left > screen.width - kReachableMargin) rect.left = 0;
  return rect;
}

}  // namespace

TwipRect DesignPlacement(TwipSize screen) {
  return {(screen.width - kDesignSize.width) / 2, (screen.height - kDesignSize.height) / 2,
          kDesignSize.width, kDesignSize.height};
}

TwipRect ApplyStoredPlacement(const StoredPlacement& stored, TwipRect design, TwipSize screen) {
  TwipRect rect = design;
  if (BothPresent(stored.top, stored.left)) {
    rect.top = FloorAt(TwipsFromText(stored.top), 0);
    rect.left = FloorAt(TwipsFromText(stored.left), 0);
  }
  if (BothPresent(stored.height, stored.width)) {
    rect.height = FloorAt(TwipsFromText(stored.height), kSmallestStoredSize);
    rect.width = FloorAt(TwipsFromText(stored.width), kSmallestStoredSize);
  }
  return KeptReachable(rect, screen);
}

StoredPlacement PlacementTexts(TwipRect placement) {
  return {QString::number(placement.top), QString::number(placement.left),
          QString::number(placement.height), QString::number(placement.width)};
}

int TwipsFromText(const QString& text) {
  static const QRegularExpression leadingNumber(QStringLiteral(R"(^\s*([+-]?(\d+\.?\d*|\.\d+)))"));
  const QRegularExpressionMatch match = leadingNumber.match(text);
  if (!match.hasMatch()) return 0;
  // QString::toDouble ignores the locale, so "1234.5" reads alike everywhere.
  return RoundToInt(match.captured(1).toDouble());
}

int PixelsToTwips(int pixels, double logicalDpi) {
  return RoundToInt(pixels * kTwipsPerInch / logicalDpi);
}

int TwipsToPixels(int twips, double logicalDpi) {
  return RoundToInt(twips * logicalDpi / kTwipsPerInch);
}

}  // namespace renvale::core

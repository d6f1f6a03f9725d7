#pragma once

#include <QString>

// The main window's placement, worked out in twips (1440 per inch) so the
// stored figures mean the same thing on screens of any density.
namespace renvale::core {

struct TwipSize {
  int width = 0;
  int height = 0;
  bool operator==(const TwipSize&) const = default;
};

struct TwipRect {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
  bool operator==(const TwipRect&) const = default;
};

// The four placement values as stored; empty when missing.
struct StoredPlacement {
  QString top, left, height, width;
};

inline constexpr TwipSize kDesignSize{9735, 8265};

// The window as it starts before any setting is read: design size, centred.
TwipRect DesignPlacement(TwipSize screen);

// Applies the stored placement over the design placement and then keeps the
// window's top-left corner on the screen.
TwipRect ApplyStoredPlacement(const StoredPlacement& stored, TwipRect design, TwipSize screen);

// The placement as it is stored at shutdown.
StoredPlacement PlacementTexts(TwipRect placement);

// Reads a stored number the same way in every locale: the leading decimal
// number of the text ("12.5x" is 12.5, rounded to 13), 0 when there is none.
int TwipsFromText(const QString& text);

int PixelsToTwips(int pixels, double logicalDpi);
int TwipsToPixels(int twips, double logicalDpi);

}  // namespace renvale::core

#pragma once

#include <QSizeF>

namespace lumetra {

// The patient sits this far from the screen, or twice as far as a mirror.
inline constexpr double chartDistanceMm = 3000.0;

// A standard bank card (ISO/IEC 7810 ID-1), the ruler everybody carries.
inline constexpr double cardWidthMm = 85.60;
inline constexpr double cardHeightMm = 53.98;

// Bounds of a believable screen density, in device pixels per millimetre.
inline constexpr double minPixelsPerMm = 1.0;
inline constexpr double maxPixelsPerMm = 40.0;

// Decimal acuity in tenths, as the French scale labels its lines: 1/10 to 10/10.
inline constexpr int smallestTenths = 1;
inline constexpr int largestTenths = 10;

// Height of a letter that subtends 5 minutes of arc at that distance (a 10/10 letter).
double tenTenthsHeightMm(double distanceMm = chartDistanceMm);

// Height of the letters of the line of acuity tenths/10, seen from the chart distance.
double letterHeightMm(int tenths);

// The same height on a screen of that density, in device pixels.
double letterHeightPx(int tenths, double pixelsPerMm);

// Density told by a card rectangle that the user matched to a real card.
double pixelsPerMmFromCardWidth(double cardWidthPx);

// The card rectangle to draw at that density, in device pixels.
QSizeF cardSizePx(double pixelsPerMm);

// First guess from what the screen reports: its dots per inch in logical pixels and
// its device pixel ratio. A missing or absurd report gives a common 96 dpi screen.
double guessPixelsPerMm(double physicalDotsPerInch, double devicePixelRatio);

// Keeps a density within the believable bounds and so that the card fits in the
// width available; a width too narrow for any card still gives the lowest density.
double clampPixelsPerMm(double pixelsPerMm, double availableWidthPx);

} // namespace lumetra

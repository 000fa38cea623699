#include "acuity.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace lumetra {

namespace {

constexpr double fiveArcMinutesRad = 5.0 / 60.0 * std::numbers::pi / 180.0;
constexpr double mmPerInch = 25.4;
constexpr double commonDotsPerInch = 96.0;

bool believable(double pixelsPerMm)
{
    return std::isfinite(pixelsPerMm) && pixelsPerMm >= minPixelsPerMm &&
           pixelsPerMm <= maxPixelsPerMm;
}

} // namespace

double tenTenthsHeightMm(double distanceMm)
{
    // The letter stands across the line of sight: half its height over the distance is
    // the tangent of half the angle.
    return 2.0 * distanceMm * std::tan(fiveArcMinutesRad / 2.0);
}

double letterHeightMm(int tenths)
{
    const int clamped = std::clamp(tenths, smallestTenths, largestTenths);
    return tenTenthsHeightMm() * 10.0 / clamped;
}

double letterHeightPx(int tenths, double pixelsPerMm)
{
    return letterHeightMm(tenths) * pixelsPerMm;
}

double pixelsPerMmFromCardWidth(double cardWidthPx)
{
    return cardWidthPx / cardWidthMm;
}

QSizeF cardSizePx(double pixelsPerMm)
{
    return {cardWidthMm * pixelsPerMm, cardHeightMm * pixelsPerMm};
}

double guessPixelsPerMm(double physicalDotsPerInch, double devicePixelRatio)
{
    const double ratio =
        std::isfinite(devicePixelRatio) && devicePixelRatio > 0 ? devicePixelRatio : 1.0;
    const double reported = physicalDotsPerInch * ratio / mmPerInch;
    return believable(reported) ? reported : commonDotsPerInch * ratio / mmPerInch;
}

double clampPixelsPerMm(double pixelsPerMm, double availableWidthPx)
{
    const double widest = std::min(maxPixelsPerMm, availableWidthPx / cardWidthMm);
    const double wanted = std::isfinite(pixelsPerMm) ? pixelsPerMm : minPixelsPerMm;
    // Not std::clamp: its bounds may cross on a tiny window.
    return std::max(minPixelsPerMm, std::min(wanted, widest));
}

} // namespace lumetra

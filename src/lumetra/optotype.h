#pragma once

#include <QChar>
#include <QPainterPath>
#include <QRectF>

namespace lumetra {

// The outline of a letter whose inked height is exactly the cell's height, centred in
// the cell. The letters are drawn from a plain bold sans-serif (DejaVu Sans Bold, which
// the program's packages bring): its strokes come close to the fifth of the height that
// Sloan letters have, and scaling the outline itself, rather than choosing a font size,
// makes the height exact whatever the font's metrics.
QPainterPath letterPath(QChar letter, const QRectF& cell);

} // namespace lumetra

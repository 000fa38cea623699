#pragma once

#include <QList>
#include <QRectF>
#include <QString>
#include <QTransform>

namespace lumetra {

// What the chart shows; the keys change it.
struct ChartState {
    // The line being read, by its acuity in tenths; the chart opens on the largest.
    int tenths = 1;
    // All the lines that fit, or the current line alone.
    bool wholeChart = true;
    // Reversed left to right, to be read in a mirror at half the distance.
    bool mirrored = false;

    void larger();
    void smaller();
};

// One line of letters placed in the chart area, in device pixels.
struct ChartLine {
    int tenths = 0;
    double letterHeightPx = 0;
    // The square cell of each letter; the letter's height fills it.
    QList<QRectF> cells;

    double centreY() const { return cells.isEmpty() ? 0 : cells.first().center().y(); }
};

// The lines to draw in an area of that size (device pixels) at that density, keeping
// labelWidthPx free on each side for the acuity labels. The current line is always
// there; the whole chart adds the smaller lines below it, then the larger ones above,
// as long as they fit with a margin. The block is centred in the height.
QList<ChartLine> layoutChart(const ChartState& state, QSizeF areaPx, double pixelsPerMm,
                             double labelWidthPx);

// What tells, at the chart's foot, that smaller lines follow below those shown; empty
// when the last line is shown, or one line alone.
QString moreLinesBelow(const ChartState& state, const QList<ChartLine>& lines);

// Letters of that height that fit in a line of that width, one letter's width apart:
// five at most, and at least one even when it is wider than the screen.
int lettersThatFit(double letterHeightPx, double widthPx);

// The letters of a line: distinct, from the Sloan set, the same for the same seed.
QString lineLetters(int tenths, quint32 seed, int count);

// Left and right swapped across an area of that width.
QTransform mirrorTransform(double widthPx);

// The label of a line, as French charts write it.
QString acuityLabel(int tenths);

} // namespace lumetra

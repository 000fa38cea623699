#include "chart.h"

#include "acuity.h"

#include <QRandomGenerator>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumetra {

namespace {

constexpr int maxLettersPerLine = 5;

// The Sloan letters of the ETDRS charts, which French clinics use beside Monoyer's:
// ten letters of nearly equal legibility.
constexpr QStringView sloanLetters = u"CDHKNORSVZ";

// A line and the gap above it are both as tall as its letters, as on printed charts;
// the first line of a block has no gap above it.
double blockHeight(int first, int last, double pixelsPerMm)
{
    double height = letterHeightPx(first, pixelsPerMm);
    for (int tenths = first + 1; tenths <= last; ++tenths)
        height += 2.0 * letterHeightPx(tenths, pixelsPerMm);
    return height;
}

ChartLine placeLine(int tenths, double top, QSizeF areaPx, double pixelsPerMm, double labelWidthPx)
{
    ChartLine line;
    line.tenths = tenths;
    line.letterHeightPx = letterHeightPx(tenths, pixelsPerMm);
    const double size = line.letterHeightPx;
    const int count = lettersThatFit(size, areaPx.width() - 2.0 * labelWidthPx);
    // Centred on the whole width, so that the mirror image puts it in the same place.
    const double left = (areaPx.width() - (2 * count - 1) * size) / 2.0;
    for (int i = 0; i < count; ++i)
        line.cells.append(QRectF(left + 2 * i * size, top, size, size));
    return line;
}

} // namespace

void ChartState::larger()
{
    tenths = std::max(smallestTenths, tenths - 1);
}

void ChartState::smaller()
{
    tenths = std::min(largestTenths, tenths + 1);
}

QList<ChartLine> layoutChart(const ChartState& state, QSizeF areaPx, double pixelsPerMm,
                             double labelWidthPx)
{
    const int current = std::clamp(state.tenths, smallestTenths, largestTenths);
    int first = current;
    int last = current;
    if (state.wholeChart) {
        // Room above and below for one more of the smallest line, off the screen's edges.
        const double room = areaPx.height() - 2.0 * letterHeightPx(largestTenths, pixelsPerMm);
        const auto fits = [&](int from, int to) {
            return blockHeight(from, to, pixelsPerMm) <= room;
        };
        while (last < largestTenths && fits(first, last + 1))
            ++last;
        while (first > smallestTenths && fits(first - 1, last))
            --first;
    }
    QList<ChartLine> lines;
    double top = (areaPx.height() - blockHeight(first, last, pixelsPerMm)) / 2.0;
    for (int tenths = first; tenths <= last; ++tenths) {
        if (tenths > first)
            top += letterHeightPx(tenths, pixelsPerMm);
        lines.append(placeLine(tenths, top, areaPx, pixelsPerMm, labelWidthPx));
        top += lines.last().letterHeightPx;
    }
    return lines;
}

QString moreLinesBelow(const ChartState& state, const QList<ChartLine>& lines)
{
    if (!state.wholeChart || lines.isEmpty() || lines.last().tenths >= largestTenths)
        return {};
    const int next = lines.last().tenths + 1;
    const QString range = next == largestTenths
                              ? acuityLabel(next)
                              : acuityLabel(next) + u" à "_s + acuityLabel(largestTenths);
    return u"▼ "_s + range + u" plus bas"_s;
}

int lettersThatFit(double letterHeightPx, double widthPx)
{
    if (!(letterHeightPx > 0))
        return 1;
    // n letters and n - 1 gaps of the same width: (2n - 1) widths.
    const double fit = (widthPx / letterHeightPx + 1.0) / 2.0;
    if (!(fit >= 1.0))
        return 1;
    return fit >= maxLettersPerLine ? maxLettersPerLine : static_cast<int>(fit);
}

QString lineLetters(int tenths, quint32 seed, int count)
{
    QString pool = sloanLetters.toString();
    QRandomGenerator random(seed ^ (static_cast<quint32>(tenths) * 0x9e3779b9U));
    const int wanted = std::clamp(count, 0, static_cast<int>(pool.size()));
    // The first letters of a partial shuffle: no letter twice in a line.
    for (int i = 0; i < wanted; ++i) {
        const auto pick = static_cast<int>(random.bounded(static_cast<quint32>(pool.size() - i)));
        std::swap(pool[i], pool[i + pick]);
    }
    return pool.left(wanted);
}

QTransform mirrorTransform(double widthPx)
{
    return {-1, 0, 0, 1, widthPx, 0};
}

QString acuityLabel(int tenths)
{
    return QString::number(tenths) + u"/10"_s;
}

} // namespace lumetra

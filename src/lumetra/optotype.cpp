#include "optotype.h"

#include <QFont>
#include <QHash>
#include <QTransform>

using namespace Qt::StringLiterals;

namespace lumetra {

namespace {

// Outlines are taken once at a large size, unhinted, so that nothing is snapped to
// the pixels of that size; drawing only scales them.
QPainterPath referenceOutline(QChar letter)
{
    static QHash<QChar, QPainterPath> cache;
    const auto found = cache.constFind(letter);
    if (found != cache.constEnd())
        return *found;
    QFont font(u"DejaVu Sans"_s);
    font.setStyleHint(QFont::SansSerif);
    font.setBold(true);
    font.setPixelSize(1000);
    font.setHintingPreference(QFont::PreferNoHinting);
    QPainterPath path;
    path.addText(0, 0, font, QString(letter));
    cache.insert(letter, path);
    return path;
}

} // namespace

QPainterPath letterPath(QChar letter, const QRectF& cell)
{
    const QPainterPath outline = referenceOutline(letter);
    const QRectF inked = outline.boundingRect();
    if (inked.height() <= 0 || cell.height() <= 0)
        return {};
    const double scale = cell.height() / inked.height();
    QTransform place;
    place.translate(cell.center().x(), cell.center().y());
    place.scale(scale, scale);
    place.translate(-inked.center().x(), -inked.center().y());
    return place.map(outline);
}

} // namespace lumetra

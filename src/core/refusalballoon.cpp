#include "refusalballoon.h"

#include "platform.h"
#include "tipwidget.h"
#include "updownarrows.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QScreen>

#include <algorithm>
#include <optional>
#include <vector>

namespace vorkan {

namespace {

constexpr int gap = 2;

// What a balloon must leave in view: what the user reads, types in, presses or steps,
// and the menu bar. Lines and frames may be covered for a moment.
bool mustStayInView(const QWidget& widget)
{
    return qobject_cast<const QLabel*>(&widget) || qobject_cast<const QLineEdit*>(&widget) ||
           qobject_cast<const QAbstractButton*>(&widget) ||
           qobject_cast<const QComboBox*>(&widget) ||
           qobject_cast<const QAbstractSlider*>(&widget) ||
           qobject_cast<const QGroupBox*>(&widget) || qobject_cast<const QMenuBar*>(&widget) ||
           dynamic_cast<const UpDownArrows*>(&widget);
}

// Those controls of the field's window, the field included, on the screen.
std::vector<QRect> keptInView(const QWidget& field)
{
    std::vector<QRect> rects;
    for (const QWidget* widget : field.window()->findChildren<QWidget*>())
        if (widget->isVisible() && !widget->isWindow() && mustStayInView(*widget))
            rects.emplace_back(widget->mapToGlobal(QPoint(0, 0)), widget->size());
    return rects;
}

// The places along one axis where a balloon of that length can rest: after the field
// (below it or right of it), before it, lined up with it, beside each control and
// against the screen's edges.
std::vector<int> restingPlaces(Qt::Orientation axis, int length, const QRect& field,
                               const QRect& screen, const std::vector<QRect>& controls)
{
    const auto start = [axis](const QRect& r) {
        return axis == Qt::Horizontal ? r.left() : r.top();
    };
    const auto end = [axis](const QRect& r) {
        return axis == Qt::Horizontal ? r.right() : r.bottom();
    };
    std::vector<int> places{end(field) + 1 + gap, start(field) - gap - length,
                            start(field),         end(field) + 1 - length,
                            start(screen),        end(screen) + 1 - length};
    for (const QRect& control : controls) {
        places.push_back(end(control) + 1 + gap);
        places.push_back(start(control) - gap - length);
    }
    return places;
}

// How far a box lies from the field, across and down.
int distance(const QRect& box, const QRect& field)
{
    const int across = std::max({0, field.left() - box.right(), box.left() - field.right()});
    const int down = std::max({0, field.top() - box.bottom(), box.top() - field.bottom()});
    return across + down;
}

// The box moved as little as needed to lie on the screen.
QRect heldOn(const QRect& screen, QRect box)
{
    box.moveLeft(std::max(screen.left(), std::min(box.left(), screen.right() + 1 - box.width())));
    box.moveTop(std::max(screen.top(), std::min(box.top(), screen.bottom() + 1 - box.height())));
    return box;
}

// The place nearest the field, below it first, where the balloon lies on the screen and
// covers nothing that must stay in view; below the field when no place is free.
QPoint balloonCorner(const QWidget& field, QSize size)
{
    const QRect rect(field.mapToGlobal(QPoint(0, 0)), field.size());
    const QRect screen =
        field.screen() ? field.screen()->availableGeometry() : availableScreenArea();
    const std::vector<QRect> controls = keptInView(field);
    const auto isFree = [&](const QRect& box) {
        return screen.contains(box) &&
               std::none_of(controls.begin(), controls.end(),
                            [&box](const QRect& control) { return control.intersects(box); });
    };
    const std::vector<int> lefts =
        restingPlaces(Qt::Horizontal, size.width(), rect, screen, controls);
    std::optional<QRect> best;
    for (const int top : restingPlaces(Qt::Vertical, size.height(), rect, screen, controls))
        for (const int left : lefts) {
            const QRect box(QPoint(left, top), size);
            if ((!best || distance(box, rect) < distance(*best, rect)) && isFree(box))
                best = box;
        }
    return (best ? *best : heldOn(screen, QRect(rect.bottomLeft() + QPoint(0, 1 + gap), size)))
        .topLeft();
}

} // namespace

void RefusalBalloon::show(const QString& why)
{
    if (!tip_)
        tip_ = new TipWidget(field_.window());
    tip_->showAt(why, balloonCorner(field_, tip_->sizeFor(why)), shownMs);
}

void RefusalBalloon::hide()
{
    if (tip_)
        tip_->hide();
}

const QLabel* RefusalBalloon::shown() const
{
    return tip_ && tip_->isVisible() ? tip_.data() : nullptr;
}

} // namespace vorkan

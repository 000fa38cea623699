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
#include <limits>
#include <optional>
#include <utility>
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

// Where the balloon can rest along one axis, and how far that leaves it from the field.
struct Place {
    int at;
    int off;
};

// The heights at which a balloon that tall can rest, nearest the field first: below the
// field, above it, level with it, next to each control and against the screen's edges.
std::vector<Place> restingTops(int height, const QRect& field, const QRect& screen,
                               const std::vector<QRect>& controls)
{
    std::vector<int> tops{field.bottom() + 1 + gap, field.top() - gap - height, field.top(),
                          screen.top(), screen.bottom() + 1 - height};
    for (const QRect& control : controls) {
        tops.push_back(control.bottom() + 1 + gap);
        tops.push_back(control.top() - gap - height);
    }
    std::vector<Place> places;
    for (const int top : tops)
        if (top >= screen.top() && top + height - 1 <= screen.bottom())
            places.push_back(
                {top, std::max({0, field.top() - (top + height - 1), top - field.bottom()})});
    std::stable_sort(places.begin(), places.end(),
                     [](const Place& a, const Place& b) { return a.off < b.off; });
    return places;
}

// In that band of the screen, the left edge nearest the field at which the balloon meets
// no control, nor comes within the gap of one, and how far across from the field it lies.
std::optional<Place> nearestLeft(const QRect& band, const QRect& field, const QRect& screen,
                                 const std::vector<QRect>& controls)
{
    std::vector<std::pair<int, int>> taken;
    for (const QRect& control : controls)
        if (control.top() <= band.bottom() + gap && control.bottom() >= band.top() - gap)
            taken.emplace_back(control.left() - gap, control.right() + gap);
    std::sort(taken.begin(), taken.end());
    std::optional<Place> nearest;
    const auto within = [&](int from, int to) {
        if (to < from)
            return;
        const int left = std::clamp(field.left(), from, to);
        const int off =
            std::max({0, field.left() - (left + band.width() - 1), left - field.right()});
        if (!nearest || off < nearest->off)
            nearest = Place{left, off};
    };
    int from = screen.left();
    for (const auto& [start, end] : taken) {
        within(from, start - band.width());
        from = std::max(from, end + 1);
    }
    within(from, screen.right() + 1 - band.width());
    return nearest;
}

// The box moved as little as needed to lie on the screen.
QRect heldOn(const QRect& screen, QRect box)
{
    box.moveLeft(std::max(screen.left(), std::min(box.left(), screen.right() + 1 - box.width())));
    box.moveTop(std::max(screen.top(), std::min(box.top(), screen.bottom() + 1 - box.height())));
    return box;
}

// The place nearest the field where the balloon lies on the screen and covers nothing
// that must stay in view; below the field when no place is free. Beside the field counts
// double, so that below it, then above it, come first.
QPoint balloonCorner(const QWidget& field, QSize size)
{
    const QRect rect(field.mapToGlobal(QPoint(0, 0)), field.size());
    const QRect screen =
        field.screen() ? field.screen()->availableGeometry() : availableScreenArea();
    const std::vector<QRect> controls = keptInView(field);
    QRect best = heldOn(screen, QRect(rect.bottomLeft() + QPoint(0, 1 + gap), size));
    int bestDistance = std::numeric_limits<int>::max();
    for (const Place& top : restingTops(size.height(), rect, screen, controls)) {
        if (top.off >= bestDistance)
            break;
        const QRect band(QPoint(screen.left(), top.at), size);
        if (const auto left = nearestLeft(band, rect, screen, controls);
            left && 2 * left->off + top.off < bestDistance) {
            best.moveTopLeft(QPoint(left->at, top.at));
            bestDistance = 2 * left->off + top.off;
        }
    }
    return best.topLeft();
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

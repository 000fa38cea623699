#include "refusalballoon.h"

#include "platform.h"
#include "tipwidget.h"
#include "updownarrows.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QComboBox>
#include <QLineEdit>

#include <optional>
#include <vector>

namespace vorkan {

namespace {

constexpr int gap = 2;

// What a balloon must leave in view: the controls that the user types in, presses
// or steps. Labels, frames and lines may be covered for a moment.
bool isWorkedWith(const QWidget& widget)
{
    return qobject_cast<const QLineEdit*>(&widget) ||
           qobject_cast<const QAbstractButton*>(&widget) ||
           qobject_cast<const QComboBox*>(&widget) ||
           qobject_cast<const QAbstractSlider*>(&widget) ||
           dynamic_cast<const UpDownArrows*>(&widget);
}

// Those controls of the field's window, the field included, on the screen.
std::vector<QRect> controlsOnScreen(const QWidget& field)
{
    std::vector<QRect> rects;
    for (const QWidget* widget : field.window()->findChildren<QWidget*>())
        if (widget->isVisible() && !widget->isWindow() && isWorkedWith(*widget))
            rects.emplace_back(widget->mapToGlobal(QPoint(0, 0)), widget->size());
    return rects;
}

// The box at that height, moved right past whatever it would cover, while it still
// starts under or over the field.
std::optional<QRect> clearBoxAt(int top, const QRect& field, QSize size,
                                const std::vector<QRect>& controls)
{
    QRect box(QPoint(field.left(), top), size);
    const QRect screen = availableScreenArea();
    for (bool moved = true; moved && box.left() <= field.right();) {
        moved = false;
        for (const QRect& control : controls)
            if (box.intersects(control)) {
                box.moveLeft(control.right() + 1 + gap);
                moved = true;
            }
        if (!moved && screen.contains(box))
            return box;
    }
    return std::nullopt;
}

// Below the field if there is room, else above it, else below it whatever it covers.
QPoint balloonCorner(const QWidget& field, QSize size)
{
    const QRect rect(field.mapToGlobal(QPoint(0, 0)), field.size());
    const std::vector<QRect> controls = controlsOnScreen(field);
    for (const int top : {rect.bottom() + 1 + gap, rect.top() - gap - size.height()})
        if (const auto box = clearBoxAt(top, rect, size, controls))
            return box->topLeft();
    return {rect.left(), rect.bottom() + 1 + gap};
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

#include "updownarrows.h"

#include <QMouseEvent>
#include <QStyleOptionSpinBox>
#include <QStylePainter>
#include <QWheelEvent>

namespace vorkan {

UpDownArrows::UpDownArrows(QWidget* parent) : QWidget(parent)
{
    setFocusPolicy(Qt::NoFocus);
    connect(&repeat_, &QTimer::timeout, this, [this] {
        repeat_.setInterval(style()->styleHint(QStyle::SH_SpinBox_ClickAutoRepeatRate));
        step();
    });
}

void UpDownArrows::paintEvent(QPaintEvent*)
{
    // Drawn as a spin box whose edit part lies left of this widget, so that only
    // the style's own up and down buttons show here.
    QStyleOptionSpinBox option;
    option.initFrom(this);
    const int editWidth = 4 * width();
    option.rect = QRect(-editWidth, 0, width() + editWidth, height());
    option.frame = false;
    option.subControls = QStyle::SC_SpinBoxUp | QStyle::SC_SpinBoxDown;
    option.stepEnabled = QAbstractSpinBox::StepUpEnabled | QAbstractSpinBox::StepDownEnabled;
    option.buttonSymbols = QAbstractSpinBox::UpDownArrows;
    if (pressed_ != Part::None) {
        option.activeSubControls =
            pressed_ == Part::Up ? QStyle::SC_SpinBoxUp : QStyle::SC_SpinBoxDown;
        option.state |= QStyle::State_Sunken;
    }
    QStylePainter painter(this);
    painter.drawComplexControl(QStyle::CC_SpinBox, option);
}

UpDownArrows::Part UpDownArrows::partAt(QPoint at) const
{
    if (!rect().contains(at))
        return Part::None;
    return at.y() < height() / 2 ? Part::Up : Part::Down;
}

void UpDownArrows::step()
{
    if (pressed_ == Part::Up)
        Q_EMIT Up();
    else if (pressed_ == Part::Down)
        Q_EMIT Down();
}

void UpDownArrows::stop()
{
    repeat_.stop();
    pressed_ = Part::None;
    update();
}

void UpDownArrows::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    pressed_ = partAt(event->position().toPoint());
    update();
    repeat_.start(style()->styleHint(QStyle::SH_SpinBox_ClickAutoRepeatThreshold));
    step();
}

void UpDownArrows::mouseReleaseEvent(QMouseEvent*)
{
    stop();
}

void UpDownArrows::leaveEvent(QEvent*)
{
    stop();
}

void UpDownArrows::wheelEvent(QWheelEvent* event)
{
    const QPoint at = event->position().toPoint();
    const QPoint delta = event->angleDelta();
    if (MouseWheel && MouseWheel(at.x(), at.y(), -delta.x(), -delta.y()))
        return;
    event->accept();
}

} // namespace vorkan

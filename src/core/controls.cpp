#include "controls.h"

#include "accessibility.h"
#include "textops.h"

#include <QKeyEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QRegularExpressionValidator>
#include <QSignalBlocker>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace vorkan {

namespace {

// The key as the handlers see it: Return (also the keypad's Enter), Backspace and
// the up and down keys as their control characters, anything else as typed.
QString keyText(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return Chr(13);
    case Qt::Key_Backspace:
        return Chr(8);
    case Qt::Key_Up:
        return Chr(30);
    case Qt::Key_Down:
        return Chr(31);
    default:
        return event.text();
    }
}

} // namespace

TextField::TextField(QWidget* parent) : RectControl(parent) {}

void TextField::setDigitMask(int digits)
{
    setMaxLength(digits);
    setValidator(
        new QRegularExpressionValidator(QRegularExpression(u"[0-9]{0,%1}"_s.arg(digits)), this));
}

void TextField::keyPressEvent(QKeyEvent* event)
{
    if (KeyDown && KeyDown(*this, keyText(*event)))
        return;
    QLineEdit::keyPressEvent(event);
}

void TextField::keyReleaseEvent(QKeyEvent* event)
{
    QLineEdit::keyReleaseEvent(event);
    if (KeyUp)
        KeyUp(*this, keyText(*event));
}

void TextField::wheelEvent(QWheelEvent* event)
{
    // The framework counts a turn away from the user as a negative delta.
    const QPoint at = event->position().toPoint();
    const QPoint delta = event->angleDelta();
    if (MouseWheel && MouseWheel(*this, at.x(), at.y(), -delta.x(), -delta.y()))
        return;
    QLineEdit::wheelEvent(event);
}

StaticText::StaticText(QWidget* parent) : RectControl(parent)
{
    setTextFormat(Qt::PlainText);
}

void StaticText::setText(const QString& caption)
{
    caption_ = caption;
    QString shown = caption;
    shown.replace(u"&&"_s, u"&"_s);
    QLabel::setText(shown);
    if (labelled_)
        labelled_->setAccessibleName(labelPrefix_ + shown);
    announceTextChange(*this);
}

void StaticText::labels(QWidget& control, const QString& prefix)
{
    labelled_ = &control;
    labelPrefix_ = prefix;
    control.setAccessibleName(prefix + QLabel::text());
}

// Measured when painted rather than when written, so that a calculation that writes
// many results pays nothing for it.
void StaticText::paintEvent(QPaintEvent*)
{
    const QString shown = QLabel::text();
    const QRect box = contentsRect();
    QFont fitted = font();
    constexpr qreal smallest = 6;
    while (fitted.pointSizeF() > smallest &&
           QFontMetricsF(fitted).horizontalAdvance(shown) > box.width())
        fitted.setPointSizeF(fitted.pointSizeF() - 0.5);
    QPainter painter(this);
    painter.setFont(fitted);
    style()->drawItemText(&painter, box, static_cast<int>(alignment()), palette(), isEnabled(),
                          shown, foregroundRole());
}

void StaticText::mousePressEvent(QMouseEvent* event)
{
    const QPoint at = event->position().toPoint();
    if (MouseDown && MouseDown(*this, at.x(), at.y()))
        return;
    QLabel::mousePressEvent(event);
}

void StaticText::leaveEvent(QEvent* event)
{
    QLabel::leaveEvent(event);
    if (MouseExit)
        MouseExit(*this);
}

BevelButton::BevelButton(QWidget* parent) : RectControl(parent)
{
    setFocusPolicy(Qt::NoFocus);
    setAutoDefault(false);
    connect(this, &QPushButton::clicked, this, [this] {
        if (Action)
            Action(*this);
    });
}

PushButton::PushButton(QWidget* parent) : RectControl(parent)
{
    setAutoDefault(false);
    connect(this, &QPushButton::clicked, this, [this] {
        if (Action)
            Action(*this);
    });
}

void PushButton::leaveEvent(QEvent* event)
{
    QPushButton::leaveEvent(event);
    if (MouseExit)
        MouseExit(*this);
}

PopupMenu::PopupMenu(QWidget* parent) : RectControl(parent)
{
    connect(this, &QComboBox::currentIndexChanged, this, [this] {
        if (Change)
            Change(*this);
    });
}

// Qt would choose the first row added to an empty list by itself.
void PopupMenu::AddRow(const QString& text)
{
    const QSignalBlocker quiet(this);
    const int chosen = currentIndex();
    addItem(text);
    setCurrentIndex(chosen);
}

Slider::Slider(QWidget* parent) : RectControl(Qt::Horizontal, parent)
{
    connect(this, &QSlider::valueChanged, this, [this] {
        if (ValueChanged)
            ValueChanged(*this);
    });
}

} // namespace vorkan

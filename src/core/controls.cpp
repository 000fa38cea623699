#include "controls.h"

#include "accessibility.h"
#include "digitmask.h"
#include "platform.h"
#include "textops.h"
#include "tipwidget.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QPainter>
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

// Shift, Ctrl, Alt, AltGr, Meta and the lock keys change what the next key types; on
// their own they are no key of the field's.
bool isModifierAlone(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Meta:
    case Qt::Key_Super_L:
    case Qt::Key_Super_R:
    case Qt::Key_Hyper_L:
    case Qt::Key_Hyper_R:
    case Qt::Key_Mode_switch:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
    case Qt::Key_ScrollLock:
        return true;
    default:
        return false;
    }
}

// A key that types a character, as a line edit tells one: not Return, Tab or the
// like, and not a Ctrl shortcut (Ctrl with Alt is AltGr on Windows, which types).
bool typesText(const QKeyEvent& event)
{
    const Qt::KeyboardModifiers held =
        event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    return !event.text().isEmpty() && event.text().front().isPrint() &&
           held != Qt::ControlModifier && held != Qt::MetaModifier;
}

} // namespace

TextField::TextField(QWidget* parent) : RectControl(parent) {}

// A grouped field has no length limit of its own: a pasted number would be cut short
// before its separators go; the mask counts the digits instead.
void TextField::setDigitMask(int digits, bool grouped)
{
    if (!grouped)
        setMaxLength(digits);
    mask_ = new DigitMask(digits, grouped, this);
    setValidator(mask_);
}

bool TextField::event(QEvent* event)
{
    if (event->type() == QEvent::KeyPress && keyDown(static_cast<QKeyEvent&>(*event)))
        return true;
    return RectControl::event(event);
}

// Runs KeyDown, then holds back a key the mask refuses; true when the key is dealt with.
bool TextField::keyDown(QKeyEvent& event)
{
    if (isModifierAlone(event))
        return false;
    hideBalloon();
    if (KeyDown && KeyDown(keyText(event)))
        return true;
    if (!mask_ || isReadOnly())
        return false;
    if (event.matches(QKeySequence::Paste)) {
        pasteFromKey(event);
        return true;
    }
    return typesText(event) && refuse(mask_->refusal(*this, event.text()));
}

// A paste the mask turns away leaves the text as it was, which says it was refused.
void TextField::pasteFromKey(QKeyEvent& event)
{
    const QString before = text();
    QLineEdit::keyPressEvent(&event);
    const QString pasted = QGuiApplication::clipboard()->text();
    if (text() == before && !pasted.isEmpty())
        refuse(mask_->refusal(*this, pasted));
}

bool TextField::refuse(const QString& why)
{
    if (why.isEmpty())
        return false;
    QApplication::beep();
    if (!balloon_)
        balloon_ = new TipWidget(window());
    constexpr int balloonMs = 4000;
    balloon_->showAt(why, mapToGlobal(QPoint(0, height() + 2)), balloonMs);
    return true;
}

void TextField::hideBalloon()
{
    if (balloon_)
        balloon_->hide();
}

const QLabel* TextField::balloon() const
{
    return balloon_ && balloon_->isVisible() ? balloon_.data() : nullptr;
}

void TextField::focusOutEvent(QFocusEvent* event)
{
    hideBalloon();
    QLineEdit::focusOutEvent(event);
}

void TextField::keyReleaseEvent(QKeyEvent* event)
{
    QLineEdit::keyReleaseEvent(event);
    Q_EMIT KeyUp(keyText(*event));
}

void TextField::wheelEvent(QWheelEvent* event)
{
    // The framework counts a turn away from the user as a negative delta.
    const QPoint at = event->position().toPoint();
    const QPoint delta = event->angleDelta();
    if (MouseWheel && MouseWheel(at.x(), at.y(), -delta.x(), -delta.y()))
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
    if (MouseDown && MouseDown(at.x(), at.y()))
        return;
    QLabel::mousePressEvent(event);
}

void StaticText::leaveEvent(QEvent* event)
{
    QLabel::leaveEvent(event);
    Q_EMIT MouseExit();
}

BevelButton::BevelButton(QWidget* parent) : RectControl(parent)
{
    setFocusPolicy(Qt::TabFocus);
    setAutoDefault(false);
}

void BevelButton::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QPushButton::keyPressEvent(event);
}

PushButton::PushButton(QWidget* parent) : RectControl(parent)
{
    setAutoDefault(false);
}

void PushButton::leaveEvent(QEvent* event)
{
    QPushButton::leaveEvent(event);
    Q_EMIT MouseExit();
}

void PushButton::keyPressEvent(QKeyEvent* event)
{
    pressedFromKeyboard_ = true;
    QPushButton::keyPressEvent(event);
}

void PushButton::mousePressEvent(QMouseEvent* event)
{
    pressedFromKeyboard_ = false;
    QPushButton::mousePressEvent(event);
}

void PushButton::focusOutEvent(QFocusEvent* event)
{
    QPushButton::focusOutEvent(event);
    if (pressedFromKeyboard_ && !underMouse())
        Tooltip::Hide();
    pressedFromKeyboard_ = false;
}

PopupMenu::PopupMenu(QWidget* parent) : RectControl(parent) {}

// Qt would choose the first row added to an empty list by itself.
void PopupMenu::AddRow(const QString& text)
{
    const QSignalBlocker quiet(this);
    const int chosen = currentIndex();
    addItem(text);
    setCurrentIndex(chosen);
}

} // namespace vorkan

#include "controls.h"

#include "accessibility.h"
#include "digitmask.h"
#include "editmenu.h"
#include "platform.h"
#include "textops.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QWheelEvent>

#include <cstdlib>
#include <functional>

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

TextField::TextField(QWidget* parent) : QLineEdit(parent) {}

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
    return QLineEdit::event(event);
}

// Runs KeyDown, then holds back a key the mask refuses; true when the key is dealt with.
bool TextField::keyDown(QKeyEvent& event)
{
    if (isModifierAlone(event))
        return false;
    if (KeyDown && KeyDown(keyText(event)))
        return true;
    if (!mask_ || isReadOnly())
        return false;
    if (event.matches(QKeySequence::Paste)) {
        pasteChecked();
        return true;
    }
    return typesText(event) && refuse(mask_->refusal(*this, event.text()));
}

// A paste the mask turns away leaves the text as it was, which says it was refused.
void TextField::pasteChecked()
{
    const QString before = text();
    paste();
    if (!mask_)
        return;
    const QString pasted = QGuiApplication::clipboard()->text();
    if (text() == before && !pasted.isEmpty())
        refuse(mask_->refusal(*this, pasted));
}

bool TextField::refuse(const QString& why)
{
    if (why.isEmpty())
        return false;
    QApplication::beep();
    balloon_.show(why);
    return true;
}

const QLabel* TextField::balloon() const
{
    return balloon_.shown();
}

// The focus a window gives as it opens or comes to the front selects the text, as Tab
// does, so that a new value typed at once replaces the old one.
void TextField::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    if (event->reason() == Qt::ActiveWindowFocusReason)
        selectAll();
}

void TextField::focusOutEvent(QFocusEvent* event)
{
    balloon_.hide();
    QLineEdit::focusOutEvent(event);
}

// A change made from the menu reaches the window as one typed does: its KeyUp follows.
void TextField::contextMenuEvent(QContextMenuEvent* event)
{
    const auto edit = [this](auto command) {
        return [this, command] {
            std::invoke(command, this);
            Q_EMIT KeyUp(QString());
        };
    };
    const bool selected = hasSelectedText();
    const bool canSelectMore = !text().isEmpty() && selectedText() != text();
    const EditCommand copy{u"&Copier"_s, QKeySequence::Copy, selected, [this] { this->copy(); }};
    const EditCommand selectAll{u"&Tout sélectionner"_s, QKeySequence::SelectAll, canSelectMore,
                                [this] { this->selectAll(); }};
    if (isReadOnly()) {
        popUpEditMenu(*this, event->globalPos(), {copy, {}, selectAll});
        return;
    }
    const bool canPaste = !QGuiApplication::clipboard()->text().isEmpty();
    popUpEditMenu(*this, event->globalPos(),
                  {{u"&Annuler"_s, QKeySequence::Undo, isUndoAvailable(), edit(&QLineEdit::undo)},
                   {u"&Rétablir"_s, QKeySequence::Redo, isRedoAvailable(), edit(&QLineEdit::redo)},
                   {},
                   {u"Co&uper"_s, QKeySequence::Cut, selected, edit(&QLineEdit::cut)},
                   copy,
                   {u"C&oller"_s, QKeySequence::Paste, canPaste, edit(&TextField::pasteChecked)},
                   {u"&Supprimer"_s, QKeySequence::Delete, selected, edit(&QLineEdit::del)},
                   {},
                   selectAll});
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

BevelButton::BevelButton(QWidget* parent) : QPushButton(parent)
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

PushButton::PushButton(QWidget* parent) : QPushButton(parent)
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

PopupMenu::PopupMenu(QWidget* parent) : QComboBox(parent)
{
    connect(this, &QComboBox::currentTextChanged, this, &PopupMenu::announceRow);
}

void PopupMenu::announceRow(const QString& row)
{
    announceTextChange(*this, announcedRow_, row);
    announcedRow_ = row;
}

// A list with no row chosen opens with none under the keyboard either, so that the
// first Down lands on the first row. Qt's list would take its first row as the place
// to move from when it gets the focus with no place set; a place set once, even none,
// stops that.
void PopupMenu::showPopup()
{
    if (currentIndex() == -1)
        view()->setCurrentIndex(QModelIndex());
    QComboBox::showPopup();
}

void PopupMenu::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}

// Qt would choose the first row added to an empty list by itself.
void PopupMenu::AddRow(const QString& text)
{
    const QSignalBlocker quiet(this);
    const int chosen = currentIndex();
    addItem(text);
    setCurrentIndex(chosen);
}

// Qt moves a slider by several line steps a notch, as many as the desktop scrolls lines.
void Slider::wheelEvent(QWheelEvent* event)
{
    constexpr int notch = 120;
    const QPoint delta = event->angleDelta();
    // Qt counts a turn to the right as negative; it moves a slider up, as a turn away does.
    int turn = delta.y() != 0 ? delta.y() : -delta.x();
    if (event->inverted())
        turn = -turn;
    if ((turn < 0) != (wheelRest_ < 0))
        wheelRest_ = 0;
    wheelRest_ += turn;
    const int notches = wheelRest_ / notch;
    wheelRest_ -= notches * notch;
    for (int i = 0; i < std::abs(notches); ++i)
        triggerAction(notches > 0 ? SliderSingleStepAdd : SliderSingleStepSub);
    event->accept();
}

} // namespace vorkan

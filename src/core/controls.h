#pragma once

#include "refusalballoon.h"
#include "types.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QSlider>

#include <functional>
#include <optional>

namespace vorkan {

class DigitMask;

// The handlers that answer whether they consumed their event, which a Qt signal
// cannot; every other event of a control is a signal.
using KeyDownHandler = std::function<bool(const QString& key)>;
using MouseWheelHandler = std::function<bool(Int32 x, Int32 y, Int32 deltaX, Int32 deltaY)>;
using MouseDownHandler = std::function<bool(Int32 x, Int32 y)>;

// What every control of a window can do beyond its Qt base. A mixin rather than a
// class between the control and Qt: each such class would bring a table of Qt's
// functions that the loader binds at every start.
template<class Control> class Refreshable {
public:
    // Asks for the control to be painted. Qt paints all such controls together
    // before it takes the next input event, so the user sees the new value as soon
    // as with a synchronous paint, without a flush to the screen for each control.
    void Refresh(bool /*now*/ = true) { static_cast<Control*>(this)->update(); }
};

// A one-line field. KeyDown runs before the field sees the key, Tab included, so the
// text is still the one from before the key, also for a key the field will refuse; a
// modifier pressed alone is no key. A key or a paste that the mask refuses beeps and
// says why in a balloon beside the field, which stays a few seconds whatever comes next.
class TextField : public QLineEdit, public Refreshable<TextField> {
    Q_OBJECT

public:
    explicit TextField(QWidget* parent);

    // Up to that many digits and nothing else; a grouped field takes a pasted number
    // written in groups as its digits.
    void setDigitMask(int digits, bool grouped = false);

    // The balloon while it is up, else null.
    const QLabel* balloon() const;

    // Pastes the clipboard, saying why when the mask refuses it.
    void pasteChecked();

    KeyDownHandler KeyDown;
    MouseWheelHandler MouseWheel;

Q_SIGNALS:
    // After the key has reached the field.
    void KeyUp(const QString& key);

protected:
    bool event(QEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    bool keyDown(QKeyEvent& event);
    // Beeps and says why in the balloon; false when there is nothing to say.
    bool refuse(const QString& why);

    DigitMask* mask_ = nullptr;
    RefusalBalloon balloon_{*this};
};

// A label. Its caption is kept as stored, with "&&" for one ampersand; the screen
// shows one ampersand and no mnemonic. Where the platform's font is wider than the
// one the layout was drawn with, the text is drawn smaller until it fits its box.
class StaticText : public QLabel, public Refreshable<StaticText> {
    Q_OBJECT

public:
    explicit StaticText(QWidget* parent);

    QString text() const { return caption_; }
    void setText(const QString& caption);

    // The user can select the text with the mouse, a double-click taking all of it,
    // and copy it as shown, with Ctrl+C or the menu of a right click. A click gives
    // it the focus for that; Tab still passes it by.
    void setSelectable();

    // Names that control, for assistive tools, after this caption (and the prefix), now
    // and whenever the caption changes.
    void labels(QWidget& control, const QString& prefix);

    // A figure and the label that names it read as one line: the text that stands higher
    // moves down onto the other's baseline, the boxes staying where they are.
    void shareBaseline(StaticText& other);

    MouseDownHandler MouseDown;

Q_SIGNALS:
    void MouseExit();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void fitFont();
    void placeText();
    // Where the text's baseline lies in the window, in the layout's font.
    int baselineInWindow() const;

    QString caption_;
    int baselineDrop_ = 0;
    std::optional<QFont> layoutFont_;
    QPointer<QWidget> labelled_;
    QString labelPrefix_;
};

// A button that a click never gives the focus, so that typing goes on in the field
// that had it; Tab reaches it, and Space or Return presses it. Its Action is clicked.
class BevelButton : public QPushButton, public Refreshable<BevelButton> {
    Q_OBJECT

public:
    explicit BevelButton(QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

// A button, whose Action is clicked. One pressed from the keyboard, away from the
// pointer, lets the tip it showed go when the focus leaves it, since no MouseExit
// will come.
class PushButton : public QPushButton, public Refreshable<PushButton> {
    Q_OBJECT

public:
    explicit PushButton(QWidget* parent);

Q_SIGNALS:
    void MouseExit();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    bool pressedFromKeyboard_ = false;
};

// A pop-up list; ListIndex is -1 while no row is chosen, and shows blank. Its Change
// is currentIndexChanged. Closed, it lets the wheel pass: scrolling over a window must
// not change a choice unseen.
class PopupMenu : public QComboBox, public Refreshable<PopupMenu> {
    Q_OBJECT

public:
    explicit PopupMenu(QWidget* parent);
    // Adds a row without choosing one: a new popup stays on no row until a row is set
    // or the user picks one, and adding fires no Change.
    void AddRow(const QString& text);
    int ListIndex() const { return currentIndex(); }
    void setListIndex(int index) { setCurrentIndex(index); }

    void showPopup() override;

protected:
    void wheelEvent(QWheelEvent* event) override;

private:
    void announceRow(const QString& row);

    QString announcedRow_;
};

// A horizontal slider; its ValueChanged is valueChanged. A notch of the wheel moves it
// by its line step, as one key press does.
class Slider : public QSlider, public Refreshable<Slider> {
    Q_OBJECT

public:
    explicit Slider(QWidget* parent) : QSlider(Qt::Horizontal, parent) {}

protected:
    void wheelEvent(QWheelEvent* event) override;

private:
    // Turns smaller than a notch, kept until they add up to one.
    int wheelRest_ = 0;
};

} // namespace vorkan

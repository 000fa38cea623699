#pragma once

#include <QLine>
#include <QRect>
#include <QRgb>
#include <QStringView>

namespace vorkan {

// The control classes a layout row can create.
enum class Kind {
    TextField,
    StaticText,
    BevelButton,
    PushButton,
    PopupMenu,
    Slider,
    UpDownArrows,
    GroupBox,
    Rectangle,
    RoundRectangle,
    Line,
    Separator,
};

struct SliderProps {
    int minimum = 0;
    int value = 0;
    int maximum = 100;
    int lineStep = 1;
    int pageStep = 10;
    bool ticks = false;
    bool liveScroll = true;
};

struct ShapeProps {
    int borderWidth = 1;
    QRgb fill = 0xffffffff;
    QRgb border = 0xff000000;      // also the top-left edge of a Rectangle
    QRgb bottomRight = 0xff000000; // the bottom-right edge of a Rectangle
    int oval = 0;                  // corner diameter of a RoundRectangle
};

// Everything in a row beyond name, class, position, tab and text; the defaults are
// those of a control whose row says nothing.
struct ControlProps {
    QStringView inside{}; // the parent control; the window when empty
    bool bold = false;
    bool underline = false;
    int textSize = 0; // points; 0 keeps the application's size
    bool centred = false;
    bool readOnly = false;
    bool selectable = false;    // a figure the user can select and copy
    int maskDigits = 0;         // a Mask of that many "#"
    bool groupedDigits = false; // a pasted number may be written in groups of digits
    QStringView helpTag{};
    QStringView accessibleName{}; // a name for a control that has no visible label
    bool enabled = true;
    QLine line{}; // a Line's end points, from the window's top left
    SliderProps slider{};
    ShapeProps shape{};
};

// One row of a window's layout table. Positions are from the window's top left corner,
// also for controls inside another one.
struct LayoutRow {
    QStringView name;
    Kind kind;
    QRect geometry;
    int tab; // -1 where the control has no place in the tab order
    QStringView text{};
    ControlProps props{};
};

// A control and the label whose caption names it to assistive tools.
struct LabelledBy {
    QStringView control;
    QStringView label;
};

} // namespace vorkan

#pragma once

#include "controls.h"
#include "types.h"
#include "updownarrows.h"
#include "window.h"

#include <functional>

namespace vorkan {

// A window with height and weight fields that the up and down keys, the wheel and
// the arrows beside them step by one, each step held at its own limit. Its named
// handlers forward here in one line each.
class SteppedWindow : public Window {
protected:
    using Window::Window;

    struct Limits {
        Int32 lower;
        Int32 upper;
    };
    static constexpr Limits heightLimits{50, 250};
    static constexpr Limits weightLimits{30, 250};

    // One step up, held at limit, then calc; never lifts a value to the lower limit.
    void augmente(TextField& field, Int32 limit);
    // One step down, held at limit, then calc; never pulls a value to the upper limit.
    void diminue(TextField& field, Int32 limit);
    virtual void calc() = 0;

    // The up key steps up and the down key down; the key is never consumed.
    bool stepOnKey(TextField& field, const QString& key, Limits limits);
    // Only the sign counts: a turn away from the user steps up; never consumed.
    bool stepOnWheel(TextField& field, Int32 deltaY, Limits limits);

    // The handlers of one field and its arrows, in the order they are installed.
    template<class W> struct SteppedHandlers {
        bool (W::*fieldMouseWheel)(Int32, Int32, Int32, Int32);
        bool (W::*fieldKeyDown)(const QString&);
        void (W::*fieldKeyUp)();
        bool (W::*arrowsMouseWheel)(Int32, Int32, Int32, Int32);
        void (W::*arrowsDown)();
        void (W::*arrowsUp)();
    };

    template<class W>
    void installStepped(TextField& field, UpDownArrows& arrows, const SteppedHandlers<W>& on)
    {
        auto* window = static_cast<W*>(this);
        field.MouseWheel = std::bind_front(on.fieldMouseWheel, window);
        field.KeyDown = std::bind_front(on.fieldKeyDown, window);
        connect(&field, &TextField::KeyUp, window, on.fieldKeyUp);
        arrows.MouseWheel = std::bind_front(on.arrowsMouseWheel, window);
        connect(&arrows, &UpDownArrows::Down, window, on.arrowsDown);
        connect(&arrows, &UpDownArrows::Up, window, on.arrowsUp);
    }
};

} // namespace vorkan

#pragma once

#include "core/types.h"
#include "core/window.h"

namespace vorkan {

class TextField;

// A window with height and weight fields that the up and down keys, the wheel and
// the arrows beside them step by one, each step held at its own limit.
class SteppedWindow : public Window {
protected:
    using Window::Window;

    struct SteppedField {
        QStringView field;
        QStringView arrows;
        Int32 lower;
        Int32 upper;
    };

    // One step up, held at limit, then calc; never lifts a value to the lower limit.
    void augmente(TextField& field, Int32 limit);
    // One step down, held at limit, then calc; never pulls a value to the upper limit.
    void diminue(TextField& field, Int32 limit);
    virtual void calc() = 0;

    // Installs the key, wheel and arrow handlers of one field and its arrows.
    void bindSteppedField(const SteppedField& stepped);

private:
    void wheel(const SteppedField& stepped, Int32 deltaY);
};

} // namespace vorkan

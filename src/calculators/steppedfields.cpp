#include "steppedfields.h"

#include "core/controls.h"
#include "core/textops.h"
#include "core/updownarrows.h"

namespace vorkan {

void SteppedWindow::augmente(TextField& field, Int32 limit)
{
    auto value = toInt32(Val(field.text()));
    value = value + 1;
    if (value > limit)
        value = limit;
    field.setText(Str(value));
    field.Refresh(true);
    calc();
}

void SteppedWindow::diminue(TextField& field, Int32 limit)
{
    auto value = toInt32(Val(field.text()));
    value = value - 1;
    if (value < limit)
        value = limit;
    field.setText(Str(value));
    field.Refresh(true);
    calc();
}

// Only the sign counts: one wheel event is one step, and a turn away from the user
// (a negative delta) steps up.
void SteppedWindow::wheel(const SteppedField& stepped, Int32 deltaY)
{
    auto& field = control<TextField>(stepped.field);
    if (deltaY > 0)
        diminue(field, stepped.lower);
    if (deltaY < 0)
        augmente(field, stepped.upper);
}

void SteppedWindow::bindSteppedField(const SteppedField& stepped)
{
    auto& field = control<TextField>(stepped.field);
    field.KeyDown = [this, stepped](TextField& self, const QString& key) {
        if (key == Chr(30))
            augmente(self, stepped.upper);
        if (key == Chr(31))
            diminue(self, stepped.lower);
        return false;
    };
    field.KeyUp = [this](TextField&, const QString&) { calc(); };
    field.MouseWheel = [this, stepped](TextField&, Int32, Int32, Int32, Int32 deltaY) {
        wheel(stepped, deltaY);
        return false;
    };

    auto& arrows = control<UpDownArrows>(stepped.arrows);
    arrows.Up = [this, stepped](UpDownArrows&) {
        augmente(control<TextField>(stepped.field), stepped.upper);
    };
    arrows.Down = [this, stepped](UpDownArrows&) {
        diminue(control<TextField>(stepped.field), stepped.lower);
    };
    arrows.MouseWheel = [this, stepped](UpDownArrows&, Int32, Int32, Int32, Int32 deltaY) {
        wheel(stepped, deltaY);
        return false;
    };
}

} // namespace vorkan

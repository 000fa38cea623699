#include "steppedfields.h"

#include "textops.h"

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

bool SteppedWindow::stepOnKey(TextField& field, const QString& key, Limits limits)
{
    if (key == Chr(30))
        augmente(field, limits.upper);
    if (key == Chr(31))
        diminue(field, limits.lower);
    return false;
}

bool SteppedWindow::stepOnWheel(TextField& field, Int32 deltaY, Limits limits)
{
    if (deltaY > 0)
        diminue(field, limits.lower);
    if (deltaY < 0)
        augmente(field, limits.upper);
    return false;
}

} // namespace vorkan

#pragma once

#include <QString>

namespace vorkan {

// Shows a help tip with its corner 10 pixels right of and below the pointer.
void showTip(const QString& text);
// Hides whatever tip is up, if any.
void hideTip();

// The tip of the stepped fields; the windows differ only in the break after its
// first line.
QString steppingTip(const QString& firstBreak);

} // namespace vorkan

#pragma once

#include "types.h"

#include <QPoint>
#include <QRect>
#include <QString>

class QLabel;
class QWidget;

namespace vorkan {

// The desktop services the windows use, kept in one place so that each is done
// the same way everywhere and can be watched by the tests.

namespace Tooltip {
// Shows one tip at a time, with its top left corner at (x, y) on the screen.
void Show(const QString& text, Int32 x, Int32 y, bool persistent);
void Hide();
// Hides the tip if it was shown while that window, or no window, was the active one.
void windowClosing(const QWidget* window);
// The tip while it is up, else null.
const QLabel* shown();
// Deletes the tip; the application object does it before it goes.
void release();
} // namespace Tooltip

namespace System {
Int32 MouseX();
Int32 MouseY();
} // namespace System

namespace Clipboard {
void setText(const QString& text);
}

// An information box with one button; waits for the user.
void MsgBox(const QString& text, const QString& title);

// Where new windows open: the primary screen's area less panels and menu bars.
QRect availableScreenArea();

// Today's date in the short form of the user's locale.
QString shortDate();

// Starts a program found beside this one, detached, without a shell; false when it
// is missing or does not start. On Windows the file is the name with ".exe".
bool launchBesideProgram(const QString& name);

} // namespace vorkan

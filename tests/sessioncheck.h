#pragma once

#include "types.h"

#include <QString>

namespace vorkan {
class Window;
}

namespace vorkan::test {

// What must hold on screen after any user action: figures are numbers or a dash, texts
// are the program's own, and the record holds what the last height and weight
// calculation read.
class SessionCheck {
public:
    // A calculation ran in that window (only those with height and weight matter).
    void calculated(const Window& window);
    // The first fault found in any open window, or an empty text.
    QString everyWindow() const;

private:
    bool expecting_ = false;
    Single poids_ = 0;
    Single taille_ = 0;
};

// A figure as a calculator shows it: a plain number, or the dash of a value that is
// not finite; Val must read it back.
bool isFigure(const QString& text);

} // namespace vorkan::test

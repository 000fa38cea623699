#pragma once

#include "accessor.h"
#include "menus.h"

namespace vorkan {

// The Norton window's menus: its reset and copy commands, and Quitter. They stand
// beside the window that answers them, which the main window's layer sits above.
class MenuBar2 : public MenuBar {
public:
    MenuBar2() { Untitled0(); }

private:
    void Untitled0();
};

VORKAN_ACCESSOR(MenuBar2)

} // namespace vorkan

#pragma once

#include "core/accessor.h"
#include "core/menus.h"

namespace vorkan {

// The application's menus: Options with Infos, and Quitter.
class MenuBar1 : public MenuBar {
public:
    MenuBar1() { Untitled0(); }

private:
    void Untitled0();
};

// The Norton window's menus: its reset and copy commands, and Quitter.
class MenuBar2 : public MenuBar {
public:
    MenuBar2() { Untitled0(); }

private:
    void Untitled0();
};

VORKAN_ACCESSOR(MenuBar1)
VORKAN_ACCESSOR(MenuBar2)

} // namespace vorkan

#pragma once

#include "accessor.h"
#include "menus.h"

namespace vorkan {

// The application's menus: Options with Infos, and Quitter.
class MenuBar1 : public MenuBar {
public:
    MenuBar1() { Untitled0(); }

private:
    void Untitled0();
};

VORKAN_ACCESSOR(MenuBar1)

} // namespace vorkan

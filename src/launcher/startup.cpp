#include "startup.h"

#include "core/app.h"
#include "menubars.h"
#include "window1.h"

namespace vorkan {

void newAppInstance(class App& app)
{
    app.MenuBar = &MenuBar1();
}

void makeDefaultView()
{
    Window1();
}

} // namespace vorkan

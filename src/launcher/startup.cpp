#include "startup.h"

#include "app.h"
#include "menubar1.h"
#include "window1.h"

namespace vorkan {

void startup(class App& app)
{
    newAppInstance(app);
    makeDefaultView();
}

void newAppInstance(class App& app)
{
    app.MenuBar = &MenuBar1();
}

void makeDefaultView()
{
    Window1();
}

} // namespace vorkan

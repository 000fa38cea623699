#pragma once

namespace vorkan {

class App;

// Brings the program up, once, before the first event: the application object's
// menus, then the window it opens on.
void startup(class App& app);
// Gives the application object its menus.
void newAppInstance(class App& app);
// Builds the window the program opens on.
void makeDefaultView();

} // namespace vorkan

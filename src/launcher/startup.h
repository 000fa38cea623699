#pragma once

namespace vorkan {

class App;

// Gives the application object its menus.
void newAppInstance(class App& app);
// Builds the window the program opens on.
void makeDefaultView();

} // namespace vorkan

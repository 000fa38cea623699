#include "app.h"
#include "startup.h"
#include "windowicon.h"

#include <cstdio>
#include <exception>

using namespace vorkan;

int main(int argc, char* argv[])
{
    try {
        class App app(argc, argv);
        // The program ends with its last window, which must hold before one can close.
        app.Event_Open();
        installWindowIcon();
        startup(app);
        return app.exec();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "vorkan-mac: %s\n", error.what());
        return EXIT_FAILURE;
    }
}

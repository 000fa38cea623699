#include "core/app.h"
#include "launcher/startup.h"

#include <cstdio>
#include <exception>

using namespace vorkan;

int main(int argc, char* argv[])
{
    try {
        class App app(argc, argv);
        newAppInstance(app);
        app.Event_Open();
        makeDefaultView();
        return app.exec();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "vorkan-mac: %s\n", error.what());
        return EXIT_FAILURE;
    }
}

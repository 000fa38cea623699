#include "calculators/imc.h"
#include "core/app.h"

#include <cstdio>
#include <exception>

using namespace vorkan;

namespace
{

// Builds the window the program opens on.
void makeDefaultView()
{
    imc();
}

} // namespace

int main(int argc, char* argv[])
{
    try {
        class App app(argc, argv);
        app.Event_Open();
        makeDefaultView();
        return app.exec();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "vorkan-mac: %s\n", error.what());
        return EXIT_FAILURE;
    }
}

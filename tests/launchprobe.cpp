// A program that leaves "<its own file>.ran" beside itself when it runs: the probe the
// launcher tests start where Windows starts only real programs.
#include <fstream>
#include <string>

int main(int /*argc*/, char** argv)
{
    std::ofstream(std::string(argv[0]) + ".ran");
}

// Writes the table that tst_pow checks Pow against: every whole base 0 to 999 with each
// exponent the surface and body-mass formulas use, then the squares of H / 100, each with
// MPFR's correctly rounded power. It runs on the build machine, also for a cross build.
#include <mpfr.h>

#include <cstdio>
#include <initializer_list>

namespace {

void writeRow(std::FILE* out, double base, double exponent)
{
    mpfr_t x;
    mpfr_t y;
    mpfr_t power;
    mpfr_inits2(53, x, y, power, static_cast<mpfr_ptr>(nullptr));
    mpfr_set_d(x, base, MPFR_RNDN);
    mpfr_set_d(y, exponent, MPFR_RNDN);
    mpfr_pow(power, x, y, MPFR_RNDN);
    std::fprintf(out, "{%a, %a, %a},\n", base, exponent, mpfr_get_d(power, MPFR_RNDN));
    mpfr_clears(x, y, power, static_cast<mpfr_ptr>(nullptr));
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: powreference OUTPUT\n");
        return 2;
    }
    std::FILE* out = std::fopen(argv[1], "w");
    if (out == nullptr)
        return 1;
    for (const double exponent : {0.725, 0.425, 0.42246, 0.51456, 0.5, 2.0}) {
        for (int base = 0; base < 1000; ++base)
            writeRow(out, base, exponent);
    }
    for (int height = 0; height < 1000; ++height)
        writeRow(out, height / 100.0, 2);
    mpfr_free_cache();
    return std::fclose(out) == 0 ? 0 : 1;
}

#include "power.h"

#include <array>
#include <bit>
#include <cfloat>
#include <cmath>
#include <cstdint>
#include <limits>
#include <numbers>
#include <optional>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

// Every step below relies on each double operation rounding once, to double: no wider
// intermediate (x87), no fused multiply-add (-ffp-contract=off), no reassociation.
static_assert(std::numeric_limits<double>::is_iec559);
static_assert(FLT_EVAL_METHOD == 0, "double arithmetic must not be carried wider than double");
#ifdef __FAST_MATH__
#error "power.cpp needs strict IEEE arithmetic"
#endif

// How x^y = e^(y ln x) is computed for a finite positive x and a finite y, and how far off
// it can be. With u = 2^-53, each double-double sum is within 3u^2 and each product within
// 7u^2 of the exact one (Joldes, Muller and Popescu, 2017). e^r - 1 on |r| <= ln 2 / 64
// comes out within 2^-93 relative, so e^t = 2^(k/32) e^r within 2^-96 given t; ln x, from
// the library's log and one Newton step through that e^r, within 2^-91.4, so t = y ln x
// within 2^-91.3 |t|. Together x^y is within (|t| + 0.1) 2^-91 relative: under 2^-88 for
// the surface formulas (|t| <= 5.01) and under 2^-81 anywhere in the normal range, whatever
// the library's log returns within 2^-52 of the truth. None of the bases 1 to 999 with
// those exponents comes nearer than 2^-68 to a midpoint between two doubles (MPFR), so all
// of them round correctly on every platform; the domain test checks each result.

namespace vorkan {

namespace {

// hi + lo with |lo| at most half an ulp of hi: about 106 bits.
struct DoubleDouble {
    double hi;
    double lo;
};

// ln 2 to 2^-110; ln 2 / 32 is the same scaled exactly.
constexpr DoubleDouble ln2{0x1.62e42fefa39efp-1, 0x1.abc9e3b39803fp-56};
constexpr DoubleDouble ln2Over32{ln2.hi / 32, ln2.lo / 32};

// 2^(j/32) for j = 0 to 31, to 2^-107 relative.
constexpr std::array<DoubleDouble, 32> twoToJOver32{{
    {0x1.0000000000000p+0, 0},
    {0x1.059b0d3158574p+0, 0x1.d73e2a475b465p-55},
    {0x1.0b5586cf9890fp+0, 0x1.8a62e4adc610bp-54},
    {0x1.11301d0125b51p+0, -0x1.6c51039449b3ap-54},
    {0x1.172b83c7d517bp+0, -0x1.19041b9d78a76p-55},
    {0x1.1d4873168b9aap+0, 0x1.e016e00a2643cp-54},
    {0x1.2387a6e756238p+0, 0x1.9b07eb6c70573p-54},
    {0x1.29e9df51fdee1p+0, 0x1.612e8afad1255p-55},
    {0x1.306fe0a31b715p+0, 0x1.6f46ad23182e4p-55},
    {0x1.371a7373aa9cbp+0, -0x1.63aeabf42eae2p-54},
    {0x1.3dea64c123422p+0, 0x1.ada0911f09ebcp-55},
    {0x1.44e086061892dp+0, 0x1.89b7a04ef80d0p-59},
    {0x1.4bfdad5362a27p+0, 0x1.d4397afec42e2p-56},
    {0x1.5342b569d4f82p+0, -0x1.07abe1db13cadp-55},
    {0x1.5ab07dd485429p+0, 0x1.6324c054647adp-54},
    {0x1.6247eb03a5585p+0, -0x1.383c17e40b497p-54},
    {0x1.6a09e667f3bcdp+0, -0x1.bdd3413b26456p-54},
    {0x1.71f75e8ec5f74p+0, -0x1.16e4786887a99p-55},
    {0x1.7a11473eb0187p+0, -0x1.41577ee04992fp-55},
    {0x1.82589994cce13p+0, -0x1.d4c1dd41532d8p-54},
    {0x1.8ace5422aa0dbp+0, 0x1.6e9f156864b27p-54},
    {0x1.93737b0cdc5e5p+0, -0x1.75fc781b57ebcp-57},
    {0x1.9c49182a3f090p+0, 0x1.c7c46b071f2bep-56},
    {0x1.a5503b23e255dp+0, -0x1.d2f6edb8d41e1p-54},
    {0x1.ae89f995ad3adp+0, 0x1.7a1cd345dcc81p-54},
    {0x1.b7f76f2fb5e47p+0, -0x1.5584f7e54ac3bp-56},
    {0x1.c199bdd85529cp+0, 0x1.11065895048ddp-55},
    {0x1.cb720dcef9069p+0, 0x1.503cbd1e949dbp-56},
    {0x1.d5818dcfba487p+0, 0x1.2ed02d75b3707p-55},
    {0x1.dfc97337b9b5fp+0, -0x1.1a5cd4f184b5cp-54},
    {0x1.ea4afa2a490dap+0, -0x1.e9c23179c2893p-54},
    {0x1.f50765b6e4540p+0, 0x1.9d3e12dd8a18bp-54},
}};

// 1/3!, 1/4! and 1/5! to 2^-110 relative.
constexpr DoubleDouble inverse6{0x1.5555555555555p-3, 0x1.5555555555555p-57};
constexpr DoubleDouble inverse24{0x1.5555555555555p-5, 0x1.5555555555555p-59};
constexpr DoubleDouble inverse120{0x1.1111111111111p-7, 0x1.1111111111111p-63};

DoubleDouble twoSum(double a, double b)
{
    const double sum = a + b;
    const double bPart = sum - a;
    return {sum, (a - (sum - bPart)) + (b - bPart)};
}

// Exact when |a| >= |b|.
DoubleDouble fastTwoSum(double a, double b)
{
    const double sum = a + b;
    return {sum, b - (sum - a)};
}

// Veltkamp's split into two halves of 26 bits, whose products are exact.
DoubleDouble split(double a)
{
    const double scaled = 134217729.0 * a; // 2^27 + 1
    const double high = scaled - (scaled - a);
    return {high, a - high};
}

// Dekker's exact product, rather than std::fma, which some runtimes emulate slowly or
// wrongly.
DoubleDouble twoProduct(double a, double b)
{
    const double product = a * b;
    const DoubleDouble x = split(a);
    const DoubleDouble y = split(b);
    return {product, ((x.hi * y.hi - product) + x.hi * y.lo + x.lo * y.hi) + x.lo * y.lo};
}

DoubleDouble operator+(DoubleDouble a, DoubleDouble b)
{
    const DoubleDouble high = twoSum(a.hi, b.hi);
    const DoubleDouble low = twoSum(a.lo, b.lo);
    const DoubleDouble sum = fastTwoSum(high.hi, high.lo + low.hi);
    return fastTwoSum(sum.hi, low.lo + sum.lo);
}

DoubleDouble operator*(DoubleDouble a, DoubleDouble b)
{
    const DoubleDouble product = twoProduct(a.hi, b.hi);
    return fastTwoSum(product.hi, product.lo + (a.hi * b.lo + a.lo * b.hi));
}

DoubleDouble operator-(DoubleDouble a)
{
    return {-a.hi, -a.lo};
}

DoubleDouble wide(double a)
{
    return {a, 0};
}

// 2^n for -1022 <= n <= 1023, built from its bits.
double twoTo(int n)
{
    return std::bit_cast<double>(static_cast<std::uint64_t>(n + 1023) << 52);
}

// e^r - 1 for |r| <= ln 2 / 64 by Taylor's series to r^11, in pairs of terms so that fewer
// steps wait on each other. From r^6 on the terms are below 2^-42 of the result, so double
// precision is enough for them.
DoubleDouble expMinusOneNearZero(DoubleDouble r)
{
    const double x = r.hi;
    const double tail =
        1.0 / 720 +
        x * (1.0 / 5040 +
             x * (1.0 / 40320 + x * (1.0 / 362880 + x * (1.0 / 3628800 + x * (1.0 / 39916800)))));
    const DoubleDouble square = r * r;
    const DoubleDouble fromR2 = wide(0.5) + r * inverse6;
    const DoubleDouble fromR4 = (inverse24 + r * inverse120) + square * wide(tail);
    return r + square * (fromR2 + square * fromR4);
}

// e^t = 2^(k/32) (1 + p), for |t| < 710.
struct Exponential {
    int k;
    DoubleDouble p;
};

Exponential exponential(DoubleDouble t)
{
    const double k = std::nearbyint(t.hi * (32 / ln2.hi));
    return {static_cast<int>(k), expMinusOneNearZero(t + -(wide(k) * ln2Over32))};
}

// 2^(k/32); floor division and remainder by 32 through the bits.
DoubleDouble twoToKOver32(int k)
{
    const DoubleDouble& power = twoToJOver32[static_cast<std::size_t>(k & 31)];
    const double scale = twoTo(k >> 5);
    return {power.hi * scale, power.lo * scale};
}

// ln x for a finite positive x, as e ln 2 + ln m with x = m 2^e and m within [1/sqrt 2,
// sqrt 2). One Newton step from the library's y = log(m) leaves the square of its error:
// ln m = y + m e^-y - 1, where m e^-y - 1 = (m - 1) + m (e^-y - 1) and e^-y - 1 =
// (2^(k/32) - 1) + 2^(k/32) p, each first part exact, so the error stays relative to y.
DoubleDouble logarithm(double x)
{
    int exponent = 0;
    double m = std::frexp(x, &exponent);
    if (m < std::numbers::sqrt2 / 2) {
        m *= 2;
        --exponent;
    }
    const double y = std::log(m);
    const auto [k, p] = exponential(wide(-y));
    const DoubleDouble power = twoToKOver32(k);
    const DoubleDouble expMinusOne = (wide(power.hi - 1) + wide(power.lo)) + power * p;
    const DoubleDouble newtonStep = wide(m - 1) + wide(m) * expMinusOne;
    return wide(exponent) * ln2 + (wide(y) + newtonStep);
}

// e^t rounded to double; nothing when the result might not be a normal double.
std::optional<double> roundedExp(DoubleDouble t)
{
    if (!(std::abs(t.hi) < 709.8))
        return std::nullopt;
    const auto [k, p] = exponential(t);
    const int scale = k >> 5;
    if (scale < -1021 || scale > 1022)
        return std::nullopt;
    // 2^(k/32) (1 + p) lies within [0.98, 2.03]: its hi is hi + lo rounded to nearest, and
    // the power of two scales it exactly.
    const DoubleDouble& power = twoToJOver32[static_cast<std::size_t>(k & 31)];
    const DoubleDouble mantissa = power + power * p;
    return mantissa.hi * twoTo(scale);
}

// The processor's square root: without optimisation GCC calls the library's instead, which
// under MinGW uses the x87 unit and can round twice.
double hardwareSqrt(double x)
{
#ifdef __SSE2__
    return _mm_cvtsd_f64(_mm_sqrt_sd(_mm_setzero_pd(), _mm_set_sd(x)));
#else
    return std::sqrt(x);
#endif
}

} // namespace

// Squares and square roots are single IEEE operations, correctly rounded by definition, and
// zero to a positive power is 0. Whatever else the double-doubles cannot give as a normal
// double (infinite, negative or undefined arguments, zero to a power of 0 or less, results
// beyond the normal range) comes from std::pow.
Double roundedPower(Double base, Double exponent)
{
    if (exponent == 2)
        return base * base;
    if (base == 0 && exponent > 0)
        return 0;
    if (exponent == 0.5 && base > 0)
        return hardwareSqrt(base);
    if (base > 0 && std::isfinite(base) && std::isfinite(exponent)) {
        if (const auto result = roundedExp(logarithm(base) * wide(exponent)))
            return *result;
    }
    return std::pow(base, exponent);
}

} // namespace vorkan

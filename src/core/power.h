#pragma once

#include "types.h"

namespace vorkan {

// base raised to exponent, rounded to nearest (ties to even) from the exact real power, so
// that the surface and body-mass formulas give the same figures on every platform and
// processor. The error bound and the arguments it is proved for are in power.cpp.
Double roundedPower(Double base, Double exponent);

} // namespace vorkan

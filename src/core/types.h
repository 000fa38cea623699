#pragma once

#include <cstdint>

namespace vorkan {

// The numeric kinds the formulas are written in; each step keeps its own kind.
using Single = float;
using Double = double;
using Int32 = std::int32_t;
using Int64 = std::int64_t;

} // namespace vorkan

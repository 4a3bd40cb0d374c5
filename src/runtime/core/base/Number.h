#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

namespace tavrelkin {

using Int32 = std::int32_t;
using Double = double;

// Truncates towards zero. NaN gives 0; a value out of range gives the nearest Int32. All conversions from Double to
// Int32 go through this function.
constexpr Int32 toInt32(Double value) {
  constexpr Int32 least = std::numeric_limits<Int32>::min();
  constexpr Int32 most = std::numeric_limits<Int32>::max();
  if (value != value) return 0;
  if (value <= least) return least;
  if (value >= most) return most;
  return static_cast<Int32>(value);
}

// Like pow of the C library.
inline Double Pow(Double base, Double exponent) {
  return std::pow(base, exponent);
}
constexpr Double Abs(Double value) {
  return value < 0 ? -value : value;
}
// The greater of the two; `a` if either is NaN.
constexpr Double Max(Double a, Double b) {
  return a < b ? b : a;
}

}  // namespace tavrelkin

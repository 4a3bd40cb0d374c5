#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

namespace tavrelkin {

using Int32 = std::int32_t;
using Double = double;

// Drops the fraction, towards zero. NaN gives 0, and what fits no Int32 gives the nearest one. This is the only road
// from a Double to an Int32.
constexpr Int32 toInt32(Double value) {
  constexpr Int32 least = std::numeric_limits<Int32>::min();
  constexpr Int32 most = std::numeric_limits<Int32>::max();
  if (value != value) return 0;
  if (value <= least) return least;
  if (value >= most) return most;
  return static_cast<Int32>(value);
}

// As the C library has it.
inline Double Pow(Double base, Double exponent) {
  return std::pow(base, exponent);
}
constexpr Double Abs(Double value) {
  return value < 0 ? -value : value;
}
// The greater of the two, and `a` where one of them is no number.
constexpr Double Max(Double a, Double b) {
  return a < b ? b : a;
}

}  // namespace tavrelkin

#pragma once

#include "runtime/core/base/Number.h"

// Converts between a bar's value and the position of its indicator. The three functions are not inverses of each other:
// each is for the case in its comment. Widths and positions are in pixels. No number is refused, since toInt32 also
// accepts the result of a division by zero.
namespace tavrelkin::BarPosition {

// The columns between which the mouse can move the indicator.
constexpr Int32 kFirst = 5;
constexpr Int32 last(Int32 width) {
  return width - 6;
}

// The position for a value that the host sets.
constexpr Int32 ofValue(Int32 value, Int32 maximum, Int32 width) {
  return toInt32(static_cast<Double>(value) / maximum * (width - 11) + 5.0);
}

// The position for a value that a key or a dropped colour has set: the indicator comes closer to the ends.
constexpr Int32 ofKeyedValue(Int32 value, Int32 maximum, Int32 width) {
  return toInt32((width - 4) * (static_cast<Double>(value) / maximum) + 1.0);
}

// The value at a position to which the mouse has moved the indicator.
constexpr Int32 valueAt(Int32 x, Int32 maximum, Int32 width) {
  return toInt32(maximum * ((x - 5) / static_cast<Double>(width - 11)));
}

}  // namespace tavrelkin::BarPosition

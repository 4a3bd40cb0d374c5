#pragma once

#include "runtime/core/base/Number.h"

// Where the indicator of a bar stands for a value, and which value a position stands for. The three are no inverses of
// each other: each belongs to the gestures that its comment names. Widths and positions are in pixels. No number is
// refused: where there is nothing to divide by, toInt32 makes the best of it.
namespace tavrelkin::BarPosition {

// The columns between which the hand can move the indicator.
constexpr Int32 kFirst = 5;
constexpr Int32 last(Int32 width) {
  return width - 6;
}

// For a value that the host sets.
constexpr Int32 ofValue(Int32 value, Int32 maximum, Int32 width) {
  return toInt32(static_cast<Double>(value) / maximum * (width - 11) + 5.0);
}

// For a value that a key or a dropped colour has set: the indicator goes closer to the ends.
constexpr Int32 ofKeyedValue(Int32 value, Int32 maximum, Int32 width) {
  return toInt32((width - 4) * (static_cast<Double>(value) / maximum) + 1.0);
}

// The value at a position that the hand has moved the indicator to.
constexpr Int32 valueAt(Int32 x, Int32 maximum, Int32 width) {
  return toInt32(maximum * ((x - 5) / static_cast<Double>(width - 11)));
}

}  // namespace tavrelkin::BarPosition

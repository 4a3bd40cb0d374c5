#include "runtime/core/drawing/Color.h"

#include <algorithm>

namespace tavrelkin {

namespace {

// Clamps to 0 to 1. NaN gives 0, since the comparison is false for it.
Double fraction(Double value) {
  return value > 0 ? std::min(value, 1.0) : 0.0;
}

Color fromFractions(Double red, Double green, Double blue) {
  constexpr auto byte = [](Double channel) { return toInt32(channel * 255 + 0.5); };
  return RGB(byte(red), byte(green), byte(blue));
}

Int32 greatest(Color c) {
  return std::max({c.red(), c.green(), c.blue()});
}

// The difference between the greatest and the least channel; 0 for a grey.
Int32 spread(Color c) {
  return greatest(c) - std::min({c.red(), c.green(), c.blue()});
}

}  // namespace

Color HSV(Double hue, Double saturation, Double value) {
  const Double s = fraction(saturation);
  const Double v = fraction(value);
  const Double sixths = fraction(hue) * 6;
  const Int32 sextant = toInt32(sixths);
  const Double within = sixths - sextant;
  const Double least = v * (1 - s);
  const Double falling = v * (1 - s * within);
  const Double rising = v * (1 - s * (1 - within));
  switch (sextant) {
    case 1:
      return fromFractions(falling, v, least);
    case 2:
      return fromFractions(least, v, rising);
    case 3:
      return fromFractions(least, falling, v);
    case 4:
      return fromFractions(rising, least, v);
    case 5:
      return fromFractions(v, least, falling);
    default:  // 0; also 6, from a hue of 1, where `within` is 0 too
      return fromFractions(v, rising, least);
  }
}

Color CMY(Double cyan, Double magenta, Double yellow) {
  return fromFractions(1 - fraction(cyan), 1 - fraction(magenta), 1 - fraction(yellow));
}

Double readColorHue(Color c) {
  const Int32 width = spread(c);
  if (width == 0) return 0;
  const Int32 most = greatest(c);
  // The hue in sixths of the circle, times the width. So only the last division rounds.
  Int32 turn = 4 * width + c.red() - c.green();
  if (most == c.green()) turn = 2 * width + c.blue() - c.red();
  if (most == c.red()) turn = c.green() - c.blue();
  if (turn < 0) turn += 6 * width;
  return turn / (6.0 * width);
}

Double readColorSaturation(Color c) {
  const Int32 most = greatest(c);
  return most == 0 ? 0 : static_cast<Double>(spread(c)) / most;
}

Double readColorValue(Color c) {
  return greatest(c) / 255.0;
}

Double readColorCyan(Color c) {
  return (255 - c.red()) / 255.0;
}

Double readColorMagenta(Color c) {
  return (255 - c.green()) / 255.0;
}

Double readColorYellow(Color c) {
  return (255 - c.blue()) / 255.0;
}

}  // namespace tavrelkin

#include <cstddef>

#include "color/zrXYZ.h"
#include "runtime/core/base/Exceptions.h"

// The order of the operations is part of the result: fractions are dropped at the end, so the last bit may count. A
// division by zero is let through, and `encoded` makes the best of what comes of it.
namespace tavrelkin {

namespace {

// The shares of daylight white, D65.
constexpr Double kWhiteX = 0.312713;
constexpr Double kWhiteY = 0.329016;
constexpr Double kWhiteZ = 0.358271;

// A place in the plane of chromaticities.
struct Chromaticity {
  Double u = 0;
  Double v = 0;
};

struct Line {
  Double slope, intercept;
};

// Channels before their encoding; below 0 or above 1 where the display can't show the colour.
struct Linear {
  Double red = 0;
  Double green = 0;
  Double blue = 0;
};

Chromaticity chromaticity(Double x, Double y, Double z) {
  const Double sum = x + y + z;
  if (sum == 0) return {};
  return {x / sum, y / sum};
}

Line lineOfConfusion(Chromaticity color, Chromaticity confusion) {
  const Double slope = color.u < confusion.u ? (confusion.v - color.v) / (confusion.u - color.u)
                                             : (color.v - confusion.v) / (color.u - confusion.u);
  return {slope, color.v - color.u * slope};
}

Line axisOfDeficiency(Chromaticity begin, Chromaticity end) {
  const Double slope = (end.v - begin.v) / (end.u - begin.u);
  return {slope, begin.v - begin.u * slope};
}

Chromaticity crossing(const Line& line, const Line& axis) {
  const Double u = (axis.intercept - line.intercept) / (line.slope - axis.slope);
  return {u, line.slope * u + line.intercept};
}

// The share of the difference to the neutral that brings the channel to the edge of the gamut. A share that is not from
// 0 to 1 counts as 0, and so, on purpose, does every negative difference.
Double gamutShift(Double value, Double difference) {
  if (!(difference > 0)) return 0;
  const Double target = value < 0 ? 0 : 1;
  const Double shift = (target - value) / difference;
  return shift > 1 || shift < 0 ? 0 : shift;
}

Double commonShift(const Linear& value, const Linear& difference) {
  return Max(Max(gamutShift(value.red, difference.red), gamutShift(value.green, difference.green)),
             gamutShift(value.blue, difference.blue));
}

// Compared in this way, what is no number ends as 0.
Int32 encoded(Double linear, Double gamma) {
  if (!(linear > 0)) return 0;
  if (!(linear < 1)) return 255;
  return toInt32(Pow(linear, 1 / gamma) * 255.0);
}

}  // namespace

Color zrXYZ::getDichromatTranformation(Int32 index, Color /*c*/) const {
  if (index < 0 || index > 2) throw OutOfBoundsException();
  const auto i = static_cast<std::size_t>(index);
  const Line confusion = lineOfConfusion(chromaticity(x, y, z), {confusionPoints[i][0], confusionPoints[i][1]});
  const Line axis = axisOfDeficiency({ColorAxesBU[i], ColorAxesBV[i]}, {ColorAxesEU[i], ColorAxesEV[i]});
  const auto [u, v] = crossing(confusion, axis);

  const Double seenX = u * y / v;
  const Double seenZ = (1 - (u + v)) * y / v;
  const Double towardsX = kWhiteX * y / kWhiteY - seenX;
  const Double towardsZ = kWhiteZ * y / kWhiteY - seenZ;

  Linear towards;
  RGB2FromXYZ(towardsX, 0, towardsZ, towards.red, towards.green, towards.blue);
  Linear seen;
  RGB2FromXYZ(seenX, y, seenZ, seen.red, seen.green, seen.blue);

  const Double shift = commonShift(seen, towards);
  return RGB(encoded(seen.red + shift * towards.red, gamma), encoded(seen.green + shift * towards.green, gamma),
             encoded(seen.blue + shift * towards.blue, gamma));
}

}  // namespace tavrelkin

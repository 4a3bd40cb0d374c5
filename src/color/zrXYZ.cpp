#include "color/zrXYZ.h"

#include <cstddef>

#include "runtime/core/base/Exceptions.h"

namespace tavrelkin {

namespace {

struct Deficiency {
  Double confusionU, confusionV;
  Double beginU, beginV;
  Double endU, endV;
};

constexpr std::array<Deficiency, 3> kDeficiencies = {{
    {0.735, 0.265, 0.115807, 0.073581, 0.471899, 0.527051},
    {1.14, -0.14, 0.102776, 0.102864, 0.505845, 0.493211},
    {0.171, -0.003, 0.045391, 0.294976, 0.665764, 0.334011},
}};

// A row of a matrix. The products are added from left to right.
struct Factors {
  Double first, second, third;

  constexpr Double of(Double a, Double b, Double c) const { return first * a + second * b + third * c; }
};

Double expanded(Int32 channel, Double gamma) {
  return Pow(channel / 255.0, gamma);
}

// The chromaticity of the white D65.
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

// A comparison with a value that is not a number is false, so such a value gives 0.
Int32 encoded(Double linear, Double gamma) {
  if (!(linear > 0)) return 0;
  if (!(linear < 1)) return 255;
  return toInt32(Pow(linear, 1 / gamma) * 255.0);
}

}  // namespace

// No matrix below is the exact inverse of another. The results depend on that: a grey does not stay neutral.

zrXYZ::zrXYZ(Color c) {
  zrXYZ::initClass();
  zrXYZ::XYZFromRGB(c);
}

Color zrXYZ::getRGBColor() const {
  constexpr Factors red{1.9104, -0.5338, -0.2891};
  constexpr Factors green{-0.9844, 1.9985, -0.0279};
  constexpr Factors blue{0.0585, -0.1187, 0.9017};
  return RGB(toInt32(red.of(x, y, z)), toInt32(green.of(x, y, z)), toInt32(blue.of(x, y, z)));
}

void zrXYZ::initClass() {
  gamma = 2.2;
  for (std::size_t i = 0; i < kDeficiencies.size(); ++i) {
    const Deficiency& deficiency = kDeficiencies[i];
    ColorAxesBU[i] = deficiency.beginU;
    ColorAxesBV[i] = deficiency.beginV;
    ColorAxesEU[i] = deficiency.endU;
    ColorAxesEV[i] = deficiency.endV;
    confusionPoints[i] = {deficiency.confusionU, deficiency.confusionV};
  }
}

Color zrXYZ::RGBFromXYZ(Double fromX, Double fromY, Double fromZ) const {
  constexpr Factors red{3.063218, -1.393325, -0.475802};
  constexpr Factors green{-0.969243, 1.875966, 0.041555};
  constexpr Factors blue{0.067871, -0.228834, 1.069251};
  return RGB(toInt32(red.of(fromX, fromY, fromZ) * 255.0), toInt32(green.of(fromX, fromY, fromZ) * 255.0),
             toInt32(blue.of(fromX, fromY, fromZ) * 255.0));
}

void zrXYZ::RGB2FromXYZ(Double fromX, Double fromY, Double fromZ, Double& r, Double& g, Double& b) const {
  constexpr Factors red{3.0632, -1.3416, -0.4758};
  constexpr Factors green{-0.9692, 1.876, 0.046};
  constexpr Factors blue{0.0679, -0.2289, 1.0693};
  r = red.of(fromX, fromY, fromZ);
  g = green.of(fromX, fromY, fromZ);
  b = blue.of(fromX, fromY, fromZ);
}

void zrXYZ::XYZFromRGB(Color c) {
  constexpr Factors forX{0.4306, 0.3416, 0.1783};
  constexpr Factors forY{0.222, 0.7067, 0.0713};
  constexpr Factors forZ{0.0202, 0.1296, 0.9392};
  const Double red = expanded(c.red(), gamma);
  const Double green = expanded(c.green(), gamma);
  const Double blue = expanded(c.blue(), gamma);
  x = forX.of(red, green, blue);
  y = forY.of(red, green, blue);
  z = forZ.of(red, green, blue);
}

// The order of the operations is part of the result: fractions are dropped at the end, so the last bit may count. A
// division by zero is let through; encoded() maps its results to 0 or 255.
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

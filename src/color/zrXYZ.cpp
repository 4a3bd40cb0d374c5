#include "color/zrXYZ.h"

#include <cstddef>

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

}  // namespace tavrelkin

#include <gtest/gtest.h>

#include "color/zrXYZ.h"

namespace tavrelkin {
namespace {

void expectHolds(const zrXYZ& xyz, Double x, Double y, Double z) {
  EXPECT_DOUBLE_EQ(xyz.x, x);
  EXPECT_DOUBLE_EQ(xyz.y, y);
  EXPECT_DOUBLE_EQ(xyz.z, z);
}

TEST(zrXYZTest, GammaCountsOnlyWhenAColourIsTaken) {
  const Color grey = RGB(128, 128, 128);
  zrXYZ xyz(grey);
  for (const Double gamma : {2.2, 1.8}) {
    xyz.gamma = gamma;
    expectHolds(xyz, 0.20865349203016192, 0.2195197180748679, 0.23905697298353112);
  }
  xyz.XYZFromRGB(grey);
  xyz.initClass();
  EXPECT_EQ(xyz.gamma, 2.2);
  expectHolds(xyz, 0.2748892407695465, 0.2892048824508643, 0.3149441169889912);
}

// The two ways back to a colour. A factor that is off by its last digit changes one of the rows with large values.
TEST(zrXYZTest, ConvertsToAColourAndToWholeParts) {
  const std::tuple<Double, Double, Double, Color, Color> rows[] = {
      {0.3, 0.3, 0.3, RGB(91, 72, 69), kBlack},
      {0.1, 0.5, 0.2, RGB(0, 216, 27), kBlack},                // red is -123.8
      {0.9505, 1.0, 1.089, RGB(255, 254, 255), RGB(0, 1, 0)},  // green is 254.99
      {26762.671, 52303, 19135, RGB(88, 255, 255), RGB(255, 255, 255)},
      {28759, 13818.348, 46972, RGB(255, 54, 255), RGB(255, 0, 255)},
      {40546, 43361, 6706.768, RGB(255, 255, 164), RGB(255, 255, 255)},
      {64808.865, 166755, 119816, RGB(0, 255, 255), RGB(158, 255, 255)},
      {109968, 56053.892, 133212, kWhite, RGB(255, 54, 255)},
      {181281, 160652, 9580.747, RGB(255, 255, 0), RGB(255, 255, 174)},
  };
  for (const auto& [x, y, z, color, parts] : rows) {
    zrXYZ xyz(kBlack);
    xyz.x = x;
    xyz.y = y;
    xyz.z = z;
    EXPECT_EQ(xyz.RGBFromXYZ(x, y, z), color) << x;
    EXPECT_EQ(xyz.getRGBColor(), parts) << x;
  }
}

}  // namespace
}  // namespace tavrelkin

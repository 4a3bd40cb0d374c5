#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "runtime/drawing/Color.h"

namespace tavrelkin {
namespace {

constexpr Double kNaN = std::numeric_limits<Double>::quiet_NaN();
constexpr Double kInfinity = std::numeric_limits<Double>::infinity();

// A step of 3 meets both ends of each channel.
TEST(ColorTest, ComesBackFromItsReaders) {
  for (Int32 red = 0; red <= 255; red += 3) {
    for (Int32 green = 0; green <= 255; green += 3) {
      for (Int32 blue = 0; blue <= 255; blue += 3) {
        const Color c = RGB(red, green, blue);
        ASSERT_EQ(HSV(readColorHue(c), readColorSaturation(c), readColorValue(c)), c) << std::hex << c.bits;
        ASSERT_EQ(CMY(readColorCyan(c), readColorMagenta(c), readColorYellow(c)), c) << std::hex << c.bits;
      }
    }
  }
}

TEST(ColorTest, ReadsHueSaturationAndValue) {
  struct Row {
    Color color;
    Double hue, saturation, value;
  };
  const Row rows[] = {
      {kBlack, 0, 0, 0},
      {kWhite, 0, 0, 1},
      {RGB(51, 51, 51), 0, 0, 51 / 255.0},
      {RGB(255, 255, 0), 1 / 6.0, 1, 1},
      {RGB(0, 255, 255), 3 / 6.0, 1, 1},
      {RGB(255, 0, 255), 5 / 6.0, 1, 1},
      {RGB(200, 100, 150), 11 / 12.0, 0.5, 200 / 255.0},
      {RGB(0, 60, 80), 13 / 24.0, 1, 80 / 255.0},
      {RGB(255, 0, 1), 1529 / 1530.0, 1, 1},
  };
  for (const Row& row : rows) {
    EXPECT_DOUBLE_EQ(readColorHue(row.color), row.hue) << std::hex << row.color.bits;
    EXPECT_DOUBLE_EQ(readColorSaturation(row.color), row.saturation) << std::hex << row.color.bits;
    EXPECT_DOUBLE_EQ(readColorValue(row.color), row.value) << std::hex << row.color.bits;
  }
}

TEST(ColorTest, BuildsFromFractionsInAndOutOfRange) {
  EXPECT_EQ(HSV(1, 1, 1), RGB(255, 0, 0));
  EXPECT_EQ(HSV(std::nextafter(1.0, 0.0), 1, 1), RGB(255, 0, 0));
  EXPECT_EQ(HSV(0, 0.5, 1), RGB(255, 128, 128));
  EXPECT_EQ(HSV(0.5, 0.25, 0.5), RGB(96, 128, 128));
  EXPECT_EQ(HSV(kInfinity, 2, 2), RGB(255, 0, 0));
  EXPECT_EQ(HSV(-0.3, 1, 1), RGB(255, 0, 0));
  EXPECT_EQ(HSV(0.3, -kInfinity, 1), kWhite);
  EXPECT_EQ(HSV(kNaN, 1, 1), RGB(255, 0, 0));
  EXPECT_EQ(HSV(0.3, kNaN, 1), kWhite);
  EXPECT_EQ(HSV(0.3, 1, kNaN), kBlack);
  EXPECT_EQ(CMY(0.5, 0, 1), RGB(128, 255, 0));
  EXPECT_EQ(CMY(kNaN, 7, -7), RGB(255, 0, 255));
}

TEST(ColorTest, HoldsChannelsWithinAByte) {
  EXPECT_EQ(RGB(999, -1, 256).bits, 0xFF00FFu);
  EXPECT_EQ(Color{0xFF123456}.bits, 0x123456u);
}

}  // namespace
}  // namespace tavrelkin

#include <cmath>
#include <limits>
#include <tuple>

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
  const struct {
    Color color;
    std::tuple<Double, Double, Double> parts;
  } rows[] = {
      {kBlack, {0, 0, 0}},
      {RGB(51, 51, 51), {0, 0, 51 / 255.0}},
      {RGB(255, 255, 0), {1 / 6.0, 1, 1}},
      {RGB(0, 255, 255), {3 / 6.0, 1, 1}},
      {RGB(255, 0, 255), {5 / 6.0, 1, 1}},
      {RGB(200, 100, 150), {11 / 12.0, 0.5, 200 / 255.0}},
      {RGB(0, 60, 80), {13 / 24.0, 1, 80 / 255.0}},
  };
  for (const auto& [c, parts] : rows)
    EXPECT_EQ(std::tuple(readColorHue(c), readColorSaturation(c), readColorValue(c)), parts) << std::hex << c.bits;
}

TEST(ColorTest, IsBuiltFromArgumentsInAndOutOfRange) {
  const struct {
    Color made;
    std::uint32_t wanted;
  } rows[] = {
      {HSV(1, 1, 1), 0xFF0000},         {HSV(std::nextafter(1.0, 0.0), 1, 1), 0xFF0000},
      {HSV(0, 0.5, 1), 0xFF8080},       {HSV(0.5, 0.25, 0.5), 0x608080},
      {HSV(kInfinity, 2, 2), 0xFF0000}, {HSV(-0.3, 1, 1), 0xFF0000},
      {HSV(kNaN, 1, 1), 0xFF0000},      {HSV(0.3, kNaN, 1), 0xFFFFFF},
      {HSV(0.3, 1, kNaN), 0x000000},    {CMY(0.5, 0, 1), 0x80FF00},
      {CMY(kNaN, 7, -7), 0xFF00FF},     {RGB(999, -1, 256), 0xFF00FF},
      {Color{0xFF123456}, 0x123456},
  };
  for (const auto& row : rows)
    EXPECT_EQ(row.made.bits, row.wanted) << "row " << &row - rows;
}

}  // namespace
}  // namespace tavrelkin

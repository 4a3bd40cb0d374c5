#include <array>
#include <cstdint>
#include <ios>
#include <limits>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "DichromatTable.h"
#include "color/zrXYZ.h"
#include "runtime/base/Exceptions.h"

namespace tavrelkin {
namespace {

constexpr Double kInfinity = std::numeric_limits<Double>::infinity();
constexpr Double kNaN = std::numeric_limits<Double>::quiet_NaN();

using Seen = std::array<std::uint32_t, 3>;

// What is seen with each deficiency.
Seen seen(const zrXYZ& xyz) {
  Seen all{};
  for (std::size_t i = 0; i < all.size(); ++i)
    all.at(i) = xyz.getDichromatTranformation(static_cast<Int32>(i), RGB(1, 2, 3)).bits;
  return all;
}

Seen seen(std::uint32_t color, Double gamma) {
  zrXYZ xyz(kBlack);
  xyz.gamma = gamma;
  xyz.XYZFromRGB(Color{color});
  return seen(xyz);
}

TEST(DichromatTest, SeesTheTable) {
  std::istringstream table{std::string(test::kDichromatTable)};
  int rows = 0;
  for (std::uint32_t color = 0; table >> std::hex >> color; ++rows) {
    for (const Double gamma : test::kTableGammas) {
      Seen expected{};
      for (std::uint32_t& each : expected)
        table >> each;
      EXPECT_EQ(seen(color, gamma), expected) << std::hex << color << " at " << gamma;
    }
  }
  EXPECT_EQ(rows, 19);
}

TEST(DichromatTest, AGammaWrittenAfterwardsOnlyEncodes) {
  zrXYZ xyz(Color{0x336699});
  EXPECT_EQ(seen(xyz), (Seen{0x536194, 0x496399, 0x256D75}));
  xyz.gamma = 1.0;
  EXPECT_EQ(seen(xyz), (Seen{0x151E4D, 0x101F53, 0x03272E}));
}

TEST(DichromatTest, RefusesAnotherIndex) {
  for (const Int32 index : {-1, 3})
    EXPECT_THROW(zrXYZ(kWhite).getDichromatTranformation(index, kWhite), OutOfBoundsException) << index;
}

TEST(DichromatTest, EndsAtTheBoundsForGammasWithoutSense) {
  // A colour, a gamma and what is seen with each deficiency.
  const std::tuple<std::uint32_t, Double, std::uint32_t> rows[] = {
      {0x000000, 0.0, 0xFFFFFF},   // every channel becomes 1
      {0x000000, -1.8, 0},         // infinite, and then no number
      {0x808080, -1.8, 0xFFFFFF},  // above 1 throughout
      {0x70ABFE, kInfinity, 0},   {0x70ABFF, -kInfinity, 0},
      {0x70ABFE, kNaN, 0},        {0xFFFFFF, kNaN, 0xFFFFFF},  // 1 to any power is 1
  };
  for (const auto& [color, gamma, same] : rows)
    EXPECT_EQ(seen(color, gamma), (Seen{same, same, same})) << std::hex << color << " at " << gamma;
}

// Each of these divides by zero or starts from what is no number.
TEST(DichromatTest, AnyTristimulusValuesGiveAColour) {
  const std::tuple<Double, Double, Double, Int32, Color> rows[] = {
      {0.5, 0.5, -1, 0, RGB(0, 182, 255)}, {0.5, 0.5, -1, 2, RGB(0, 209, 213)},
      {kNaN, kNaN, kNaN, 0, kBlack},       {kInfinity, 0.5, -kInfinity, 2, kBlack},
      {0.5, kInfinity, 0.5, 1, kBlack},    {0.171, 0.5, 0.329, 2, kBlack},  // above the confusion point
  };
  for (const auto& [x, y, z, index, colour] : rows) {
    zrXYZ xyz(kWhite);
    xyz.x = x;
    xyz.y = y;
    xyz.z = z;
    EXPECT_EQ(xyz.getDichromatTranformation(index, kWhite), colour) << x << ", " << y << ", " << z;
  }
}

}  // namespace
}  // namespace tavrelkin

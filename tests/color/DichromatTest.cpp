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
constexpr Int32 kDeficiencies[] = {0, 1, 2};

zrXYZ taken(Color c, Double gamma) {
  zrXYZ xyz(c);
  xyz.gamma = gamma;
  xyz.XYZFromRGB(c);
  return xyz;
}

void set(zrXYZ& xyz, Double x, Double y, Double z) {
  xyz.x = x;
  xyz.y = y;
  xyz.z = z;
}

Color seen(Color c, Double gamma, Int32 index) {
  return taken(c, gamma).getDichromatTranformation(index, c);
}

TEST(DichromatTest, SeesTheTable) {
  std::istringstream table{std::string(test::kDichromatTable)};
  int rows = 0;
  for (std::uint32_t color = 0; table >> std::hex >> color; ++rows) {
    for (const Double gamma : test::kTableGammas) {
      for (const Int32 index : kDeficiencies) {
        std::uint32_t expected = 0;
        table >> expected;
        EXPECT_EQ(seen(Color{color}, gamma, index).bits, expected)
            << std::hex << color << " at " << gamma << ", " << index;
      }
    }
  }
  EXPECT_EQ(rows, 54);
}

TEST(DichromatTest, LooksAtTheHeldColourAndAGammaWrittenAfterwardsOnlyEncodes) {
  zrXYZ xyz(RGB(0x33, 0x66, 0x99));
  EXPECT_EQ(xyz.getDichromatTranformation(0, kBlack), RGB(83, 97, 148));
  EXPECT_EQ(xyz.getDichromatTranformation(0, kWhite), RGB(83, 97, 148));
  xyz.gamma = 1.0;
  EXPECT_EQ(xyz.getDichromatTranformation(0, kBlack), RGB(21, 30, 77));
  EXPECT_EQ(xyz.getDichromatTranformation(1, kBlack), RGB(16, 31, 83));
  EXPECT_EQ(xyz.getDichromatTranformation(2, kBlack), RGB(3, 39, 46));
}

TEST(DichromatTest, RefusesAnotherIndex) {
  for (const Int32 index : {-1, 3})
    EXPECT_THROW(zrXYZ(kWhite).getDichromatTranformation(index, kWhite), OutOfBoundsException) << index;
}

TEST(DichromatTest, EndsAtTheBoundsAndForGammasWithoutSense) {
  struct Row {
    Color color;
    Double gamma;
    Color seen;  // with each deficiency
  };
  const Row rows[] = {
      {kBlack, 1.8, kBlack},
      {kWhite, 1.8, kWhite},
      {kBlack, 0.0, kWhite},  // every channel becomes 1
      {RGB(112, 171, 255), -0.0, kWhite},
      {kBlack, -1.8, kBlack},  // infinite, and then no number
      {RGB(255, 0, 0), -1.8, kBlack},
      {RGB(128, 128, 128), -1.8, kWhite},  // above 1 throughout
      {RGB(112, 171, 254), kInfinity, kBlack},
      {kWhite, kInfinity, kWhite},
      {RGB(112, 171, 255), -kInfinity, kBlack},
      {RGB(112, 171, 254), kNaN, kBlack},
      {kWhite, kNaN, kWhite},  // 1 to any power is 1
  };
  for (const Row& row : rows) {
    for (const Int32 index : kDeficiencies)
      EXPECT_EQ(seen(row.color, row.gamma, index), row.seen) << std::hex << row.color.bits << " at " << row.gamma;
  }
}

TEST(DichromatTest, ASumOfZeroDividesNothing) {
  zrXYZ xyz(kWhite);
  set(xyz, 0.5, 0.5, -1);
  EXPECT_EQ(xyz.getDichromatTranformation(0, kWhite), RGB(0, 182, 255));
  EXPECT_EQ(xyz.getDichromatTranformation(1, kWhite), RGB(0, 195, 255));
  EXPECT_EQ(xyz.getDichromatTranformation(2, kWhite), RGB(0, 209, 213));
}

// Each divides by zero or starts from what is no number.
TEST(DichromatTest, WhatIsNoNumberIsBlack) {
  struct Row {
    const char* name;
    Int32 index;
    void (*prepare)(zrXYZ&);
  };
  const Row rows[] = {
      {"NaN", 0, [](zrXYZ& xyz) { set(xyz, kNaN, kNaN, kNaN); }},
      {"y infinite", 1, [](zrXYZ& xyz) { set(xyz, 0.5, kInfinity, 0.5); }},
      {"sum of opposite infinities", 2, [](zrXYZ& xyz) { set(xyz, kInfinity, 0.5, -kInfinity); }},
      {"colour above the confusion point", 2, [](zrXYZ& xyz) { set(xyz, 0.171, 0.5, 0.329); }},
  };
  for (const Row& row : rows) {
    zrXYZ xyz(kWhite);
    row.prepare(xyz);
    EXPECT_EQ(xyz.getDichromatTranformation(row.index, kWhite), kBlack) << row.name;
  }
}

}  // namespace
}  // namespace tavrelkin

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <limits>

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

TEST(DichromatTest, WorkedByHand) {
  struct Row {
    Color color;
    Double gamma;
    Color seen[3];
  };
  const Row rows[] = {
      {kBlack, 1.8, {kBlack, kBlack, kBlack}},
      {kWhite, 1.8, {kWhite, kWhite, kWhite}},
      {kWhite, 0.0001, {kWhite, kWhite, kWhite}},
      {RGB(128, 128, 128), 1.8, {RGB(134, 127, 127), RGB(145, 123, 128), RGB(133, 126, 138)}},
      {RGB(128, 128, 128), 2.2, {RGB(133, 127, 127), RGB(142, 124, 128), RGB(132, 126, 136)}},
      {RGB(255, 0, 0), 1.8, {RGB(130, 110, 21), RGB(149, 103, 0), RGB(254, 14, 0)}},
      {RGB(0, 0, 255), 1.8, {RGB(0, 57, 143), RGB(0, 62, 116), RGB(0, 67, 71)}},
      {RGB(0, 255, 0), 2.2, {RGB(250, 218, 0), RGB(255, 206, 55), RGB(118, 237, 255)}},
      // A shift that counted negative differences as well would change this one.
      {RGB(0x39, 0xF6, 0x21), 1.8, {RGB(242, 206, 25), RGB(255, 193, 52), RGB(114, 226, 247)}},
  };
  for (const Row& row : rows) {
    for (const Int32 index : kDeficiencies)
      EXPECT_EQ(seen(row.color, row.gamma, index), row.seen[index]) << std::hex << row.color.bits << ' ' << index;
  }
}

TEST(DichromatTest, SeesTheTable) {
  for (const test::DichromatRow& row : test::kDichromatRows) {
    for (std::size_t i = 0; i < std::size(row.seen); ++i) {
      const Double gamma = test::kTableGammas[i / 3];
      const auto index = static_cast<Int32>(i % 3);
      EXPECT_EQ(seen(Color{row.color}, gamma, index).bits, row.seen[i])
          << std::hex << row.color << " at " << gamma << ", " << index;
    }
  }
}

TEST(DichromatTest, LooksAtTheHeldColourOnly) {
  const Color held = RGB(0x39, 0xF6, 0x21);
  const zrXYZ xyz = taken(held, 1.8);
  for (const Int32 index : {2, 0, 1, 1, 0, 2}) {
    for (const Color argument : {kBlack, kWhite, held})
      EXPECT_EQ(xyz.getDichromatTranformation(index, argument), seen(held, 1.8, index));
  }
}

TEST(DichromatTest, GammaWrittenAfterwardsOnlyEncodes) {
  zrXYZ xyz(RGB(0x33, 0x66, 0x99));
  EXPECT_EQ(xyz.getDichromatTranformation(0, kBlack), RGB(83, 97, 148));
  xyz.gamma = 1.0;
  EXPECT_EQ(xyz.getDichromatTranformation(0, kBlack), RGB(21, 30, 77));
  EXPECT_EQ(xyz.getDichromatTranformation(1, kBlack), RGB(16, 31, 83));
  EXPECT_EQ(xyz.getDichromatTranformation(2, kBlack), RGB(3, 39, 46));
}

TEST(DichromatTest, RefusesAnotherIndex) {
  const zrXYZ xyz(kWhite);
  for (const Int32 index : {-1, 3, std::numeric_limits<Int32>::min(), std::numeric_limits<Int32>::max()})
    EXPECT_THROW(xyz.getDichromatTranformation(index, kWhite), OutOfBoundsException) << index;
}

TEST(DichromatTest, GammasWithoutSense) {
  struct Row {
    Color color;
    Double gamma;
    Color seen;  // with each deficiency
  };
  const Row rows[] = {
      {kBlack, 0.0, kWhite},  // every channel becomes 1
      {RGB(112, 171, 255), 0.0, kWhite},
      {RGB(112, 171, 255), -0.0, kWhite},
      {kBlack, -1.8, kBlack},  // infinite, and then no number
      {RGB(255, 0, 0), -1.8, kBlack},
      {RGB(128, 128, 128), -1.8, kWhite},  // above 1 throughout
      {kWhite, -1.8, kWhite},
      {kBlack, kInfinity, kBlack},
      {RGB(112, 171, 254), kInfinity, kBlack},
      {kWhite, kInfinity, kWhite},
      {kBlack, -kInfinity, kBlack},
      {RGB(112, 171, 255), -kInfinity, kBlack},
      {kWhite, -kInfinity, kWhite},
      {RGB(112, 171, 254), kNaN, kBlack},
      {kWhite, kNaN, kWhite},  // 1 to any power is 1
  };
  for (const Row& row : rows) {
    for (const Int32 index : kDeficiencies)
      EXPECT_EQ(seen(row.color, row.gamma, index), row.seen) << std::hex << row.color.bits << " at " << row.gamma;
  }
}

// A negative exponent takes what lies between 0 and 1 above 1, and the channel ends at its bound.
TEST(DichromatTest, NegativeGammasLeaveNothingBetween) {
  for (const Double gamma : {-0.0001, -1.0, -2.2, -1e300, -std::numeric_limits<Double>::denorm_min()}) {
    for (std::uint32_t bits = 0; bits <= 0xFFFFFF; bits += 9973) {
      for (const Int32 index : kDeficiencies) {
        const Color c = seen(Color{bits}, gamma, index);
        for (const Int32 channel : {c.red(), c.green(), c.blue()})
          ASSERT_TRUE(channel == 0 || channel == 255) << std::hex << bits << " at " << gamma << ", " << index;
      }
    }
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
      {"x infinite", 0, [](zrXYZ& xyz) { set(xyz, kInfinity, 0.5, 0.5); }},
      {"y infinite", 1, [](zrXYZ& xyz) { set(xyz, 0.5, kInfinity, 0.5); }},
      {"sum of opposite infinities", 2, [](zrXYZ& xyz) { set(xyz, kInfinity, 0.5, -kInfinity); }},
      {"colour above the confusion point", 2, [](zrXYZ& xyz) { set(xyz, 0.171, 0.5, 0.329); }},
      {"parallel lines", 0,
       [](zrXYZ& xyz) {
         set(xyz, 1, 1, 1);
         xyz.confusionPoints[0] = {1, 1};
         xyz.ColorAxesBU[0] = 0;
         xyz.ColorAxesBV[0] = 0.5;
         xyz.ColorAxesEU[0] = 0.5;
         xyz.ColorAxesEV[0] = 1;
       }},
      {"crossing at height 0", 0,
       [](zrXYZ& xyz) {
         set(xyz, 0.5, 0, 0.5);
         xyz.confusionPoints[0] = {0.9, 0};
       }},
  };
  for (const Row& row : rows) {
    zrXYZ xyz(kWhite);
    row.prepare(xyz);
    EXPECT_EQ(xyz.getDichromatTranformation(row.index, kWhite), kBlack) << row.name;
  }
}

}  // namespace
}  // namespace tavrelkin

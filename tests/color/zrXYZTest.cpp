#include <gtest/gtest.h>

#include "color/zrXYZ.h"

namespace tavrelkin {
namespace {

struct Triple {
  Double first, second, third;
};

void expectHolds(const zrXYZ& xyz, const Triple& expected) {
  EXPECT_DOUBLE_EQ(xyz.x, expected.first);
  EXPECT_DOUBLE_EQ(xyz.y, expected.second);
  EXPECT_DOUBLE_EQ(xyz.z, expected.third);
}

TEST(zrXYZTest, TakesAColour) {
  struct Row {
    Color color;
    Double gamma;
    Triple expected;
  };
  constexpr Triple white{0.9505, 1.0, 1.089};
  const Row rows[] = {
      {kBlack, 1.8, {0, 0, 0}},
      {kBlack, 0, white},  // any channel to the power of 0 is 1
      {kWhite, -1.8, white},
      {RGB(255, 0, 0), 1.7, {0.4306, 0.222, 0.0202}},
      {RGB(0, 255, 0), 1.7, {0.3416, 0.7067, 0.1296}},
      {RGB(0, 0, 255), 1.7, {0.1783, 0.0713, 0.9392}},
      {RGB(128, 128, 128), 1.8, {0.2748892407695465, 0.2892048824508643, 0.3149441169889912}},
      {RGB(51, 0, 0), 1.0, {0.4306 / 5, 0.222 / 5, 0.0202 / 5}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(testing::Message() << std::hex << row.color.bits << " at " << row.gamma);
    zrXYZ xyz(RGB(1, 2, 3));
    xyz.gamma = row.gamma;
    xyz.XYZFromRGB(row.color);
    expectHolds(xyz, row.expected);
  }
}

TEST(zrXYZTest, GammaCountsOnlyWhenAColourIsTaken) {
  const Color grey = RGB(128, 128, 128);
  constexpr Triple atDefault{0.20865349203016192, 0.2195197180748679, 0.23905697298353112};
  zrXYZ xyz(grey);
  EXPECT_EQ(xyz.gamma, 2.2);
  expectHolds(xyz, atDefault);
  xyz.gamma = 1.8;
  expectHolds(xyz, atDefault);
  xyz.XYZFromRGB(grey);
  EXPECT_GT(xyz.y, 0.28);

  xyz.initClass();
  EXPECT_EQ(xyz.gamma, 2.2);
  EXPECT_GT(xyz.y, 0.28);
}

TEST(zrXYZTest, ConvertsToLinearChannels) {
  struct Row {
    Triple from, expected;
  };
  const Row rows[] = {
      {{1, 0, 0}, {3.0632, -0.9692, 0.0679}},
      {{0, 1, 0}, {-1.3416, 1.876, -0.2289}},
      {{0, 0, 1}, {-0.4758, 0.046, 1.0693}},
      {{0.9505, 1.0, 1.089}, {1.0518254, 1.0048694, 1.00010665}},  // white comes back too red
  };
  const zrXYZ xyz(RGB(255, 128, 0));
  for (const Row& row : rows) {
    Double r = 9;
    Double g = 9;
    Double b = 9;
    xyz.RGB2FromXYZ(row.from.first, row.from.second, row.from.third, r, g, b);
    EXPECT_DOUBLE_EQ(r, row.expected.first);
    EXPECT_DOUBLE_EQ(g, row.expected.second);
    EXPECT_DOUBLE_EQ(b, row.expected.third);
  }
}

// A factor that is off by its last digit changes the result of one of the rows with large values.
TEST(zrXYZTest, ConvertsToAColour) {
  struct Row {
    Triple from;
    Color expected;
  };
  const Row rows[] = {
      {{0, 0, 0}, kBlack},
      {{0.3, 0.3, 0.3}, RGB(91, 72, 69)},
      {{0.1, 0.5, 0.2}, RGB(0, 216, 27)},          // red is -123.8
      {{0.9505, 1.0, 1.089}, RGB(255, 254, 255)},  // green is 254.99
      {{26762.671, 52303, 19135}, RGB(88, 255, 255)},
      {{28759, 13818.348, 46972}, RGB(255, 54, 255)},
      {{40546, 43361, 6706.768}, RGB(255, 255, 164)},
  };
  const zrXYZ xyz(kBlack);
  for (const Row& row : rows)
    EXPECT_EQ(xyz.RGBFromXYZ(row.from.first, row.from.second, row.from.third), row.expected) << row.from.first;
}

TEST(zrXYZTest, GivesWholePartsOfLinearChannels) {
  struct Row {
    Triple held;
    Color expected;
  };
  const Row rows[] = {
      {{0.9505, 1.0, 1.089}, RGB(0, 1, 0)},
      {{1, 0, 0}, RGB(1, 0, 0)},
      {{0.2, 0.2, 0.2}, kBlack},
      {{64808.865, 166755, 119816}, RGB(158, 255, 255)},
      {{109968, 56053.892, 133212}, RGB(255, 54, 255)},
      {{181281, 160652, 9580.747}, RGB(255, 255, 174)},
  };
  zrXYZ xyz(kBlack);
  for (const Row& row : rows) {
    xyz.x = row.held.first;
    xyz.y = row.held.second;
    xyz.z = row.held.third;
    EXPECT_EQ(xyz.getRGBColor(), row.expected) << row.held.first;
  }
}

}  // namespace
}  // namespace tavrelkin

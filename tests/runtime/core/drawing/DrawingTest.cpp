#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <functional>
#include <limits>
#include <random>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

#include "runtime/core/drawing/Color.h"
#include "runtime/core/drawing/Graphics.h"
#include "runtime/core/drawing/Picture.h"

namespace tavrelkin {
namespace {

constexpr Color kInk{0x123456};
constexpr Double kNaN = std::numeric_limits<Double>::quiet_NaN();
constexpr Double kInfinity = std::numeric_limits<Double>::infinity();
constexpr Int32 kLeast = std::numeric_limits<Int32>::min();
constexpr Int32 kMost = std::numeric_limits<Int32>::max();
constexpr Int32 kNatural = Graphics::kNaturalSize;

// The steps of 51 include black, white and each value of each channel.
TEST(ColorTest, ComesBackFromItsReaders) {
  for (std::uint32_t bits = 0; bits <= 0xFFFFFF; bits += 51) {
    const Color c{bits};
    ASSERT_EQ(HSV(readColorHue(c), readColorSaturation(c), readColorValue(c)), c) << std::hex << bits;
    ASSERT_EQ(CMY(readColorCyan(c), readColorMagenta(c), readColorYellow(c)), c) << std::hex << bits;
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

// The number of pixels that a drawing changes in a picture of 10 by 10.
int inked(const std::function<void(Graphics&)>& draw) {
  const Ref<Picture> picture = NewPicture(10, 10, 32);
  picture->Graphics().ForeColor = kInk;
  draw(picture->Graphics());
  int count = 0;
  for (Int32 i = 0; i < 100; ++i)
    count += picture->Graphics().Pixel(i % 10, i / 10) == kInk;
  return count;
}

TEST(GraphicsTest, ShapesAreClippedAtAnyNumbers) {
  // The second pair is the size of a rectangle, or the other end of a line.
  const struct {
    Int32 x, y, a, b;
    std::array<int, 3> inked;  // of a filled rectangle, an outline and a line
  } rows[] = {
      {2, 3, 4, 5, {20, 14, 3}},
      {2, 3, 1, 1, {1, 1, 3}},
      {2, 3, 4, -1, {0, 0, 4}},
      {-2, -2, 4, 4, {4, 3, 5}},
      {8, 8, 10, 10, {4, 3, 2}},
      {-5, 5, 20, 5, {50, 20, 10}},
      {0, -1, 9, -1, {0, 0, 0}},
      {12, 0, 12, 9, {0, 0, 0}},
      {kLeast, 3, kMost, 3, {0, 0, 10}},
      {kLeast, kLeast, kMost, kMost, {0, 0, 10}},
      {kMost, kMost, kMost, kMost, {0, 0, 0}},
      {-1, -1, kMost, kMost, {100, 0, 10}},
  };
  for (const auto& row : rows) {
    const std::array is{inked([&](Graphics& g) { g.FillRect(row.x, row.y, row.a, row.b); }),
                        inked([&](Graphics& g) { g.DrawRect(row.x, row.y, row.a, row.b); }),
                        inked([&](Graphics& g) { g.DrawLine(row.x, row.y, row.a, row.b); })};
    EXPECT_EQ(is, row.inked) << "row " << &row - rows;
  }
}

TEST(GraphicsTest, ALineKeepsToTheIdealOneAndIsTheSameWhereItIsCutOff) {
  for (Int32 i = 0; i < 29 * 29; ++i) {
    const Int32 x2 = i % 29 - 14;
    const Int32 y2 = i / 29 - 14;
    const Ref<Picture> whole = NewPicture(40, 40, 32);
    const Ref<Picture> cut = NewPicture(10, 10, 32);
    whole->Graphics().DrawLine(20, 20, 20 + x2, 20 + y2);
    cut->Graphics().DrawLine(5, 5, 5 + x2, 5 + y2);
    const Int32 length = std::max(std::abs(x2), std::abs(y2));
    int count = 0;
    for (Int32 y = -20; y < 20; ++y) {
      for (Int32 x = -20; x < 20; ++x) {
        const Color c = whole->Graphics().Pixel(20 + x, 20 + y);
        if (std::max(std::abs(x), std::abs(y)) <= 4) {
          ASSERT_EQ(cut->Graphics().Pixel(5 + x, 5 + y), c) << x2 << " " << y2;
        }
        if (c == kWhite) continue;
        ++count;
        // The left side is twice the distance from the ideal line along the shorter axis, times the length.
        ASSERT_LE(2 * std::abs(x * y2 - y * x2), length) << x2 << " " << y2 << " at " << x << " " << y;
      }
    }
    ASSERT_EQ(count, length + 1) << x2 << " " << y2;
    ASSERT_EQ(whole->Graphics().Pixel(20, 20), kBlack);
    ASSERT_EQ(whole->Graphics().Pixel(20 + x2, 20 + y2), kBlack);
  }
}

// Compares each pixel of the destination with the rule itself.
TEST(GraphicsTest, APictureShowsForEachPixelTheSourcePixelBelowItAtAnyNumbers) {
  std::vector<std::array<Int32, 8>> cases{{2, 3, kNatural, kNatural, 1, 1, kNatural, kNatural},
                                          {0, 0, kMost, kMost, 0, 0, 4, 3},
                                          {kMost, kMost, kMost, kMost, kMost, kMost, kMost, kMost},
                                          {kLeast, 0, kMost, 3, kMost, 0, kMost, 3},
                                          {0, 0, 1, 1, 3, 2, kMost, kMost},
                                          {0, 0, kLeast, 3, 0, 0, kLeast, 3}};
  std::mt19937 random(1);
  const auto between = [&random](Int32 least, Int32 most) {
    return std::uniform_int_distribution<Int32>(least, most)(random);
  };
  for (int i = 0; i < 500; ++i)
    cases.push_back({between(-6, 14), between(-6, 14), between(0, 20), between(0, 20), between(-3, 6), between(-3, 6),
                     between(0, 8), between(0, 8)});
  const Ref<Picture> source = NewPicture(5, 4, 32);
  for (Int32 i = 0; i < 20; ++i)
    source->Graphics().Pixel(i % 5, i / 5, RGB(i * 10, 50, 7));
  // The source coordinate for a destination coordinate on one axis; -1 if there is none.
  const auto from = [](std::int64_t at, Int32 position, Int32 size, Int32 sourcePosition, Int32 sourceSize,
                       int natural) {
    const std::int64_t length = size == kNatural ? natural : size;
    const std::int64_t sourceLength = sourceSize == kNatural ? natural : sourceSize;
    if (at < position || at >= position + length || sourceLength < 1) return -1;
    const std::int64_t found = sourcePosition + (at - position) * sourceLength / length;
    return found < natural ? static_cast<Int32>(found) : -1;
  };
  for (const auto& [x, y, w, h, sx, sy, sw, sh] : cases) {
    const Ref<Picture> drawn = NewPicture(12, 12, 32);
    drawn->Graphics().DrawPicture(*source, x, y, w, h, sx, sy, sw, sh);
    for (Int32 i = 0; i < 144; ++i) {
      const Int32 fromX = from(i % 12, x, w, sx, sw, 5);
      const Int32 fromY = from(i / 12, y, h, sy, sh, 4);
      const Color expected = fromX < 0 || fromY < 0 ? kWhite : source->Graphics().Pixel(fromX, fromY);
      ASSERT_EQ(drawn->Graphics().Pixel(i % 12, i / 12), expected)
          << x << " " << y << " " << w << " " << h << " " << sx << " " << sy << " " << sw << " " << sh << " at " << i;
    }
  }
}

TEST(GraphicsTest, AMaskLetsBlackThroughAndKeepsWhiteBack) {
  const Ref<Picture> stamp = NewPicture(3, 1, 32);
  const Ref<Picture> ground = NewPicture(3, 1, 32);
  stamp->Graphics().FillRect(0, 0, 3, 1);
  stamp->Mask(true)->Graphics().Pixel(1, 0, kBlack);
  stamp->Mask(true)->Graphics().Pixel(2, 0, RGB(127, 127, 127));
  ground->Graphics().DrawPicture(*stamp, 0, 0);
  const Color wanted[] = {kWhite, kBlack, RGB(127, 127, 127)};
  for (Int32 x = 0; x < 3; ++x)
    EXPECT_EQ(ground->Graphics().Pixel(x, 0), wanted[x]) << x;
}

TEST(PictureTest, IsNilForASizeThatNoPictureHasAndBlackOutside) {
  for (const auto& [width, height] : {std::array{0, 5}, {5, -1}, {32768, 1}, {kMost, kMost}})
    EXPECT_FALSE(NewPicture(width, height, 32)) << width << " " << height;
  const Ref<Picture> picture = NewPicture(32767, 2, 32);
  const RGBSurface pixels = picture->RGBSurface();
  picture->Graphics().Pixel(32766, 1, kInk);
  EXPECT_EQ(pixels.Pixel(32766, 1), kInk);
  for (const auto& [x, y] : {std::array{-1, 0}, {0, -1}, {32767, 0}, {0, 2}})
    EXPECT_EQ(pixels.Pixel(x, y), kBlack) << x << " " << y;
}

}  // namespace
}  // namespace tavrelkin

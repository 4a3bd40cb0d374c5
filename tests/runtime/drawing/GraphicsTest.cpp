#include <algorithm>
#include <array>
#include <cstdlib>
#include <functional>
#include <limits>
#include <random>
#include <tuple>

#include <gtest/gtest.h>

#include "runtime/drawing/Graphics.h"
#include "runtime/drawing/Picture.h"
#include "runtime/drawing/RGBSurface.h"

namespace tavrelkin {
namespace {

constexpr Color kInk{0x123456};
constexpr Int32 kLeast = std::numeric_limits<Int32>::min();
constexpr Int32 kMost = std::numeric_limits<Int32>::max();
constexpr Int32 kNatural = Graphics::kNaturalSize;

// How many pixels of 10 by 10 a drawing inks.
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
  // The second pair is a size, and the other end of a line.
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
    const Int32 x2 = i % 29 - 14, y2 = i / 29 - 14;
    const Ref<Picture> whole = NewPicture(40, 40, 32), cut = NewPicture(10, 10, 32);
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
        // Twice its distance along the shorter axis from the ideal line, times the length.
        ASSERT_LE(2 * std::abs(x * y2 - y * x2), length) << x2 << " " << y2 << " at " << x << " " << y;
      }
    }
    ASSERT_EQ(count, length + 1) << x2 << " " << y2;
    ASSERT_EQ(whole->Graphics().Pixel(20, 20), kBlack);
    ASSERT_EQ(whole->Graphics().Pixel(20 + x2, 20 + y2), kBlack);
  }
}

TEST(GraphicsTest, APictureIsClippedAtAnyNumbersAndMayHaveItsNaturalSize) {
  const struct {
    Int32 x, y, width, height, sourceX, sourceY, sourceWidth, sourceHeight;
    int drawn;
  } rows[] = {
      {2, 3, kNatural, kNatural, 1, 1, kNatural, kNatural, 6},
      {0, 0, 8, kNatural, 0, 0, 2, 3, 24},
      {0, 0, kMost, kMost, 0, 0, 4, 3, 100},
      {kMost, kMost, kMost, kMost, kMost, kMost, kMost, kMost, 0},
      {kLeast, 0, kMost, 3, kMost, 0, kMost, 3, 0},
      {0, 0, 1, 1, 3, 2, kMost, kMost, 1},
      {0, 0, kLeast, 3, 0, 0, kLeast, 3, 0},
  };
  const Ref<Picture> source = NewPicture(4, 3, 32);
  source->Graphics().ForeColor = kInk;
  source->Graphics().FillRect(0, 0, 4, 3);
  for (const auto& [x, y, width, height, sourceX, sourceY, sourceWidth, sourceHeight, drawn] : rows) {
    const auto draw = [&, args = std::array{x, y, width, height, sourceX, sourceY, sourceWidth, sourceHeight}](
                          Graphics& g) { std::apply([&](auto... each) { g.DrawPicture(*source, each...); }, args); };
    EXPECT_EQ(inked(draw), drawn) << x << " " << width << " " << sourceX << " " << sourceWidth;
  }
}

// Against the rule itself, applied to each pixel of the destination.
TEST(GraphicsTest, ScalingShowsForEachPixelTheSourcePixelBelowIt) {
  std::mt19937 random(1);
  const auto between = [&random](Int32 least, Int32 most) {
    return std::uniform_int_distribution<Int32>(least, most)(random);
  };
  const Ref<Picture> source = NewPicture(5, 4, 32);
  for (Int32 i = 0; i < 20; ++i)
    source->Graphics().Pixel(i % 5, i / 5, RGB(i * 10, 50, 7));
  for (int round = 0; round < 500; ++round) {
    const Int32 x = between(-6, 14), y = between(-6, 14), w = between(0, 20), h = between(0, 20);
    const Int32 sx = between(-3, 6), sy = between(-3, 6), sw = between(0, 8), sh = between(0, 8);
    const Ref<Picture> drawn = NewPicture(12, 12, 32);
    drawn->Graphics().DrawPicture(*source, x, y, w, h, sx, sy, sw, sh);
    for (Int32 i = 0; i < 144; ++i) {
      const Int32 px = i % 12, py = i / 12;
      const bool covered = px >= x && px < x + w && py >= y && py < y + h && sw > 0 && sh > 0;
      const Int32 fromX = covered ? sx + (px - x) * sw / w : -1;
      const Int32 fromY = covered ? sy + (py - y) * sh / h : -1;
      const bool exists = fromX >= 0 && fromX < 5 && fromY >= 0 && fromY < 4;
      const Color expected = exists ? source->Graphics().Pixel(fromX, fromY) : kWhite;
      ASSERT_EQ(drawn->Graphics().Pixel(px, py), expected) << "round " << round << " at " << px << ", " << py;
    }
  }
}

TEST(GraphicsTest, AMaskLetsBlackThroughAndKeepsWhiteBack) {
  const Ref<Picture> stamp = NewPicture(3, 1, 32), ground = NewPicture(3, 1, 32);
  stamp->Graphics().FillRect(0, 0, 3, 1);
  stamp->Mask(true)->Graphics().Pixel(1, 0, kBlack);
  stamp->Mask(true)->Graphics().Pixel(2, 0, RGB(127, 127, 127));
  ground->Graphics().DrawPicture(*stamp, 0, 0);
  const Color wanted[] = {kWhite, kBlack, RGB(127, 127, 127)};
  for (Int32 x = 0; x < 3; ++x)
    EXPECT_EQ(ground->Graphics().Pixel(x, 0), wanted[x]) << x;
}

TEST(PictureTest, IsNilForASizeOrDepthThatNoPictureHasAndBlackOutside) {
  for (const auto& [width, height, depth] :
       {std::array{0, 5, 32}, {5, -1, 32}, {32768, 1, 32}, {5, 5, 31}, {kMost, kMost, 32}})
    EXPECT_FALSE(NewPicture(width, height, depth)) << width << " " << height << " " << depth;
  const Ref<Picture> picture = NewPicture(32767, 2, 32);
  const RGBSurface pixels = picture->RGBSurface();
  picture->Graphics().Pixel(32766, 1, kInk);
  EXPECT_EQ(pixels.Pixel(32766, 1), kInk);
  for (const auto& [x, y] : {std::array{-1, 0}, {0, -1}, {32767, 0}, {0, 2}})
    EXPECT_EQ(pixels.Pixel(x, y), kBlack) << x << " " << y;
}

}  // namespace
}  // namespace tavrelkin

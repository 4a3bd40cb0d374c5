#include <algorithm>
#include <array>
#include <cstdlib>
#include <limits>
#include <random>

#include <gtest/gtest.h>

#include "runtime/drawing/Graphics.h"
#include "runtime/drawing/Picture.h"
#include "runtime/drawing/RGBSurface.h"

namespace tavrelkin {
namespace {

constexpr Color kInk{0x123456};
constexpr Int32 kLeast = std::numeric_limits<Int32>::min();
constexpr Int32 kMost = std::numeric_limits<Int32>::max();

int inked(const Picture& picture) {
  int count = 0;
  for (Int32 y = 0; y < picture.Height(); ++y) {
    for (Int32 x = 0; x < picture.Width(); ++x) {
      count += Color{picture.surface().row(y)[x]} == kInk;
    }
  }
  return count;
}

TEST(GraphicsTest, RectanglesLieInsideTheirBoundsAndAreClippedAnywhere) {
  const struct {
    Int32 left, top, width, height;
    int filled, outlined;
  } rows[] = {
      {2, 3, 4, 5, 20, 14},
      {2, 3, 1, 1, 1, 1},
      {2, 3, 4, -1, 0, 0},
      {-2, -2, 4, 4, 4, 3},
      {8, 8, 10, 10, 4, 3},
      {kLeast, kLeast, kMost, kMost, 0, 0},
      {kMost, kMost, kMost, kMost, 0, 0},
      {-1, -1, kMost, kMost, 100, 0},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(testing::Message() << row.left << " " << row.top << " " << row.width << " " << row.height);
    const Ref<Picture> filled = NewPicture(10, 10, 32);
    filled->Graphics().ForeColor = kInk;
    filled->Graphics().FillRect(row.left, row.top, row.width, row.height);
    EXPECT_EQ(inked(*filled), row.filled);
    const Ref<Picture> outlined = NewPicture(10, 10, 32);
    outlined->Graphics().ForeColor = kInk;
    outlined->Graphics().DrawRect(row.left, row.top, row.width, row.height);
    EXPECT_EQ(inked(*outlined), row.outlined);
  }
}

TEST(GraphicsTest, LinesAreClippedAnywhere) {
  const struct {
    Int32 x1, y1, x2, y2;
    int count;
  } rows[] = {{-5, 5, 20, 5, 10},
              {0, -1, 9, -1, 0},
              {12, 0, 12, 9, 0},
              {kLeast, 3, kMost, 3, 10},
              {kLeast, kLeast, kMost, kMost, 10}};
  for (const auto& row : rows) {
    const Ref<Picture> picture = NewPicture(10, 10, 32);
    picture->Graphics().ForeColor = kInk;
    picture->Graphics().DrawLine(row.x1, row.y1, row.x2, row.y2);
    EXPECT_EQ(inked(*picture), row.count) << row.x1 << " " << row.y1 << " " << row.x2 << " " << row.y2;
  }
}

TEST(GraphicsTest, ALineKeepsToTheIdealOneAndIsTheSameWhereItIsCutOff) {
  for (Int32 x2 = -14; x2 <= 14; ++x2) {
    for (Int32 y2 = -14; y2 <= 14; ++y2) {
      const Ref<Picture> whole = NewPicture(40, 40, 32);
      whole->Graphics().DrawLine(20, 20, 20 + x2, 20 + y2);
      const Ref<Picture> cut = NewPicture(10, 10, 32);
      cut->Graphics().DrawLine(5, 5, 5 + x2, 5 + y2);
      const Int32 length = std::max(std::abs(x2), std::abs(y2));
      int count = 0;
      for (Int32 y = -20; y < 20; ++y) {
        for (Int32 x = -20; x < 20; ++x) {
          const Color c = whole->Graphics().Pixel(20 + x, 20 + y);
          if (std::abs(x) <= 4 && std::abs(y) <= 4) {
            ASSERT_EQ(cut->Graphics().Pixel(5 + x, 5 + y), c);
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
}

TEST(GraphicsTest, APictureIsClippedAtAnyNumbersAndMayHaveItsNaturalSize) {
  constexpr Int32 natural = Graphics::kNaturalSize;
  const struct {
    Int32 x, y, width, height, sourceX, sourceY, sourceWidth, sourceHeight;
    int drawn;
  } rows[] = {
      {2, 3, natural, natural, 1, 1, natural, natural, 6},
      {-1, -1, natural, 6, 0, 0, natural, natural, 15},
      {0, 0, 8, natural, 0, 0, 2, 3, 24},
      {0, 0, kMost, kMost, 0, 0, 4, 3, 100},
      {kLeast, kLeast, kMost, kMost, 0, 0, 4, 3, 0},
      {kMost, kMost, kMost, kMost, kMost, kMost, kMost, kMost, 0},
      {kLeast, 0, kMost, 3, kMost, 0, kMost, 3, 0},
      {0, 0, 1, 1, 3, 2, kMost, kMost, 1},
      {0, 0, kLeast, 3, 0, 0, kLeast, 3, 0},
  };
  const Ref<Picture> source = NewPicture(4, 3, 32);
  source->Graphics().ForeColor = kInk;
  source->Graphics().FillRect(0, 0, 4, 3);
  for (const auto& row : rows) {
    const Ref<Picture> ground = NewPicture(10, 10, 32);
    ground->Graphics().DrawPicture(*source, row.x, row.y, row.width, row.height, row.sourceX, row.sourceY,
                                   row.sourceWidth, row.sourceHeight);
    EXPECT_EQ(inked(*ground), row.drawn) << "row " << &row - rows;
  }
}

// Against the rule itself, applied to each pixel of the destination.
TEST(GraphicsTest, ScalingShowsForEachPixelTheSourcePixelBelowIt) {
  std::mt19937 random(1);
  const Ref<Picture> source = NewPicture(5, 4, 32);
  for (Int32 y = 0; y < 4; ++y) {
    for (Int32 x = 0; x < 5; ++x)
      source->Graphics().Pixel(x, y, RGB(x * 40, y * 50, 7));
  }
  const auto between = [&random](Int32 least, Int32 most) {
    return std::uniform_int_distribution<Int32>(least, most)(random);
  };
  for (int round = 0; round < 500; ++round) {
    const Int32 x = between(-6, 14), y = between(-6, 14), w = between(0, 20), h = between(0, 20);
    const Int32 sx = between(-3, 6), sy = between(-3, 6), sw = between(0, 8), sh = between(0, 8);
    const Ref<Picture> drawn = NewPicture(12, 12, 32);
    drawn->Graphics().DrawPicture(*source, x, y, w, h, sx, sy, sw, sh);
    for (Int32 py = 0; py < 12; ++py) {
      for (Int32 px = 0; px < 12; ++px) {
        const bool covered = px >= x && px < x + w && py >= y && py < y + h && sw > 0 && sh > 0;
        const Int32 fromX = covered ? sx + (px - x) * sw / w : -1;
        const Int32 fromY = covered ? sy + (py - y) * sh / h : -1;
        const bool exists = fromX >= 0 && fromX < 5 && fromY >= 0 && fromY < 4;
        const Color expected = exists ? source->Graphics().Pixel(fromX, fromY) : kWhite;
        ASSERT_EQ(drawn->Graphics().Pixel(px, py), expected) << "round " << round << " at " << px << ", " << py;
      }
    }
  }
}

TEST(GraphicsTest, AMaskLetsBlackThroughAndKeepsWhiteBack) {
  const Ref<Picture> stamp = NewPicture(3, 1, 32);
  stamp->Graphics().ForeColor = kBlack;
  stamp->Graphics().FillRect(0, 0, 3, 1);
  Graphics& mask = stamp->Mask(true)->Graphics();
  mask.Pixel(1, 0, kBlack);
  mask.Pixel(2, 0, RGB(127, 127, 127));
  const Ref<Picture> ground = NewPicture(3, 1, 32);
  ground->Graphics().DrawPicture(*stamp, 0, 0);
  EXPECT_EQ(ground->Graphics().Pixel(0, 0), kWhite);
  EXPECT_EQ(ground->Graphics().Pixel(1, 0), kBlack);
  EXPECT_EQ(ground->Graphics().Pixel(2, 0), RGB(127, 127, 127));
}

TEST(PictureTest, IsNilForASizeOrDepthThatNoPictureHas) {
  EXPECT_TRUE(NewPicture(32767, 1, 32));
  for (const auto& [width, height, depth] :
       {std::array{0, 5, 32}, {5, -1, 32}, {32768, 1, 32}, {5, 5, 31}, {kMost, kMost, 32}}) {
    EXPECT_FALSE(NewPicture(width, height, depth)) << width << " " << height << " " << depth;
  }
}

TEST(PictureTest, IsBlackOutsideAndItsSurfaceIsReadAsItIsNow) {
  const Ref<Picture> picture = NewPicture(3, 2, 32);
  const RGBSurface pixels = picture->RGBSurface();
  picture->Graphics().Pixel(2, 1, kInk);
  EXPECT_EQ(pixels.Pixel(2, 1), kInk);
  EXPECT_EQ(pixels.Pixel(0, 1), kWhite);
  for (const auto& [x, y] : {std::array{-1, 0}, {0, -1}, {3, 0}, {0, 2}})
    EXPECT_EQ(pixels.Pixel(x, y), kBlack) << x << " " << y;
}

}  // namespace
}  // namespace tavrelkin

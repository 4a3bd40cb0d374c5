#include <array>
#include <limits>

#include <gtest/gtest.h>

#include "runtime/drawing/Picture.h"
#include "runtime/drawing/RGBSurface.h"

namespace tavrelkin {
namespace {

TEST(RGBSurfaceTest, ShowsWhatThePictureHoldsAtEachRead) {
  const Ref<Picture> picture = NewPicture(3, 2, 8);
  const RGBSurface pixels = picture->RGBSurface();
  EXPECT_EQ(pixels.Pixel(2, 1), kWhite);
  picture->Graphics().Pixel(2, 1, Color{0x123456});
  picture->Mask(true)->Graphics().Pixel(0, 0, kBlack);
  for (Int32 y = 0; y < 2; ++y) {
    for (Int32 x = 0; x < 3; ++x)
      EXPECT_EQ(pixels.Pixel(x, y), x == 2 && y == 1 ? Color{0x123456} : kWhite) << x << " " << y;
  }
}

TEST(RGBSurfaceTest, IsBlackOffThePicture) {
  constexpr Int32 least = std::numeric_limits<Int32>::min();
  constexpr Int32 most = std::numeric_limits<Int32>::max();
  const Ref<Picture> picture = NewPicture(3, 2, 32);
  for (const auto& [x, y] : {std::array{-1, 0}, {0, -1}, {3, 0}, {0, 2}, {least, least}, {most, 1}, {1, most}}) {
    EXPECT_EQ(picture->RGBSurface().Pixel(x, y), kBlack) << x << " " << y;
  }
}

}  // namespace
}  // namespace tavrelkin

#include <gtest/gtest.h>

#include "runtime/drawing/Picture.h"
#include "toolwindow/ColourCells.h"
#include "toolwindow/Suggestions.h"

namespace tavrelkin {
namespace {

Color grey(Double value) {
  return HSV(0, 0, value);
}

TEST(SuggestionsTest, AGreyGivesSevenTimesTheSameSeven) {
  const struct {
    Color from;
    Color group[7];
  } rows[] = {
      {kBlack, {kBlack, grey(0.5), grey(0.75), kBlack, kBlack, grey(0.25), grey(0.125)}},
      {kWhite, {kWhite, kWhite, kWhite, grey(2.0 / 3), grey(1.0 / 3), grey(0.75), grey(0.875)}},
  };
  for (const auto& row : rows) {
    const std::vector<Color> list = suggestionsFor(row.from);
    ASSERT_EQ(list.size(), 94u);
    for (std::size_t i = 0; i < 49; ++i)
      EXPECT_EQ(list[i], row.group[i % 7]) << i;
  }
}

TEST(SuggestionsTest, RelatedHuesGoRoundTheCircle) {
  const std::vector<Color> list = suggestionsFor(Color{0xFF0000});
  const Double beyond = readColorHue(HSV(0.583, 1, 1)) + 0.333;
  const Double hues[] = {0.917, 0.083, 0.5, 0.417, 0.583, beyond, beyond + 0.333 - 1};
  for (std::size_t i = 0; i < 7; ++i)
    EXPECT_EQ(list[7 * i], HSV(hues[i], 1, 1)) << i;
}

TEST(SuggestionsTest, RampsVaryOneChannelEach) {
  const std::vector<Color> list = suggestionsFor(RGB(10, 20, 30));
  EXPECT_EQ(list[67], RGB(25, 20, 30));
  EXPECT_EQ(list[75], RGB(225, 20, 30));
  EXPECT_EQ(list[76], RGB(10, 25, 30));
  EXPECT_EQ(list[93], RGB(10, 20, 225));
}

TEST(ColourCellsTest, StandInRowsThatEndAheadOfTheRightEdge) {
  const Ref<Picture> canvas = NewPicture(408, 192, 32);
  Graphics& g = canvas->Graphics();
  drawCells(g, suggestionsFor(Color{0x123456}));
  const Color frame = RGB(144, 144, 144), ground{0xA0A0A0};
  EXPECT_EQ(g.Pixel(13, 10), frame);
  EXPECT_EQ(g.Pixel(14, 11), kWhite);
  EXPECT_EQ(g.Pixel(15, 12), suggestionsFor(Color{0x123456})[0]);
  EXPECT_EQ(g.Pixel(373, 10), frame) << "the sixteenth";
  EXPECT_EQ(g.Pixel(397, 10), ground);
  EXPECT_EQ(g.Pixel(325, 135), frame) << "the last of fourteen in the last row";
  EXPECT_EQ(g.Pixel(349, 135), ground);
  EXPECT_EQ(g.Pixel(407, 191), kWhite);

  const Ref<Picture> narrow = NewPicture(42, 192, 32);
  drawCells(narrow->Graphics(), {kBlack});
  EXPECT_EQ(narrow->Graphics().Pixel(13, 10), ground);
  EXPECT_EQ(narrow->Graphics().Pixel(13, 35), frame) << "too narrow for even one";
}

}  // namespace
}  // namespace tavrelkin

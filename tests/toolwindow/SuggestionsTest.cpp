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
  for (const auto& [i, c] :
       {std::pair{67, RGB(25, 20, 30)}, {75, RGB(225, 20, 30)}, {76, RGB(10, 25, 30)}, {93, RGB(10, 20, 225)}})
    EXPECT_EQ(list.at(static_cast<std::size_t>(i)), c) << i;
}

TEST(ColourCellsTest, StandInRowsThatEndAheadOfTheRightEdge) {
  const Ref<Picture> canvas = NewPicture(408, 192, 32);
  const std::vector<Color> colours(94, Color{0x123456});
  drawCells(canvas->Graphics(), colours);
  const Color frame{0x909090};
  const Color ground{0xA0A0A0};
  const std::tuple<Int32, Int32, Color, const char*> rows[] = {{13, 10, frame, "the first"},       {14, 11, kWhite, "its inner frame"},
              {15, 12, colours[0], "its colour"}, {373, 10, frame, "the sixteenth"},
              {397, 10, ground, "no more"},       {325, 135, frame, "the last"},
              {349, 135, ground, "no more"},      {407, 191, kWhite, "the corner"}};
  for (const auto& [x, y, c, what] : rows)
    EXPECT_EQ(canvas->Graphics().Pixel(x, y), c) << what;

  const Ref<Picture> narrow = NewPicture(42, 192, 32);
  drawCells(narrow->Graphics(), {kBlack});
  EXPECT_EQ(narrow->Graphics().Pixel(13, 10), ground);
  EXPECT_EQ(narrow->Graphics().Pixel(13, 35), frame) << "too narrow for even one";
}

}  // namespace
}  // namespace tavrelkin

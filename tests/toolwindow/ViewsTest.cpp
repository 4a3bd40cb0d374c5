// The views that the preview shows instead of the screen, and the commands that choose them.

#include <algorithm>

#include <Qt>

#include "color/DistinctColors.h"
#include "color/Suggestions.h"
#include "color/zrXYZ.h"
#include "favourites/frmFav.h"
#include "toolwindow/ColorCells.h"
#include "toolwindow/ToolWindowTest.h"

namespace tavrelkin {
namespace {

using Colors = std::vector<Color>;

// A picture of these colours, column by column, followed by black.
Ref<Picture> pictureOf(const Colors& colors, Int32 width, Int32 height) {
  Ref<Picture> picture = NewPicture(width, height, 32);
  for (Int32 i = 0; i < width * height; ++i) {
    const auto at = static_cast<std::size_t>(i);
    picture->Graphics().Pixel(i / height, i % height, at < colors.size() ? colors[at] : kBlack);
  }
  return picture;
}

// More than 256 colours, no two of which are similar. Their channels are multiples of 31, and any two colours differ by
// at least two such steps. None is so light that a difference of 62 is within the tolerance.
Colors unlikeColors() {
  Colors colors;
  for (Int32 i = 0; i < 9 * 9 * 9; ++i) {
    const Int32 steps[] = {i / 81, i / 9 % 9, i % 9};
    const Int32 sum = steps[0] + steps[1] + steps[2];
    if (sum % 2 == 0 && sum <= 18 && *std::max_element(steps, steps + 3) > 2)
      colors.push_back(RGB(31 * steps[0], 31 * steps[1], 31 * steps[2]));
  }
  return colors;
}

TEST(DistinctColorsTest, AlikeIsWithinATenthOfTheBrighterChannels) {
  const std::tuple<Color, Color, bool> rows[] = {
      {RGB(109, 0, 0), RGB(99, 0, 0), true},      {RGB(109, 0, 0), RGB(98, 0, 0), false},
      {RGB(200, 100, 0), RGB(185, 116, 0), true}, {RGB(200, 100, 0), RGB(184, 116, 0), false},
      {RGB(0, 100, 0), RGB(0, 0, 100), false},    {RGB(80, 80, 200), RGB(92, 92, 188), true},
  };
  for (const auto& [met, next, alike] : rows) {
    EXPECT_EQ(distinctColors(*pictureOf({met, next}, 2, 1), 9).size(), alike ? 1u : 2u) << Hex(toInt32(met.bits));
    EXPECT_EQ(distinctColors(*pictureOf({next, met}, 2, 1), 9).size(), alike ? 1u : 2u) << Hex(toInt32(next.bits));
  }
}

TEST(DistinctColorsTest, TheWalkKeepsTheFirstOfAFamilyColumnByColumnAndNoDarkOnes) {
  const Colors dark{RGB(76, 0, 0), RGB(0, 76, 76), RGB(0, 0, 76), RGB(76, 76, 76)};
  EXPECT_EQ(distinctColors(*pictureOf(dark, 3, 2), 9), Colors{});
  const Colors limit{RGB(77, 0, 0), RGB(0, 77, 0), RGB(0, 0, 77)};
  EXPECT_EQ(distinctColors(*pictureOf(limit, 3, 2), 9), limit);
  const Colors family{RGB(100, 0, 0), RGB(91, 0, 0), RGB(82, 0, 0), kWhite, RGB(91, 0, 0), RGB(100, 0, 0)};
  EXPECT_EQ(distinctColors(*pictureOf(family, 3, 2), 9), (Colors{family[0], family[2], kWhite}));
}

Color grey(Double value) {
  return HSV(0, 0, value);
}

TEST(SuggestionsTest, AGreyGivesSevenTimesTheSameSeven) {
  const std::pair<Color, Colors> rows[] = {
      {kBlack, {kBlack, grey(0.5), grey(0.75), kBlack, kBlack, grey(0.25), grey(0.125)}},
      {kWhite, {kWhite, kWhite, kWhite, grey(2.0 / 3), grey(1.0 / 3), grey(0.75), grey(0.875)}},
  };
  for (const auto& [from, group] : rows) {
    const Colors list = suggestionsFor(from);
    ASSERT_EQ(list.size(), 94u);
    for (std::size_t i = 0; i < 49; ++i)
      EXPECT_EQ(list[i], group[i % 7]) << i;
  }
}

TEST(SuggestionsTest, RelatedHuesGoRoundTheCircle) {
  const Colors list = suggestionsFor(Color{0xFF0000});
  const Double beyond = readColorHue(HSV(0.583, 1, 1)) + 0.333;
  const Double hues[] = {0.917, 0.083, 0.5, 0.417, 0.583, beyond, beyond + 0.333 - 1};
  for (std::size_t i = 0; i < 7; ++i)
    EXPECT_EQ(list[7 * i], HSV(hues[i], 1, 1)) << i;
}

TEST(SuggestionsTest, RampsVaryOneChannelEach) {
  const Colors list = suggestionsFor(RGB(10, 20, 30));
  for (const auto& [i, c] :
       {std::pair{67, RGB(25, 20, 30)}, {75, RGB(225, 20, 30)}, {76, RGB(10, 25, 30)}, {93, RGB(10, 20, 225)}})
    EXPECT_EQ(list.at(static_cast<std::size_t>(i)), c) << i;
}

TEST(ColorCellsTest, StandInRowsThatEndAheadOfTheRightEdge) {
  const Color frame{0x909090};
  const Color ground{0xA0A0A0};
  const Ref<Picture> canvas = NewPicture(408, 192, 32);
  drawCells(canvas->Graphics(), Colors(94, kBlack));
  // The first cell, the sixteenth and the last with the ground beside them, and the corner.
  const std::tuple<Int32, Int32, Color> rows[] = {{13, 20, frame},   {14, 11, kWhite},   {31, 28, kWhite},
                                                  {15, 12, kBlack},  {373, 10, frame},   {397, 10, ground},
                                                  {335, 135, frame}, {349, 135, ground}, {407, 191, kWhite}};
  for (const auto& [x, y, c] : rows)
    EXPECT_EQ(canvas->Graphics().Pixel(x, y), c) << x << ", " << y;
}

using ViewsTest = ToolWindowTest;

TEST_F(ViewsTest, TheGridAndANewPaletteShowTheColorsUpToTheirLimits) {
  const Colors all = unlikeColors();
  const std::tuple<Ref<Picture>, Colors, Colors> rows[] = {
      {pictureOf(all, 25, 20), {all.begin(), all.begin() + 112}, {all.begin(), all.begin() + 255}},
      {pictureOf({}, 20, 20), {}, {}},
      {window->zoomImage, {kWhite}, {kWhite}}};  // blank, as before the first sample
  choose("mnuShowColors");
  for (const auto& [picture, cells, entries] : rows) {
    window->zoomImage = picture;
    window->imgScreen.Refresh(true);
    Int32 i = 0;
    for (const Color c : cells) {
      ASSERT_EQ(shown(23 + i % 16 * 24, 20 + i / 16 * 25), c) << i;
      ++i;
    }
    EXPECT_EQ(shown(13 + i % 16 * 24, 10 + i / 16 * 25), Color{0xA0A0A0}) << i;
    window->Show();
    choose("mnuFavFromColors");
    auto& palette = dynamic_cast<frmFav&>(*Application::current().frontWindow());
    Colors wanted = entries;
    wanted.resize(256, kWhite);
    EXPECT_EQ(palette.TheClut->aColors, wanted);
    EXPECT_EQ(palette.imgClut.Graphics().Pixel(1, 1), wanted[0]);
  }
}

TEST_F(ViewsTest, NineSwatchesShowTheColorOfTheLastPaintAsDichromatsSeeIt) {
  choose("mnuColorBlind");
  window->setColor(Color{0x336699}, false);
  const Color c{0x70ABFF};
  zrXYZ model(c);
  for (Int32 i = 0; i < 9; ++i) {
    model.gamma = i < 3 ? 1.7 : i < 6 ? 1.8 : 2.2;
    model.XYZFromRGB(c);
    EXPECT_EQ(shown(100 + 48 * (i % 3), 32 + 44 * (i / 3)), Color{0x909090}) << i;
    EXPECT_EQ(shown(102 + 48 * (i % 3), 14 + 44 * (i / 3)), model.getDichromatTranformation(i % 3, c)) << i;
  }
}

TEST_F(ViewsTest, OneAtATimeExceptWhileFollowing) {
  // S, J and D choose the three views, F follows, G shows the guides, and c clicks in the preview. The trace has for
  // each command the letters of the marked items, and an asterisk if the preview was painted again.
  const std::pair<const char*, const char*> names[] = {
      {"Follow ", "F"}, {"Suggestions ", "S"}, {"ShowColors ", "J"}, {"ColorBlind ", "D"}, {"ShowGuide ", "G"}};
  String trace;
  for (const char command : String("SSJJDDSJDSDJSFScSFcDFFcGGJc")) {
    window->imgScreen.Graphics().Pixel(10, 10, Color{0x010203});
    if (command == 'c') {
      gesture::click(window->imgScreen, 5, 5);
    } else {
      gesture::shortcut(*window, String("Cmd+") + command);
    }
    for (const auto& [item, letter] : names)
      trace += marks().find(item) == String::npos ? "" : letter;
    trace += shown(10, 10) == Color{0x010203} ? " " : "* ";
  }
  EXPECT_EQ(trace, "S* * J* * D* * S* J* D* S* D* J* S* F FS* F FS* S  D* FD D D DG* D* J*  ");
}

TEST_F(ViewsTest, KeysMarkACellAndTakeItOrThePixelUnderThePointer) {
  fake().pointerAt = {40, 50};
  choose("mnuViewSuggestions");
  gesture::key(window->imgScreen, Qt::Key_Return);
  EXPECT_EQ(window->SelectedColor, colorAt(40, 50)) << "no cell is marked";
  const std::tuple<std::vector<int>, std::size_t> rows[] = {{{Qt::Key_Right}, 0},
                                                            {{Qt::Key_Right, Qt::Key_Down, Qt::Key_Right}, 17}};
  for (const auto& [keys, cell] : rows) {
    const Color taken = suggestionsFor(window->SelectedColor).at(cell);
    choose("mnuViewSuggestions");
    for (const int key : keys)
      gesture::key(window->imgScreen, key);
    gesture::key(window->imgScreen, Qt::Key_Return);
    EXPECT_EQ(window->SelectedColor, taken) << cell;
  }
}

TEST_F(ViewsTest, NothingIsDrawnOnNil) {
  for (const auto draw : {&frmVesk::drawScreen, &frmVesk::drawSuggestions, &frmVesk::drawColorsInScreen})
    ((*window).*draw)(nullptr);
}

}  // namespace
}  // namespace tavrelkin

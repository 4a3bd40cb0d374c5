// The distinct colours of the preview: how they are found, and the two places where they go.

#include <algorithm>

#include "color/zrColorLib.h"
#include "favourites/frmFav.h"
#include "runtime/gui/Clipboard.h"
#include "toolwindow/DistinctColours.h"
#include "toolwindow/ToolWindowTest.h"

namespace tavrelkin {
namespace {

constexpr Color kGround{0xA0A0A0};

// A picture of these colours, column by column, and of black behind them.
Ref<Picture> pictureOf(const std::vector<Color>& colours, Int32 width, Int32 height) {
  Ref<Picture> picture = NewPicture(width, height, 32);
  for (Int32 i = 0; i < width * height; ++i) {
    const auto at = static_cast<std::size_t>(i);
    picture->Graphics().Pixel(i / height, i % height, at < colours.size() ? colours[at] : kBlack);
  }
  return picture;
}

// Colours of which no two are alike: each step is 31, at least two steps lie between any two of them, and they are not
// so light that these 62 would be within the tolerance.
std::vector<Color> unlikeColours() {
  std::vector<Color> colours;
  for (Int32 red = 0; red < 9; ++red) {
    for (Int32 green = 0; green < 9; ++green) {
      for (Int32 blue = 0; blue < 9; ++blue) {
        const Int32 sum = red + green + blue;
        if (sum % 2 == 0 && sum <= 18 && std::max({red, green, blue}) > 2)
          colours.push_back(RGB(31 * red, 31 * green, 31 * blue));
      }
    }
  }
  return colours;
}

std::vector<Color> first(std::size_t count, const std::vector<Color>& colours) {
  return {colours.begin(), colours.begin() + static_cast<std::ptrdiff_t>(count)};
}

TEST(DistinctColoursTest, AlikeIsWithinATenthOfTheBrighterChannels) {
  const struct {
    Color met, next;
    bool alike;
  } rows[] = {
      {RGB(100, 0, 0), RGB(90, 0, 0), true},      {RGB(100, 0, 0), RGB(89, 0, 0), false},
      {RGB(109, 0, 0), RGB(99, 0, 0), true},      {RGB(109, 0, 0), RGB(98, 0, 0), false},
      {RGB(200, 100, 0), RGB(185, 116, 0), true}, {RGB(200, 100, 0), RGB(184, 116, 0), false},
      {RGB(0, 100, 0), RGB(0, 0, 100), false},    {RGB(80, 80, 200), RGB(92, 92, 188), true},
  };
  for (const auto& [met, next, alike] : rows) {
    EXPECT_EQ(distinctColours(*pictureOf({met, next}, 2, 1), 9).size(), alike ? 1u : 2u) << Hex(toInt32(met.bits));
    EXPECT_EQ(distinctColours(*pictureOf({next, met}, 2, 1), 9).size(), alike ? 1u : 2u) << Hex(toInt32(next.bits));
  }
}

TEST(DistinctColoursTest, TheWalkKeepsTheFirstOfAFamilyColumnByColumnAndNoDarkOnes) {
  const std::vector<Color> dark{RGB(76, 0, 0), RGB(0, 76, 76), RGB(0, 0, 76), RGB(76, 76, 76)};
  EXPECT_TRUE(distinctColours(*pictureOf(dark, 3, 2), 9).empty());
  const std::vector<Color> limit{RGB(77, 0, 0), RGB(0, 77, 0), RGB(0, 0, 77)};
  EXPECT_EQ(distinctColours(*pictureOf(limit, 3, 2), 9), limit);
  const Color a = RGB(100, 0, 0), likeA = RGB(91, 0, 0), likeThat = RGB(82, 0, 0), b = kWhite;
  EXPECT_EQ(distinctColours(*pictureOf({a, likeA, likeThat, b, likeA, a}, 3, 2), 9),
            (std::vector<Color>{a, likeThat, b}));
}

TEST(DistinctColoursTest, TheWalkEndsAtItsLimit) {
  const std::vector<Color> all = unlikeColours();
  ASSERT_GT(all.size(), 256u);
  const Ref<Picture> picture = pictureOf(all, 25, 20);
  for (const std::size_t most : {std::size_t{1}, all.size()})
    EXPECT_EQ(distinctColours(*picture, most), first(most, all)) << most;
  EXPECT_EQ(distinctColours(*picture, 999), all);
}

class ColoursInPreviewTest : public ToolWindowTest {
 protected:
  // The colour in the middle of a cell of the grid.
  Color cell(Int32 i) const { return window->imgScreen.Graphics().Pixel(23 + i % 16 * 24, 20 + i / 16 * 25); }

  // The window that "Create colors..." has just opened.
  Ref<frmFav> created() const {
    window->Show();
    choose("mnuFavFromColors");
    return Ref<frmFav>(dynamic_cast<frmFav*>(Application::current().frontWindow()));
  }
};

TEST_F(ColoursInPreviewTest, TheGridAndANewPaletteShowTheColoursUpToTheirLimits) {
  const std::vector<Color> all = unlikeColours();
  const struct {
    Ref<Picture> picture;
    std::vector<Color> cells, entries;
  } rows[] = {{pictureOf(all, 25, 20), first(112, all), first(255, all)},
              {pictureOf({all[5], all[9]}, 2, 2), {all[5], all[9]}, {all[5], all[9]}},
              {pictureOf({}, 20, 20), {}, {}},
              {window->zoomImage, {kWhite}, {kWhite}}};  // blank, as it is before the first sample
  choose("mnuShowColors");
  for (const auto& [picture, cells, entries] : rows) {
    window->zoomImage = picture;
    window->imgScreen.Refresh(true);
    for (std::size_t i = 0; i < cells.size(); ++i)
      ASSERT_EQ(cell(static_cast<Int32>(i)), cells[i]) << i;
    const auto end = static_cast<Int32>(cells.size());
    EXPECT_EQ(window->imgScreen.Graphics().Pixel(13 + end % 16 * 24, 10 + end / 16 * 25), kGround) << end;
    EXPECT_EQ(window->imgScreen.Graphics().Pixel(407, 191), kWhite);

    const Ref<frmFav> palette = created();
    ASSERT_TRUE(palette);
    std::vector<Color> wanted = entries;
    wanted.resize(256, kWhite);
    EXPECT_EQ(palette->TheClut->aColors, wanted);
    EXPECT_EQ(palette->imgClut.Graphics().Pixel(1, 1), wanted[0]);
    gesture::shortcut(*palette, "Cmd+C");
    EXPECT_EQ(Clipboard().Text(), "#" + getHexStr(wanted[0])) << "the new window has the keyboard";
  }
  EXPECT_TRUE(window->flgShowColorsInScreen);
  window->drawColorsInScreen(nullptr);
}

}  // namespace
}  // namespace tavrelkin
